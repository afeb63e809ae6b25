#include "tracking/FinderObserver.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/FileURL.h"
#include "tracking/DebugLog.h"
#include "tracking/RectangleMatching.h"

namespace brindle {

using platform::Date;

namespace {

constexpr std::size_t cacheLimit = 128;
constexpr platform::Duration leastTimeBetweenFetches = std::chrono::milliseconds(200);

const char* inWords(bool value) {
    return value ? "true" : "false";
}

}  // namespace

FinderObserver::FinderObserver(platform::Platform& thePlatform,
                               std::shared_ptr<AccessibilityManager> theAccessibilityManager,
                               std::shared_ptr<FinderWindowTracker> theWindowTracker,
                               std::shared_ptr<FinderPathProvider> thePathProvider)
    : editRequestToken(*this, thePlatform.uuids.makeUUID()),
      platform(thePlatform),
      accessibilityManager(std::move(theAccessibilityManager)),
      windowTracker(std::move(theWindowTracker)),
      pathProvider(std::move(thePathProvider)),
      pathQueue(
          thePlatform.dispatch.makeSerialQueue("com.velmora.Brindle.paths", platform::QualityOfService::userInitiated)),
      selectionQueue(thePlatform.dispatch.makeSerialQueue("com.velmora.Brindle.selection",
                                                          platform::QualityOfService::userInteractive)) {}

void FinderObserver::refresh(bool allowPathFetch) {
    tally.passes += 1;
    accessibilityManager->refresh();
    readFrontmostApplication();
    if (!*accessibilityManager->isTrusted) {
        setVisibleWindows({});
        return;
    }
    pruneWindowCache();
    latestTrackedWindows = windowTracker->snapshot();

    const bool titlesChanged = titlesOrMembershipChanged();
    if (wantsPathFetch(allowPathFetch, titlesChanged) && !pathFetchInFlight) requestPathSnapshots();
    if (titlesChanged) {
        lastTrackedTitles.clear();
        for (const TrackedFinderWindow& window : latestTrackedWindows) lastTrackedTitles[window.id] = window.title;
    }

    std::vector<FinderWindowState> list = mergedWindows();
    const std::size_t mergedCount = list.size();
    const Date now = platform.clock.now();
    for (const FinderWindowState& state : list) cache(state, now);
    setVisibleWindows(std::move(list));
    if (mergedCount != 0 && onFinderActivity) onFinderActivity();
    logStatus(mergedCount);
}

void FinderObserver::readFrontmostApplication() {
    auto application = platform.workspace.frontmostApplication();
    const bool isFinder = application && application->bundleIdentifier == "com.apple.finder";
    frontmostApplicationBundleIdentifier.setIfChanged(application ? std::move(application->bundleIdentifier)
                                                                  : std::nullopt);
    finderIsFrontmost.setIfChanged(isFinder);
}

bool FinderObserver::wantsPathFetch(bool allowPathFetch, bool titlesChanged) const {
    if (!allowPathFetch || latestTrackedWindows.empty()) return false;
    return titlesChanged || platform.clock.now() - lastAppleScriptRefresh >= leastTimeBetweenFetches;
}

bool FinderObserver::titlesOrMembershipChanged() const {
    if (lastTrackedTitles.size() != latestTrackedWindows.size()) return true;
    return std::any_of(latestTrackedWindows.begin(), latestTrackedWindows.end(),
                       [&](const TrackedFinderWindow& window) {
                           const auto last = lastTrackedTitles.find(window.id);
                           return last == lastTrackedTitles.end() || last->second != window.title;
                       });
}

std::vector<FinderWindowState> FinderObserver::mergedWindows() {
    std::unordered_map<std::string_view, const FinderWindowState*> previous;
    previous.reserve(windows->size());
    for (const FinderWindowState& state : *windows) previous.emplace(state.id, &state);

    std::vector<FinderWindowState> list;
    list.reserve(latestTrackedWindows.size());
    for (const TrackedFinderWindow& window : latestTrackedWindows) {
        const auto before = previous.find(window.id);
        if (auto state = merged(window, before == previous.end() ? nullptr : before->second))
            list.push_back(std::move(*state));
    }
    return list;
}

std::optional<FinderWindowState> FinderObserver::merged(const TrackedFinderWindow& window,
                                                        const FinderWindowState* previous) {
    const auto found = pathSnapshotsByWindowID.find(window.id);
    const FinderPathSnapshot* snapshot = found == pathSnapshotsByWindowID.end() ? nullptr : &found->second;
    const FinderWindowState* prior = previous;
    std::optional<FinderPathSnapshot> kept;
    if (prior == nullptr) {
        // A stale cache entry takes the snapshot with it, which still serves this pass.
        if (snapshot != nullptr) snapshot = &kept.emplace(*snapshot);
        prior = matchingCachedState(window);
    }
    if (snapshot == nullptr && prior == nullptr) return std::nullopt;

    FinderWindowState state;
    state.id = window.id;
    state.windowNumber = window.windowNumber;
    state.zIndex = window.zIndex;
    state.frame = window.frame;
    state.isActive = window.isActive;
    state.isFullScreen = window.isFullScreen;
    state.path = snapshot != nullptr ? snapshot->path : prior->path;
    state.displayName = snapshot != nullptr ? snapshot->displayName : prior->displayName;
    if (snapshot != nullptr && snapshot->selectionWasQueried)
        state.selectedFilePath = snapshot->selectedFilePath;
    else if (prior != nullptr && prior->path == state.path)
        state.selectedFilePath = prior->selectedFilePath;
    return state;
}

const FinderWindowState* FinderObserver::matchingCachedState(const TrackedFinderWindow& window) {
    const auto cached = cachedWindowStates.find(window.id);
    if (cached == cachedWindowStates.end()) return nullptr;
    const FinderWindowState& state = cached->second;
    if (window.title.empty() || window.title == state.displayName) return &state;
    if (window.title == platform::lastPathComponent(state.path)) return &state;
    forget(window.id);
    return nullptr;
}

void FinderObserver::cache(const FinderWindowState& state, Date date) {
    cachedWindowStates.insert_or_assign(state.id, state);
    cachedWindowLastSeen.insert_or_assign(state.id, date);
}

void FinderObserver::pruneWindowCache() {
    if (cachedWindowLastSeen.size() <= cacheLimit) return;
    struct Entry {
        Date lastSeen;
        std::int64_t zIndex;
        std::string id;
    };
    std::vector<Entry> entries;
    for (const auto& [id, date] : cachedWindowLastSeen) entries.push_back({date, cachedWindowStates[id].zIndex, id});
    // The windows of one pass share a date; the furthest back of them is missed least. Numbers of equal depth come from different passes.
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        if (a.lastSeen != b.lastSeen) return a.lastSeen < b.lastSeen;
        return a.zIndex != b.zIndex ? a.zIndex > b.zIndex : a.id < b.id;
    });
    entries.resize(entries.size() - cacheLimit);
    for (const Entry& entry : entries) forget(entry.id);
}

void FinderObserver::forget(const std::string& windowID) {
    cachedWindowStates.erase(windowID);
    cachedWindowLastSeen.erase(windowID);
    pathSnapshotsByWindowID.erase(windowID);
}

void FinderObserver::setVisibleWindows(std::vector<FinderWindowState> list) {
    std::optional<FinderWindowState> active;
    const auto front =
        std::find_if(list.begin(), list.end(), [](const FinderWindowState& state) { return state.isActive; });
    if (front != list.end())
        active = *front;
    else if (!list.empty())
        active = list.front();
    windows.setIfChanged(std::move(list));
    activeWindow.setIfChanged(std::move(active));
}

const platform::NSScreen* FinderObserver::screen(const platform::CGRect& rect) const {
    return platform::screenShowingMost(platform.screens.screens(), rect);
}

void FinderObserver::logStatus(std::size_t mergedCount) {
    std::string line;
    line.reserve(96);
    line.append("trusted=").append(inWords(*accessibilityManager->isTrusted));
    line.append(" tracked=").append(std::to_string(latestTrackedWindows.size()));
    line.append(" paths=").append(std::to_string(pathSnapshotsByWindowID.size()));
    line.append(" merged=").append(std::to_string(mergedCount));
    line.append(" cache=").append(std::to_string(cachedWindowStates.size()));
    line.append(" front=").append(inWords(*finderIsFrontmost));
    if (line == lastLoggedState) return;
    DebugLog::write(platform, line);
    lastLoggedState = std::move(line);
}

std::optional<std::size_t> FinderObserver::indexOfWindow(const std::string& id) const {
    for (std::size_t index = 0; index < windows->size(); ++index)
        if ((*windows)[index].id == id) return index;
    return std::nullopt;
}

}  // namespace brindle
