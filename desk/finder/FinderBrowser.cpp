#include "desk/finder/FinderBrowser.h"

#include <algorithm>
#include <utility>

#include "desk/finder/Finder.h"
#include "desk/finder/FinderWindowView.h"
#include "desk/processes/LaunchServices.h"
#include "desk/text/IcuCollation.h"
#include "desk/time/Scheduler.h"
#include "desk/windows/WindowStack.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

constexpr platform::Duration pauseBetweenWords = std::chrono::seconds(1);
constexpr std::size_t mostVisits = 100;

}  // namespace

FinderBrowser::FinderBrowser(Finder& theFinder, const FinderNeighbours& theNeighbours)
    : finder(theFinder), neighbours(theNeighbours) {}

FinderBrowser::~FinderBrowser() = default;

const FinderWindow* FinderBrowser::folderWindow(std::int64_t number) const {
    const FinderWindow* window = finder.find(number);
    return window != nullptr && window->kind == FinderWindowKind::folder ? window : nullptr;
}

// Most machines never show a list.
platform::Collation& FinderBrowser::names() {
    if (collation == nullptr) collation = std::make_unique<IcuCollation>();
    return *collation;
}

const FinderListing& FinderBrowser::listing(const FinderWindow& window) {
    FinderListing& list = view(window).listing;
    list.update(neighbours.disk, names(), window.target);
    return list;
}

const std::vector<FinderPlace>& FinderBrowser::places() {
    const auto stamp = neighbours.disk.stamp("/Volumes");
    if (knownPlaces.empty() || stamp != stampOfVolumes) {
        stampOfVolumes = stamp;
        knownPlaces = finderPlaces(neighbours.disk);
    }
    return knownPlaces;
}

platform::CGSize FinderBrowser::sizeOf(const FinderWindow& window) const {
    const ServerWindow* shown = neighbours.windows.find(window.number);
    return shown == nullptr ? platform::CGSize{} : shown->frame.size;
}

FinderLayout FinderBrowser::layout(const FinderWindow& window) {
    return {sizeOf(window), listing(window).count(), view(window).scrolled};
}

views::LaidOutView FinderBrowser::parts(const FinderWindow& window) {
    return {finderWindowView(finderOutline(*this, window), {}), sizeOf(window), neighbours.text};
}

std::optional<std::size_t> FinderBrowser::selectedRow(const FinderWindow& window, const std::string& path) {
    const auto& selection = window.selection;
    if (std::find(selection.begin(), selection.end(), path) == selection.end()) return std::nullopt;
    return listing(window).rowOf(path);
}

void FinderBrowser::selectRow(std::int64_t number, std::size_t row, Selecting how) {
    const FinderWindow* window = folderWindow(number);
    if (window == nullptr || row >= listing(*window).count()) return;
    const std::string path = listing(*window).pathOf(row);
    auto from = how == Selecting::extending ? selectedRow(*window, view(*window).anchor) : std::nullopt;
    if (!from && how == Selecting::extending && !window->selection.empty())
        from = listing(*window).rowOf(window->selection.front());
    view(*window).anchor = from ? listing(*window).pathOf(*from) : path;
    view(*window).reached = path;
    selectRange(*window, from.value_or(row), row);
    reveal(*window, row);
}

void FinderBrowser::selectRange(const FinderWindow& window, std::size_t from, std::size_t to) {
    const FinderListing& list = listing(window);
    std::vector<std::string> paths;
    for (std::size_t row = std::min(from, to); row <= std::max(from, to); ++row) paths.push_back(list.pathOf(row));
    finder.selectListed(window.number, std::move(paths));
}

void FinderBrowser::toggleRow(std::int64_t number, std::size_t row) {
    const FinderWindow* window = folderWindow(number);
    if (window == nullptr || row >= listing(*window).count()) return;
    const std::string path = listing(*window).pathOf(row);
    std::vector<std::string> selection = window->selection;
    if (std::erase(selection, path) == 0) selection.push_back(path);
    view(*window).anchor = view(*window).reached = path;
    finder.selectListed(number, std::move(selection));
}

void FinderBrowser::selectAll(std::int64_t number) {
    const FinderWindow* window = folderWindow(number);
    if (window != nullptr && listing(*window).count() > 0) selectRange(*window, 0, listing(*window).count() - 1);
}

void FinderBrowser::selectNothing(std::int64_t number) {
    finder.selectListed(number, {});
}

void FinderBrowser::openBand(std::int64_t number, const platform::CGRect& band, const std::vector<std::string>& kept) {
    const FinderWindow* window = folderWindow(number);
    if (window == nullptr) return;
    view(*window).band = band;
    neighbours.windows.changed();
    std::vector<std::string> selection = kept;
    const auto [first, end] = layout(*window).rowsBetween(band.minY(), band.maxY());
    for (std::size_t row = first; row < end; ++row) {
        const std::string path = listing(*window).pathOf(row);
        if (std::find(kept.begin(), kept.end(), path) == kept.end()) selection.push_back(path);
    }
    finder.selectListed(number, std::move(selection));
}

void FinderBrowser::closeBand(std::int64_t number) {
    const auto found = views.find(number);
    if (found != views.end() && std::exchange(found->second.band, std::nullopt)) neighbours.windows.changed();
}

void FinderBrowser::step(std::int64_t number, int direction, Selecting how) {
    const FinderWindow* window = folderWindow(number);
    const std::size_t count = window == nullptr ? 0 : listing(*window).count();
    if (count == 0) return;
    auto row = selectedRow(*window, view(*window).reached);
    if (!row && !window->selection.empty()) row = listing(*window).rowOf(window->selection.back());
    if (!row) {
        selectRow(number, direction > 0 ? 0 : count - 1, Selecting::alone);
    } else {
        const auto next = static_cast<std::ptrdiff_t>(*row) + direction;
        selectRow(
            number,
            static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(next, 0, std::ssize(listing(*window).entries()) - 1)),
            how);
    }
}

bool FinderBrowser::isTyping(std::int64_t number) const {
    const auto found = views.find(number);
    return found != views.end() && neighbours.scheduler.now() - found->second.lastTyped < pauseBetweenWords;
}

void FinderBrowser::type(std::int64_t number, const std::string& text) {
    const FinderWindow* window = folderWindow(number);
    if (window == nullptr) return;
    View& typing = view(*window);
    if (!isTyping(number)) typing.typed.clear();
    typing.typed += text;
    typing.lastTyped = neighbours.scheduler.now();
    if (const auto row = listing(*window).rowNear(typing.typed, names())) selectRow(number, *row, Selecting::alone);
}

void FinderBrowser::scrollBy(std::int64_t number, double distance) {
    const FinderWindow* window = folderWindow(number);
    if (window != nullptr) scrollTo(number, layout(*window).scrolled() + distance);
}

void FinderBrowser::scrollTo(std::int64_t number, double offset) {
    const FinderWindow* window = folderWindow(number);
    if (window == nullptr) return;
    const double before = layout(*window).scrolled();
    view(*window).scrolled = std::clamp(offset, 0.0, layout(*window).mostScrolled());
    if (view(*window).scrolled != before) neighbours.windows.changed();
}

void FinderBrowser::reveal(const FinderWindow& window, std::size_t row) {
    scrollTo(window.number, layout(window).scrolledToShow(row));
}

void FinderBrowser::openSelection(std::int64_t number) {
    const FinderWindow* window = folderWindow(number);
    if (window == nullptr || window->selection.size() > mostOpenedAtOnce) return;
    const std::vector<std::string> selection = window->selection;
    std::vector<std::string> documents;
    for (const std::string& path : selection) {
        const bool isFolder = neighbours.disk.kind(path) == platform::FileKind::directory;
        if (isFolder && path.ends_with(".app"))
            neighbours.launchServices.openApplication(path);
        else if (!isFolder)
            documents.push_back(path);
        else if (selection.size() == 1)
            finder.go(number, path);
        else
            finder.open(path);
    }
    if (!documents.empty()) neighbours.launchServices.openDocuments(documents);
}

void FinderBrowser::goTo(std::int64_t number, const FinderPlace& place) {
    if (place.path)
        finder.go(number, *place.path);
    else
        finder.goVirtual(number, place.name);
}

void FinderBrowser::goUp(std::int64_t number) {
    const FinderWindow* window = folderWindow(number);
    if (window == nullptr || !window->target || *window->target == "/") return;
    const std::string left = *window->target;
    if (!finder.go(number, platform::deletingLastPathComponent(left))) return;
    if (const auto row = listing(*window).rowOf(left)) selectRow(number, *row, Selecting::alone);
}

FinderBrowser::Visit FinderBrowser::visit(const FinderWindow& window) {
    return {window.target, window.name, window.selection, view(window).scrolled};
}

void FinderBrowser::willLeave(const FinderWindow& window) {
    View& leaving = view(window);
    leaving.back.push_back(visit(window));
    if (leaving.back.size() > mostVisits) leaving.back.erase(leaving.back.begin());
    leaving.forward.clear();
    leaving.scrolled = 0;
    leaving.typed.clear();
    leaving.band.reset();
}

bool FinderBrowser::hasBeen(std::int64_t number, Visits View::*side) const {
    const auto found = views.find(number);
    return found != views.end() && !(found->second.*side).empty();
}

// Places that are gone by now are passed over.
void FinderBrowser::retrace(std::int64_t number, Visits View::*from, Visits View::*to) {
    const FinderWindow* window = folderWindow(number);
    while (window != nullptr && hasBeen(number, from)) {
        View& here = view(*window);
        const Visit left = visit(*window);
        const Visit wanted = std::move((here.*from).back());
        (here.*from).pop_back();
        if (!finder.revisit(number, wanted.target, wanted.name)) continue;
        (here.*to).push_back(left);
        finder.selectListed(number, wanted.selection);
        here.scrolled = wanted.scrolled;
        return;
    }
}

}  // namespace desk
