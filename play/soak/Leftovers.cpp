#include "play/soak/Leftovers.h"

#include <algorithm>
#include <malloc.h>

#include "play/OrdinaryWindows.h"
#include "play/Session.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

// Two of Finder itself, six of the desktop, which is among its windows.
constexpr std::size_t subscriptionsWithoutWindows = 8;

// Caches fill while a story is young. What lies in them swings by less than the margin from one look to the next; a leak doesn't swing.
constexpr std::ptrdiff_t warmUp = 5;
constexpr std::ptrdiff_t stretch = 4;
constexpr std::int64_t margin = 1 << 20;

// Always 0 under a sanitizer, whose allocator doesn't tell.
std::int64_t allocatedBytes() {
    const auto info = mallinfo2();
    return static_cast<std::int64_t>(info.uordblks + info.hblkhd);
}

}  // namespace

void Leftovers::look(const Session& session) {
    if (!finderAtLaunch && session.hasLaunched()) finderAtLaunch = session.machine.finder.pid();
}

std::optional<Finding> Leftovers::check(const Session& session, std::int64_t bytesOfStory) {
    if (session.application() == nullptr || !session.machine.finder.windows().empty()) return std::nullopt;
    if (!windowsOf(session).isEmpty())
        return Finding{"leftovers", "a window was closed and is still on screen", {"expect /windows []"}};
    auto finding = checkSubscriptions(session);
    return finding ? finding : checkMemory(bytesOfStory);
}

// Those of a Finder that has gone stay as they were.
std::optional<Finding> Leftovers::checkSubscriptions(const Session& session) const {
    if (finderAtLaunch != session.machine.finder.pid()) return std::nullopt;
    const std::size_t subscriptions = session.application()->registrations().accessibilitySubscriptions;
    if (subscriptions == 0 || subscriptions == subscriptionsWithoutWindows) return std::nullopt;
    return Finding{
        "leftovers", numberWord(static_cast<std::int64_t>(subscriptions)) + " subscriptions without a window", {}};
}

std::optional<Finding> Leftovers::checkMemory(std::int64_t bytesOfStory) {
    bytesInUse.push_back(allocatedBytes() - bytesOfStory);
    if (std::ssize(bytesInUse) < warmUp + 3 * stretch) return std::nullopt;
    const auto least = [](auto from) { return *std::min_element(from, from + stretch); };
    const auto first = bytesInUse.begin() + warmUp;
    const auto last = bytesInUse.end() - stretch;
    const std::int64_t between = least(first + (last - first) / 2);
    // What leaks goes on growing; what a window keeps from its first showing on, such as its icon, grows once.
    const std::int64_t growth = least(last) - least(first);
    if (growth < margin || least(last) - between < margin / 3) return std::nullopt;
    return Finding{"memory", numberWord(growth) + " bytes more are in use than when the story was young", {}};
}

}  // namespace play
