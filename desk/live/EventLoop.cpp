#include "desk/live/EventLoop.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTimer>
#include <chrono>
#include <cstdint>

namespace desk {

namespace {

constexpr platform::Duration longestRest = std::chrono::hours(1);

}  // namespace

EventLoop::EventLoop()
    : wakeDescriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      woken(std::make_unique<QSocketNotifier>(wakeDescriptor, QSocketNotifier::Read)) {
    QObject::connect(woken.get(), &QSocketNotifier::activated, woken.get(), [this] {
        std::uint64_t count = 0;
        [[maybe_unused]] const auto length = ::read(wakeDescriptor, &count, sizeof count);
    });
}

EventLoop::~EventLoop() {
    woken.reset();
    ::close(wakeDescriptor);
}

bool EventLoop::wait(platform::Duration atMost) {
    if (!isEnding && atRest) atRest();
    if (isEnding) return false;
    if (atMost <= platform::Duration(0)) {
        QCoreApplication::processEvents();
        return !isEnding;
    }
    // Rounded up: a wait that ends too early would only be begun anew.
    QTimer alarm;
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.setSingleShot(true);
    alarm.start(std::chrono::ceil<std::chrono::milliseconds>(std::min(atMost, longestRest)));
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return !isEnding;
}

void EventLoop::end() {
    isEnding = true;
    wake();
}

// The count only says that there is something; a full one says so too.
void EventLoop::wake() {
    constexpr std::uint64_t one = 1;
    [[maybe_unused]] const auto length = ::write(wakeDescriptor, &one, sizeof one);
}

}  // namespace desk
