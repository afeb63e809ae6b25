#include "desk/live/DeskWindow.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyleHints>
#include <QTextBoundaryFinder>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "desk/Machine.h"
#include "desk/live/HostKeys.h"

namespace desk {

namespace {

constexpr double menuBarHeight = 24;
constexpr double dockHeight = 64;
constexpr double driftOfAClick = 4;
constexpr double pointsOfANotch = 40;
constexpr double eighthsOfANotch = 120;

std::optional<MouseButton> buttonOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return MouseButton::left;
    if (button == Qt::RightButton) return MouseButton::right;
    return std::nullopt;
}

Qt::CursorShape hostCursor(CursorShape shape) {
    switch (shape) {
    case CursorShape::resizeLeftRight:
        return Qt::SizeHorCursor;
    case CursorShape::resizeUpDown:
        return Qt::SizeVerCursor;
    case CursorShape::resizeNorthWestSouthEast:
        return Qt::SizeFDiagCursor;
    case CursorShape::resizeNorthEastSouthWest:
        return Qt::SizeBDiagCursor;
    case CursorShape::arrow:
        break;
    }
    return Qt::ArrowCursor;
}

platform::Duration frameTime(const QWindow& window) {
    const double rate = window.screen() == nullptr ? 60 : window.screen()->refreshRate();
    return platform::seconds(1 / std::clamp(rate, 30.0, 240.0));
}

}  // namespace

DeskWindow::DeskWindow(Machine& theMachine, DesktopLayers& theLayers, Compositor& theCompositor, int theScreenCount)
    : machine(theMachine), layers(theLayers), compositor(theCompositor), screenCount(theScreenCount), store(this) {
    setTitle(QStringLiteral("Orvane"));
    setMinimumSize(QSize(320 * screenCount, 240));
    resize(QSize(1440, 900));
}

void DeskWindow::lookAgain() {
    if (nextFrame.isActive() || !isExposed()) return;
    const platform::Duration left = lastFrame + frameTime(*this) - machine.scheduler.now();
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(std::max(left, platform::Duration(0)));
    nextFrame.start(static_cast<int>(wait.count()), Qt::PreciseTimer, this);
}

void DeskWindow::timerEvent(QTimerEvent* event) {
    if (event->timerId() != nextFrame.timerId()) return;
    nextFrame.stop();
    paintNow();
}

void DeskWindow::paintNow() {
    lastFrame = machine.scheduler.now();
    DesktopContents contents = layers.read();
    if (onTop)
        for (Layer& layer : onTop()) contents.layers.push_back(std::move(layer));
    const QRegion pixels = compositor.update(std::move(contents), frame, devicePixelRatio());
    if (pixels.isEmpty()) return;
    flush(pixels);
    if (painted) painted(frame);
}

void DeskWindow::flush(const QRegion& pixels) {
    const double ratio = devicePixelRatio();
    // The same pixels with their ratio told, without a copy of them.
    QImage picture(frame.image.bits(), frame.image.width(), frame.image.height(), frame.image.bytesPerLine(),
                   frame.image.format());
    picture.setDevicePixelRatio(ratio);
    QRegion points;
    for (const QRect& rect : pixels)
        points +=
            QRectF(rect.x() / ratio, rect.y() / ratio, rect.width() / ratio, rect.height() / ratio).toAlignedRect();
    store.beginPaint(points);
    {
        QPainter painter(store.paintDevice());
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.setClipRegion(points);
        painter.drawImage(QPoint(0, 0), picture);
    }
    store.endPaint();
    store.flush(points);
}

void DeskWindow::exposeEvent(QExposeEvent* /*event*/) {
    if (!isExposed()) return;
    if (!frame.image.isNull()) flush(frame.image.rect());
    lookAgain();
}

void DeskWindow::resizeEvent(QResizeEvent* event) {
    store.resize(event->size());
    fitScreens(event->size());
    machine.settle();
    lookAgain();
}

// The upper edge stays: what is on the desktop keeps its distance from the menu bar.
void DeskWindow::fitScreens(const QSize& size) {
    const double height = size.height();
    if (!top) top = height;
    std::vector<DisplayOptions> screens;
    int left = 0;
    for (int i = 1; i <= screenCount; ++i) {
        const int right = size.width() * i / screenCount;
        const bool isFirst = screens.empty();
        screens.push_back({platform::CGRectMake(left, *top - height, right - left, height),
                           static_cast<int>(std::lround(1 / platform::inSeconds(frameTime(*this)))), menuBarHeight,
                           isFirst ? dockHeight : 0});
        left = right;
    }
    machine.displays.set(std::move(screens));
}

platform::CGPoint DeskWindow::pointAt(const QPointF& position) const {
    return {position.x(), top.value_or(height()) - position.y()};
}

int DeskWindow::countClick(const platform::CGPoint& point, MouseButton button) {
    const platform::Date now = machine.scheduler.now();
    const auto interval = std::chrono::milliseconds(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    const bool goesOn = lastClick && lastClick->button == button && now - lastClick->when <= interval &&
                        std::abs(lastClick->point.x - point.x) <= driftOfAClick &&
                        std::abs(lastClick->point.y - point.y) <= driftOfAClick;
    lastClick = Click{point, button, now, goesOn ? lastClick->count + 1 : 1};
    return lastClick->count;
}

void DeskWindow::mousePressEvent(QMouseEvent* event) {
    const auto button = buttonOf(event->button());
    if (!button || machine.pointer.isPressed(*button)) return;
    const platform::CGPoint point = pointAt(event->position());
    machine.input.mouseDown(point, *button, countClick(point, *button), modifierFlagsOf(event->modifiers()));
    machine.settle();
    lookAgain();
}

void DeskWindow::mouseMoveEvent(QMouseEvent* event) {
    const platform::CGPoint point = pointAt(event->position());
    if (machine.pointer.isPressed())
        machine.input.mouseDragged(point);
    else
        machine.input.mouseMoved(point);
    setCursor(hostCursor(machine.input.cursorAt(point)));
    machine.settle();
    lookAgain();
}

void DeskWindow::mouseReleaseEvent(QMouseEvent* event) {
    const auto button = buttonOf(event->button());
    if (!button || !machine.pointer.isPressed(*button)) return;
    machine.input.mouseUp(pointAt(event->position()), *button);
    machine.settle();
    lookAgain();
}

void DeskWindow::wheelEvent(QWheelEvent* event) {
    const QPoint exact = event->pixelDelta();
    const QPoint notches = event->angleDelta();
    const platform::CGPoint point = pointAt(event->position());
    if (exact.isNull())
        machine.input.scrollWheel(point, notches.x() / eighthsOfANotch * pointsOfANotch,
                                  notches.y() / eighthsOfANotch * pointsOfANotch);
    else
        machine.input.scrollWheel(point, exact.x(), exact.y());
    machine.settle();
    lookAgain();
}

void DeskWindow::keyPressEvent(QKeyEvent* event) {
    if (takeOwnKey && takeOwnKey(event->key())) {
        lookAgain();
        return;
    }
    const auto stroke = keyStrokeOf(*event);
    if (!stroke) return;
    machine.input.keyDown(*stroke);
    machine.settle();
    lookAgain();
}

void DeskWindow::keyReleaseEvent(QKeyEvent* event) {
    const auto stroke = event->isAutoRepeat() ? std::nullopt : keyStrokeOf(*event);
    if (!stroke) return;
    machine.input.keyUp(*stroke);
    machine.settle();
    lookAgain();
}

// From an input method, or of a key that takes several strokes on the host.
void DeskWindow::typeText(const QString& text) {
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    for (auto begin = characters.position(); characters.toNextBoundary() != -1; begin = characters.position()) {
        const KeyStroke stroke = keyStrokeTyping(text.mid(begin, characters.position() - begin).toStdString());
        machine.input.keyDown(stroke);
        machine.settle();
        machine.input.keyUp(stroke);
        machine.settle();
    }
    lookAgain();
}

bool DeskWindow::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::InputMethodQuery:
        static_cast<QInputMethodQueryEvent*>(event)->setValue(Qt::ImEnabled, true);
        event->accept();
        return true;
    case QEvent::InputMethod:
        typeText(static_cast<QInputMethodEvent*>(event)->commitString());
        event->accept();
        return true;
    case QEvent::Close:
        if (closed) closed();
        event->ignore();
        return true;
    default:
        return QWindow::event(event);
    }
}

}  // namespace desk
