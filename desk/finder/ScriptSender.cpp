#include "desk/finder/ScriptSender.h"

#include <algorithm>
#include <chrono>

#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/Permissions.h"
#include "desk/time/WorkerQueue.h"

namespace desk {

namespace {

// As good as for ever, and far from where times overflow.
constexpr platform::Duration longestLatency = std::chrono::hours(24 * 365);

}  // namespace

bool ScriptSender::isGone() const {
    return gone || application.isDead();
}

bool ScriptSender::wait(platform::Duration duration) {
    if (isGone()) return false;
    if (duration <= platform::Duration(0)) return true;
    duration = std::min(duration, longestLatency);
    if (WorkerQueue* queue = WorkerQueue::current()) {
        gone = !queue->waitFor(duration);
    } else {
        application.loop().blockFor(duration);
    }
    return !isGone();
}

bool ScriptSender::waitForAutomationAnswer() {
    permissions.beginWait(application.bundle().name());
    const bool answered = parkUntilAnswered();
    permissions.endWait();
    return answered;
}

bool ScriptSender::parkUntilAnswered() {
    const auto isAnswered = [&] { return permissions.automation != AutomationPermission::ask; };
    WorkerQueue* queue = WorkerQueue::current();
    if (queue == nullptr) return application.loop().blockUntil(isAnswered) && !isGone();
    const platform::Token token = permissions.changed.subscribe([&isAnswered, queue] {
        if (isAnswered()) queue->resume();
    });
    while (!isGone() && !isAnswered()) gone = !queue->waitForResume();
    return !isGone();
}

}  // namespace desk
