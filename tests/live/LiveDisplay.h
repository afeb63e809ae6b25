// A display of its own for a test, with the desk in a window on it: mouse and keyboard are moved by xdotool, what is on the display is read from the server's
// own memory, and the desk is asked through lines of a script. Everything is waited for, and the time it takes means nothing.
#pragma once

#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <string>

#include "platform/Geometry.h"

namespace live {

class LiveDisplay {
public:
    // Pixels a point.
    static constexpr int scale = 2;

    // Throws when the display or the desk can't be started.
    LiveDisplay();
    ~LiveDisplay();
    LiveDisplay(const LiveDisplay&) = delete;
    LiveDisplay& operator=(const LiveDisplay&) = delete;

    // Lines of a desk script, without an answer.
    void tell(const std::string& line);
    // With an answer of one line.
    std::string ask(const std::string& line);
    QJsonObject state();
    // The point, in AppKit space, of a script's target.
    platform::CGPoint where(const std::string& target);
    // The whole desktop as the desk itself composes it.
    QImage composed();
    // The same as it stands on the display.
    QImage onDisplay() const;

    // In AppKit space.
    void moveMouse(const platform::CGPoint& point);
    void xdotool(const QStringList& arguments);
    void click(const std::string& target);

    // Asks again until it holds; false when it doesn't for a very long time.
    bool comesTrue(const std::function<bool(const QJsonObject&)>& condition);
    bool showsWhatIsComposed();

    // Ends the script, and with it the desk; answers its exit code.
    int end();
    // Interrupts the desk in whatever it does; answers its exit code.
    int interrupt();

private:
    void startDisplay();
    void startDesk();
    int waitForEnd();

    QTemporaryDir folder;
    QProcess server;
    QProcess desk;
    QString name;
    double height = 0;  // of the desktop, in points
};

}  // namespace live
