// What Finder's windows show: their folder and what is selected in it.
#include <algorithm>
#include <utility>

#include "desk/disk/Disk.h"
#include "desk/finder/Finder.h"
#include "desk/finder/FinderAccessibility.h"
#include "desk/finder/FinderBrowser.h"
#include "desk/windows/WindowStack.h"
#include "platform/FileURL.h"

namespace desk {

bool Finder::go(std::int64_t number, const std::string& path) {
    FinderWindow* window = folderWindow(number);
    const std::string target = platform::standardizedPath(path, "/");
    if (window == nullptr || !isFolder(path)) return false;
    if (window->target != target) inside->willLeave(*window);
    show(*window, target, nameOfFolder(target));
    return true;
}

bool Finder::goVirtual(std::int64_t number, const std::string& name) {
    FinderWindow* window = folderWindow(number);
    if (window == nullptr) return false;
    if (window->target || window->name != name) inside->willLeave(*window);
    show(*window, std::nullopt, name);
    return true;
}

bool Finder::revisit(std::int64_t number, const std::optional<std::string>& target, const std::string& name) {
    FinderWindow* window = folderWindow(number);
    if (window == nullptr || (target && !isFolder(*target))) return false;
    show(*window, target, name);
    return true;
}

void Finder::show(FinderWindow& window, const std::optional<std::string>& target, const std::string& name) {
    window.target = target;
    window.selection.clear();
    if (std::exchange(window.name, name) == name) {
        neighbours.windows.changed();
        return;
    }
    neighbours.windows.setTitle(window.number, name);
    tree->post(window.number, "AXTitleChanged");
}

bool Finder::select(std::int64_t number, const std::vector<std::string>& paths) {
    if (folderWindow(number) == nullptr) return false;
    std::vector<std::string> selection;
    for (const std::string& path : paths) {
        selection.push_back(platform::standardizedPath(path, "/"));
        if (!neighbours.disk.exists(selection.back())) return false;
    }
    selectListed(number, std::move(selection));
    return true;
}

void Finder::selectListed(std::int64_t number, std::vector<std::string> paths) {
    FinderWindow* window = folderWindow(number);
    if (window == nullptr) return;
    window->selectionSeenAt.reset();
    if (std::exchange(window->selection, std::move(paths)) != window->selection) neighbours.windows.changed();
}

void Finder::dropVanishedSelection(FinderWindow& window) const {
    const auto isInFolder = [&](const std::string& path) {
        return window.target && platform::deletingLastPathComponent(path) == *window.target;
    };
    const auto stamp = window.target ? neighbours.disk.stamp(*window.target) : std::nullopt;
    if (stamp && stamp == window.selectionSeenAt) return;
    std::erase_if(window.selection, [this](const std::string& path) { return !neighbours.disk.exists(path); });
    const bool isListed = std::all_of(window.selection.begin(), window.selection.end(), isInFolder);
    window.selectionSeenAt = isListed ? stamp : std::nullopt;
}

std::string Finder::home() const {
    return neighbours.disk.home();
}

}  // namespace desk
