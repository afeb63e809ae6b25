// What the desk shares with the desktop of the host that it is shown on: the clipboard, both ways, and whether things are light or dark. Text only.
#pragma once

#include <QObject>
#include <optional>
#include <string>

namespace desk {

class Machine;

class HostDesktop final : public QObject {
public:
    // Takes over what the host has at once.
    explicit HostDesktop(Machine& theMachine);

    // Hands on what has been copied on the machine since the last time.
    void handOnClipboard();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeClipboard();
    void takeColorScheme();

    Machine& machine;
    std::optional<std::string> known;  // what both sides have
};

}  // namespace desk
