// The display that a person sits at: one window of the host that shows all screens of a Machine and hands mouse, wheel and keyboard to it. It paints what has
// changed, once a frame of the host at most, and lets the machine settle after each event.
#pragma once

#include <QBackingStore>
#include <QBasicTimer>
#include <QWindow>
#include <functional>
#include <optional>
#include <vector>

#include "desk/desktop/DesktopLayers.h"
#include "desk/display/Compositor.h"
#include "desk/input/Input.h"
#include "platform/Geometry.h"
#include "platform/Time.h"

namespace desk {

class Machine;

class DeskWindow final : public QWindow {
public:
    DeskWindow(Machine& theMachine, DesktopLayers& theLayers, Compositor& theCompositor, int theScreenCount);

    // What stands before everything on the desktop; asked for each picture.
    std::function<std::vector<Layer>()> onTop;
    // Keys of the desk's own, before the machine gets them: true when it was one.
    std::function<bool(int hostKey)> takeOwnKey;
    std::function<void()> closed;
    // After each picture in which something was painted.
    std::function<void(const DesktopFrame&)> painted;

    // Something on the machine may have changed: the next frame looks.
    void lookAgain();
    // Paints what has changed since the last picture, without waiting for a frame.
    void paintNow();

protected:
    bool event(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    struct Click {
        platform::CGPoint point;
        MouseButton button;
        platform::Date when;
        int count;
    };

    // Of the desktop, from a position in this window.
    platform::CGPoint pointAt(const QPointF& position) const;
    int countClick(const platform::CGPoint& point, MouseButton button);
    void fitScreens(const QSize& size);
    void flush(const QRegion& pixels);
    void typeText(const QString& text);

    Machine& machine;
    DesktopLayers& layers;
    Compositor& compositor;
    int screenCount;
    QBackingStore store;
    DesktopFrame frame;
    QBasicTimer nextFrame;
    platform::Date lastFrame = platform::Date::distantPast();
    std::optional<double> top;  // of the screens, in AppKit space; stays when the window is resized
    std::optional<Click> lastClick;
};

}  // namespace desk
