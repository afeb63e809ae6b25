#include "desk/finder/Finder.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/disk/Disk.h"
#include "desk/finder/FinderAccessibility.h"
#include "desk/finder/FinderBrowser.h"
#include "desk/finder/FinderKeeper.h"
#include "desk/processes/KnownApplications.h"
#include "desk/processes/Processes.h"
#include "desk/time/Scheduler.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowStack.h"
#include "platform/FileURL.h"

namespace desk {

using platform::CGRect;
using platform::NSWindowOrderingMode;

namespace {

bool isFinite(const CGRect& rect) {
    return std::isfinite(rect.origin.x) && std::isfinite(rect.origin.y) && std::isfinite(rect.size.width) &&
           std::isfinite(rect.size.height);
}

CGRect withoutNegativeSize(CGRect rect) {
    rect.size = {std::max(rect.size.width, 0.0), std::max(rect.size.height, 0.0)};
    return rect;
}

}  // namespace

std::string nameOfFolder(const std::string& path) {
    return path == "/" ? "Macintosh HD" : std::string(platform::lastPathComponent(path));
}

Finder::Finder(const FinderNeighbours& theNeighbours)
    : neighbours(theNeighbours),
      tree(std::make_unique<FinderAccessibility>(*this, theNeighbours)),
      inside(std::make_unique<FinderBrowser>(*this, theNeighbours)),
      keeper(std::make_unique<FinderKeeper>(*this, theNeighbours)),
      nextNumber(firstFinderWindowNumber) {
    subscriptions.push_back(neighbours.windows.changed.subscribe([this] { stackChanged(); }));
    subscriptions.push_back(neighbours.displays.changed.subscribe([this] { refitFullScreenWindows(); }));
}

Finder::~Finder() = default;

void Finder::launch() {
    if (isRunning()) return;
    Process process;
    process.bundleIdentifier = "com.apple.finder";
    process.bundlePath = finderPath;
    process.name = "Finder";
    process.keeper = keeper.get();
    process.end = [this](std::int32_t, Ending) { quit(); };
    processIdentifier = neighbours.processes.add(std::move(process));
    neighbours.windows.desktopOwner = processIdentifier;
}

void Finder::quit() {
    if (!isRunning()) return;
    std::vector<int> ownSpaces;
    for (const FinderWindow& window : std::exchange(list, {})) {
        if (window.fullScreen) ownSpaces.push_back(neighbours.windows.find(window.number)->space);
        inside->forget(window.number);
        neighbours.windows.remove(window.number);
    }
    keeper->letGo();
    announcedMainWindow = 0;
    knownMainWindow.reset();
    const std::int32_t gone = std::exchange(processIdentifier, 0);
    neighbours.windows.desktopOwner = 0;
    for (const int space : ownSpaces) neighbours.windows.removeSpace(space);
    neighbours.processes.remove(gone);
}

const FinderWindow* Finder::entry(std::int64_t number) const {
    const auto found = std::lower_bound(list.begin(), list.end(), number,
                                        [](const FinderWindow& a, std::int64_t b) { return a.number < b; });
    return found != list.end() && found->number == number ? &*found : nullptr;
}

FinderWindow* Finder::entry(std::int64_t number) {
    return const_cast<FinderWindow*>(std::as_const(*this).entry(number));
}

FinderWindow* Finder::folderWindow(std::int64_t number) {
    FinderWindow* window = entry(number);
    return window != nullptr && window->kind == FinderWindowKind::folder ? window : nullptr;
}

std::optional<std::int64_t> Finder::open(const std::string& path, std::optional<CGRect> frame) {
    FinderWindow window;
    window.target = platform::standardizedPath(path, "/");
    if (!isFolder(path)) return std::nullopt;
    window.name = nameOfFolder(*window.target);
    return add(std::move(window), frame);
}

bool Finder::isFolder(const std::string& path) const {
    return neighbours.disk.kind(path) == platform::FileKind::directory &&
           neighbours.disk.kind(platform::standardizedPath(path, "/")) == platform::FileKind::directory;
}

std::optional<std::int64_t> Finder::openVirtual(const std::string& name, std::optional<CGRect> frame) {
    FinderWindow window;
    window.name = name;
    return add(std::move(window), frame);
}

std::optional<std::int64_t> Finder::openInfoPanel(const std::string& path) {
    if (!neighbours.disk.kind(path)) return std::nullopt;
    FinderWindow window;
    window.kind = FinderWindowKind::infoPanel;
    window.subject = platform::standardizedPath(path, "/");
    window.name = nameOfFolder(window.subject) + " Info";
    return add(std::move(window), std::nullopt);
}

std::optional<std::int64_t> Finder::add(FinderWindow window, std::optional<CGRect> frame) {
    if (!isRunning() || (frame && !isFinite(*frame))) return std::nullopt;
    const std::int64_t number = nextNumber++;
    window.number = number;
    ServerWindow shown;
    shown.number = number;
    shown.owner = processIdentifier;
    shown.frame = withoutNegativeSize(frame ? *frame : defaultFrame(window));
    shown.title = window.name;
    shown.isAuxiliary = window.kind == FinderWindowKind::infoPanel;
    list.push_back(std::move(window));
    neighbours.windows.add(std::move(shown));
    if (isFrontmost()) {
        neighbours.windows.order(number, NSWindowOrderingMode::above, 0);
    } else {
        placeAmongOthers(number);
    }
    tree->post(number, "AXWindowCreated");
    mainWindowMayHaveChanged();
    return number;
}

CGRect Finder::defaultFrame(const FinderWindow& window) const {
    const auto screen = neighbours.displays.mainScreen();
    const CGRect visible = screen ? screen->visibleFrame : CGRect{{0, 0}, {1440, 876}};
    const double step = 24 * static_cast<double>((window.number - firstFinderWindowNumber) % 8);
    const platform::CGSize size =
        window.kind == FinderWindowKind::folder ? platform::CGSize{800, 500} : platform::CGSize{265, 600};
    const double left = visible.minX() + (window.kind == FinderWindowKind::folder ? 120 : 40);
    return {{left + step, visible.maxY() - 100 - step - size.height}, size};
}

bool Finder::close(std::int64_t number) {
    const FinderWindow* window = entry(number);
    if (window == nullptr) return false;
    const int space = neighbours.windows.find(number)->space;
    std::erase_if(list, [&](const FinderWindow& each) { return each.number == number; });
    inside->forget(number);
    neighbours.windows.remove(number);
    tree->post(number, "AXUIElementDestroyed");
    neighbours.windows.removeSpace(space);
    mainWindowMayHaveChanged();
    return true;
}

bool Finder::minimize(std::int64_t number) {
    FinderWindow* window = folderWindow(number);
    if (window == nullptr) return false;
    if (window->fullScreen) leaveFullScreen(*window);
    setMinimized(*window, true);
    return true;
}

bool Finder::restore(std::int64_t number) {
    FinderWindow* window = folderWindow(number);
    if (window == nullptr) return false;
    setMinimized(*window, false);
    return true;
}

void Finder::setMinimized(FinderWindow& window, bool minimized) {
    if (std::exchange(window.minimized, minimized) == minimized) return;
    const std::int64_t number = window.number;
    neighbours.windows.setMinimized(number, minimized);
    if (!minimized) {
        neighbours.windows.setSpace(number, neighbours.windows.currentSpace());
        bringForward(number);
    }
    tree->post(number, minimized ? "AXWindowMiniaturized" : "AXWindowDeminiaturized");
    mainWindowMayHaveChanged();
}

bool Finder::setSpace(std::int64_t number, int space) {
    const FinderWindow* window = entry(number);
    if (window == nullptr || window->fullScreen || space < 1) return false;
    neighbours.windows.setSpace(number, space);
    mainWindowMayHaveChanged();
    return true;
}

std::vector<const FinderWindow*> Finder::windows() const {
    std::vector<std::pair<int, const FinderWindow*>> ranked;
    for (const ServerWindow* shown : neighbours.windows.all()) {
        if (shown->owner != processIdentifier || entry(shown->number) == nullptr) continue;
        const int rank = shown->minimized ? 2 : neighbours.windows.isOnScreen(*shown) ? 0 : 1;
        ranked.emplace_back(rank, find(shown->number));
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<const FinderWindow*> result;
    result.reserve(ranked.size());
    for (const auto& [rank, window] : ranked) result.push_back(window);
    return result;
}

const FinderWindow* Finder::find(std::int64_t number) const {
    const FinderWindow* window = entry(number);
    if (window != nullptr && !window->selection.empty()) dropVanishedSelection(const_cast<FinderWindow&>(*window));
    return window;
}

const FinderWindow* Finder::front() const {
    return find(mainWindow());
}

std::int64_t Finder::mainWindow() const {
    if (!knownMainWindow) knownMainWindow = findMainWindow();
    return *knownMainWindow;
}

std::int64_t Finder::findMainWindow() const {
    for (const ServerWindow* shown : neighbours.windows.onScreen()) {
        if (shown->owner != processIdentifier) continue;
        const FinderWindow* window = entry(shown->number);
        if (window != nullptr && window->kind == FinderWindowKind::folder) return window->number;
    }
    return 0;
}

// Spaces and activation change which window is main without Finder having been asked; it finds out a moment later, as the rest of the machine does.
void Finder::stackChanged() {
    knownMainWindow.reset();
    if (std::exchange(willCheckMainWindow, true)) return;
    neighbours.scheduler.after(platform::Duration(0), [this] {
        willCheckMainWindow = false;
        mainWindowMayHaveChanged();
    });
}

void Finder::mainWindowMayHaveChanged() {
    const std::int64_t before = std::exchange(announcedMainWindow, mainWindow());
    if (before != announcedMainWindow) tree->post(announcedMainWindow, "AXFocusedWindowChanged");
}

}  // namespace desk
