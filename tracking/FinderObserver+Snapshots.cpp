// How Finder's AppleScript answers reach the observer: two fetches, each on its serial queue, whose blocks hold the provider and know the
// observer only through guarded callbacks that run on the main thread.
#include <algorithm>
#include <utility>

#include "tracking/FinderObserver.h"

namespace brindle {

void FinderObserver::requestPathSnapshots() {
    pathFetchInFlight = true;
    tally.pathFetches += 1;
    auto receive =
        lifetime.guard([this](const std::vector<FinderPathSnapshot>& answer) { receivePathSnapshots(answer); });
    pathQueue->async([provider = pathProvider, &dispatch = platform.dispatch, receive = std::move(receive)] {
        const auto pool = dispatch.makeAutoreleasePool();
        dispatch.mainTask([receive, answer = provider->fetchWindowPaths()]() mutable { receive(answer); });
    });
}

void FinderObserver::receivePathSnapshots(const std::vector<FinderPathSnapshot>& answer) {
    pathFetchInFlight = false;
    lastAppleScriptRefresh = platform.clock.now();
    // Against the windows of this moment: one that closed while Finder answered finds no match.
    for (auto& [id, snapshot] : matchSnapshots(latestTrackedWindows, answer))
        pathSnapshotsByWindowID.insert_or_assign(id, std::move(snapshot));
    refresh(false);
}

FinderObserver::SnapshotsByWindowID FinderObserver::matchSnapshots(const std::vector<TrackedFinderWindow>& to,
                                                                   const std::vector<FinderPathSnapshot>& snapshots) {
    std::unordered_map<std::int64_t, const std::string*> idsByNumber;
    idsByNumber.reserve(to.size());
    for (const TrackedFinderWindow& window : to) idsByNumber.insert_or_assign(window.windowNumber, &window.id);

    SnapshotsByWindowID matched;
    for (const FinderPathSnapshot& snapshot : snapshots) {
        const auto id = idsByNumber.find(snapshot.windowNumber);
        if (id != idsByNumber.end()) matched.insert_or_assign(*id->second, snapshot);
    }
    return matched;
}

void FinderObserver::requestSelectionSnapshot() {
    const std::int64_t generation = ++selectionFetchGeneration;
    tally.selectionFetches += 1;
    auto receive = lifetime.guard([this, generation](const std::optional<FinderSelectionSnapshot>& answer) {
        receiveSelectionSnapshot(answer, generation);
    });
    selectionQueue->async([provider = pathProvider, &dispatch = platform.dispatch, receive = std::move(receive)] {
        const auto pool = dispatch.makeAutoreleasePool();
        dispatch.mainTask([receive, answer = provider->fetchFrontWindowSelection()]() mutable { receive(answer); });
    });
}

void FinderObserver::receiveSelectionSnapshot(const std::optional<FinderSelectionSnapshot>& answer,
                                              std::int64_t generation) {
    if (generation != selectionFetchGeneration || !answer) return;
    const auto window = std::find_if(windows->begin(), windows->end(), [&](const FinderWindowState& state) {
        return state.windowNumber == answer->windowNumber;
    });
    if (window == windows->end() || window->selectedFilePath == answer->selectedFilePath) return;
    const auto index = static_cast<std::size_t>(window - windows->begin());
    changeWindow(index, [&](FinderWindowState& state) { state.selectedFilePath = answer->selectedFilePath; });
}

}  // namespace brindle
