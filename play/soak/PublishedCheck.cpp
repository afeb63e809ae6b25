#include "play/soak/PublishedCheck.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "play/Session.h"
#include "play/soak/Expectations.h"
#include "play/soak/FreshStart.h"
#include "play/soak/Lines.h"
#include "tracking/RectangleMatching.h"

namespace play {

namespace {

using brindle::FinderWindowState;

// A field of a published window: its name, and what an `expect` says of it.
struct Field {
    const char* name;
    std::string (*json)(const FinderWindowState& state);
};
constexpr Field fields[] = {
    {"id", [](const FinderWindowState& state) { return jsonOf(state.id); }},
    {"windowNumber", [](const FinderWindowState& state) { return numberWord(state.windowNumber); }},
    {"zIndex", [](const FinderWindowState& state) { return numberWord(state.zIndex); }},
    {"path", [](const FinderWindowState& state) { return jsonOf(state.path); }},
    {"displayName", [](const FinderWindowState& state) { return jsonOf(state.displayName); }},
    {"selectedFilePath",
     [](const FinderWindowState& state) { return state.selectedFilePath ? jsonOf(*state.selectedFilePath) : "null"; }},
    {"frame", [](const FinderWindowState& state) { return jsonOf(state.frame); }},
    {"isActive", [](const FinderWindowState& state) { return jsonOf(state.isActive); }},
    {"isFullScreen", [](const FinderWindowState& state) { return jsonOf(state.isFullScreen); }}};

// Finder tells the selection of its first window alone; that of another one stays as it was last known.
bool isComparable(const Field& field, const FinderWindowState& state, const desk::Machine& machine) {
    const auto* front = machine.finder.front();
    return std::string_view(field.name) != "selectedFilePath" ||
           (front != nullptr && front->number == state.windowNumber);
}

// The tracker joins what is as near as this, and what has the same title from farther off.
constexpr double joined = 20;
constexpr double joinedByTitle = 1000;

// An info panel that lies on a window takes its place, that one another's of its title, and so on; which of them goes without depends on which were known before.
std::set<std::int64_t> disputedWindows(const desk::Machine& machine) {
    const auto windows = machine.finder.windows();
    const auto takesPlaceOf = [&](const desk::FinderWindow* one, const desk::FinderWindow* other) {
        const double distance = brindle::frameDistance(machine.windows.find(one->number)->frame,
                                                       machine.windows.find(other->number)->frame);
        return distance < joined || (distance < joinedByTitle && one->name == other->name);
    };
    std::set<std::int64_t> disputed;
    std::vector<const desk::FinderWindow*> unseen;
    for (const auto* window : windows)
        if (window->kind == desk::FinderWindowKind::infoPanel) unseen.push_back(window);
    while (!unseen.empty()) {
        const auto* one = unseen.back();
        unseen.pop_back();
        if (!disputed.insert(one->number).second) continue;
        for (const auto* other : windows)
            if (takesPlaceOf(one, other)) unseen.push_back(other);
    }
    return disputed;
}

std::vector<FinderWindowState> without(const std::set<std::int64_t>& numbers, std::vector<FinderWindowState> states) {
    std::erase_if(states, [&](const FinderWindowState& state) { return numbers.contains(state.windowNumber); });
    return states;
}

std::optional<Finding> compare(const Session& session, const std::vector<FinderWindowState>& windows,
                               const FinderWindowState& published, const FinderWindowState& fresh) {
    if (published == fresh) return std::nullopt;
    for (const Field& field : fields) {
        const std::string wanted = field.json(fresh);
        if (!isComparable(field, published, session.machine) || field.json(published) == wanted) continue;
        const auto place = std::find(windows.begin(), windows.end(), published) - windows.begin();
        return Finding{"published",
                       "the " + std::string(field.name) + " of " + published.id + " isn't what a fresh start publishes",
                       {expectField("observer/windows", static_cast<std::size_t>(place), field.name) + wanted}};
    }
    return std::nullopt;
}

}  // namespace

std::optional<Finding> checkPublished(Session& session, const std::vector<FinderWindowState>& windows) {
    const auto disputed = disputedWindows(session.machine);
    const auto fresh = without(disputed, publishedByFreshStart(session));
    const auto published = without(disputed, windows);
    const std::size_t shared = std::min(fresh.size(), published.size());
    for (std::size_t i = 0; i < shared; ++i)
        if (auto finding = compare(session, windows, published[i], fresh[i])) return finding;
    if (fresh.size() > shared)
        return Finding{"published",
                       fresh[shared].id + " isn't published, and would be after a fresh start",
                       {expectField("observer/windows", windows.size(), "id") + jsonOf(fresh[shared].id)}};
    if (published.size() > shared)
        return Finding{"published",
                       published[shared].id + " is published, and wouldn't be after a fresh start",
                       {"expect-missing /observer/windows/" + numberWord(std::ssize(windows) - 1)}};
    return std::nullopt;
}

}  // namespace play
