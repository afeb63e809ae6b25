#include "play/live/Measuring.h"

#include <sys/resource.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <ostream>

#include "play/BarParts.h"
#include "play/live/LiveDesk.h"

namespace play {

namespace {

using platform::CGPoint;
using platform::CGRect;

constexpr int windowCount = 20;
constexpr double dragSeconds = 3;
constexpr double reach = 160;  // of the circle that the mouse goes round, in points
constexpr double titleBarMiddle = 14;

void openWindows(LiveDesk& desk, int count) {
    for (int i = 0; i < count; ++i) {
        const double shift = 16.0 * i;
        desk.session.machine.finder.open("/Users/ana/Documents",
                                         platform::CGRectMake(120 + shift, 330 - shift, 700, 380));
    }
    desk.session.launch(installedCopy);
}

// Lets real time pass; false when the desk was closed meanwhile.
bool rest(LiveDesk& desk, double seconds) {
    desk.session.machine.advance(platform::seconds(seconds));
    return !desk.loop.hasEnded();
}

void sendMouse(LiveDesk& desk, QEvent::Type type, const QPointF& position) {
    const bool isRelease = type == QEvent::MouseButtonRelease;
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, position, position, isMove ? Qt::NoButton : Qt::LeftButton,
                      isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&desk.window, &event);
}

struct DragReport {
    int pictures = 0;
    int late = 0;              // pictures in which the bar stood farther off than the window's own last step
    double farthest = 0;       // of the bar from its window, in points
    double longestStep = 0;    // of the window, from one picture to the next
    double distanceAtEnd = 0;  // once all is at rest
};

// The mouse goes round a circle, once in a second and a half.
class CircularDrag {
public:
    CircularDrag(LiveDesk& theDesk, std::int64_t theWindow, int theRate)
        : desk(theDesk), window(theWindow), rate(theRate) {}

    DragReport run(const QPointF& grip) {
        place = frameOfWindow().origin;
        const auto noteBefore = desk.window.painted;
        desk.window.painted = [&](const desk::DesktopFrame& frame) {
            noteBefore(frame);
            notePicture();
        };
        // Within the press a brand drag has a loop of its own, so the mouse is moved by a timer.
        QTimer beat;
        beat.setTimerType(Qt::PreciseTimer);
        beat.setInterval(std::chrono::milliseconds(1));
        QObject::connect(&beat, &QTimer::timeout, &beat, [&] { moveOn(beat, grip); });
        began = desk.session.machine.scheduler.now();
        beat.start();
        sendMouse(desk, QEvent::MouseButtonPress, grip);
        while (beat.isActive() && rest(desk, 0.05)) {}
        rest(desk, 1);
        desk.window.painted = noteBefore;
        report.distanceAtEnd = desk.counters.distance();
        return report;
    }

private:
    CGRect frameOfWindow() const { return desk.session.machine.windows.find(window)->frame; }

    void moveOn(QTimer& beat, const QPointF& grip) {
        const double seconds = platform::inSeconds(desk.session.machine.scheduler.now() - began);
        if (seconds >= dragSeconds) {
            beat.stop();
            sendMouse(desk, QEvent::MouseButtonRelease, grip);
            return;
        }
        const int step = static_cast<int>(seconds * rate);
        if (step == lastStep) return;
        lastStep = step;
        const double angle = step / (1.5 * rate) * 2 * std::numbers::pi;
        sendMouse(desk, QEvent::MouseMove, grip + QPointF(reach * std::sin(angle), reach * (1 - std::cos(angle))));
    }

    void notePicture() {
        const CGPoint now = frameOfWindow().origin;
        const double moved = std::max(std::abs(now.x - place.x), std::abs(now.y - place.y));
        place = now;
        ++report.pictures;
        report.longestStep = std::max(report.longestStep, moved);
        report.farthest = std::max(report.farthest, desk.counters.distance());
        if (desk.counters.distance() > moved) ++report.late;
    }

    LiveDesk& desk;
    const std::int64_t window;
    const int rate;
    platform::Date began;
    CGPoint place;
    int lastStep = 0;
    DragReport report;
};

// In the window of the host.
QPointF onDisplay(const LiveDesk& desk, const CGPoint& point) {
    return {point.x, desk.session.machine.displays.anchorMaxY() - point.y};
}

QPointF titleBarOf(const LiveDesk& desk, std::int64_t number) {
    const CGRect& frame = desk.session.machine.windows.find(number)->frame;
    return onDisplay(desk, {frame.midX(), frame.maxY() - titleBarMiddle});
}

QPointF brandOf(const LiveDesk& desk, std::int64_t number) {
    const std::int64_t panel = panelNumber(desk.session, number);
    const desk::ServerWindow* bar = desk.session.machine.windows.find(panel);
    const auto inside = bar == nullptr ? std::nullopt : barPartPoint(desk.session, panel, "brand", "");
    if (!inside) return titleBarOf(desk, number);
    return onDisplay(desk, {bar->frame.minX() + inside->x, bar->frame.maxY() - inside->y});
}

double processorSeconds() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

}  // namespace

int measureDrags(std::ostream& out) {
    LiveOptions options;
    options.isBare = true;
    LiveDesk desk(options);
    openWindows(desk, windowCount);
    rest(desk, 1);
    const std::int64_t front = desk.session.machine.finder.mainWindow();
    out << windowCount << " windows; per drag of " << dragSeconds << " s: pictures painted, the window's longest step "
        << "between two, the bar's farthest distance\nin one, pictures in which it was farther off than the window's "
           "own "
        << "last step, its distance at the end (points)\n";
    for (const bool byBrand : {false, true})
        for (const int rate : {60, 120}) {
            const QPointF grip = byBrand ? brandOf(desk, front) : titleBarOf(desk, front);
            const DragReport report = CircularDrag(desk, front, rate).run(grip);
            char line[200];
            std::snprintf(line, sizeof line,
                          "%-9s at %3d Hz: %4d pictures, step %6.2f, distance %6.2f, late %d, end %.2f\n",
                          byBrand ? "brand" : "title bar", rate, report.pictures, report.longestStep, report.farthest,
                          report.late, report.distanceAtEnd);
            out << line << std::flush;
        }
    return 0;
}

int measureIdle(std::ostream& out, double seconds) {
    LiveOptions options;
    options.isBare = true;
    LiveDesk desk(options);
    openWindows(desk, 4);
    rest(desk, 3);
    const LiveCounters::Counts before = desk.counters.total();
    const double processorBefore = processorSeconds();
    if (!rest(desk, seconds)) return 1;
    const double taken = processorSeconds() - processorBefore;
    const LiveCounters::Counts after = desk.counters.total();
    out << seconds << " s idle with 4 windows: " << after.layouts - before.layouts << " layouts, "
        << after.barPaints - before.barPaints << " bars painted, " << after.pictures - before.pictures
        << " pictures of the desktop with something new (the clock's minute is one), " << after.passes - before.passes
        << " passes, " << after.fetches - before.fetches << " fetches; " << 100 * taken / seconds << " % of one core\n";
    return 0;
}

}  // namespace play
