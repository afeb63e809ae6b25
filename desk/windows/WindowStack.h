// The window server's side of all windows of all processes: number, owner, frame, level, space, stacking. Higher levels stand before lower ones; within a
// level the list is the order. It doesn't know what windows show, who has the keyboard, or what Finder makes of a click.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/Geometry.h"
#include "platform/Published.h"
#include "platform/Screens.h"
#include "platform/Windows.h"

namespace desk {

inline constexpr std::int64_t firstFinderWindowNumber = 101;
inline constexpr std::int64_t firstPanelNumber = 100001;

struct ServerWindow {
    std::int64_t number = 0;
    std::int32_t owner = 0;  // process identifier
    platform::CGRect frame;  // AppKit space
    int level = 0;
    bool orderedIn = false;
    bool minimized = false;
    int space = 1;
    std::string title;
    platform::NSWindow* window = nullptr;  // of a launched application; none for Finder's and other processes' windows
    std::optional<platform::CGRect> frameBeforeZoom;
    bool isAuxiliary = false;  // never the main one of those without `window`

    bool isIn() const { return orderedIn && !minimized; }
    bool canBeMain() const { return window == nullptr ? !isAuxiliary : window->canBecomeMain(); }
};

class WindowStack {
public:
    // The window starts ordered out.
    void add(ServerWindow window);
    void remove(std::int64_t number);
    ServerWindow* find(std::int64_t number);
    const ServerWindow* find(std::int64_t number) const;

    void setFrame(std::int64_t number, const platform::CGRect& frame);
    // A changed level puts the window in front of its new level; the same level changes nothing.
    void setLevel(std::int64_t number, int level);
    void setTitle(std::int64_t number, const std::string& title);
    // Ordering in puts the window on the current space. Relative to a window that is gone: to the front of its level. Relative to a window of another level: in front of
    // (or behind) all of its own level.
    void order(std::int64_t number, platform::NSWindowOrderingMode mode, std::int64_t relativeTo);
    // To the front of its level, keeping its space, if it is ordered in; the windows of one process keep their order among themselves in raiseAll.
    void raise(std::int64_t number);
    void raiseAll(std::int32_t owner);
    // To the back of its level.
    void lower(std::int64_t number);
    void setMinimized(std::int64_t number, bool minimized);
    // The frame that a zoom gives the window now: as large as it may be and its screen has room for, or as it was before. Empty without a screen.
    std::optional<platform::CGRect> zoomedFrame(std::int64_t number, const std::vector<platform::NSScreen>& screens,
                                                platform::CGSize most = {1e6, 1e6});

    int currentSpace() const { return space; }
    // The contents of windows that come on screen or go from it are told.
    void switchToSpace(int newSpace);
    void setSpace(std::int64_t number, int newSpace);
    // The current space is that of a single full-screen window, which covers menu bar and Dock.
    bool isFullScreenSpace() const { return space > firstOwnSpace; }
    // A number that no space has yet, for a full-screen window of that desktop; counts up from 1000.
    int makeSpace(int desktop);
    // Whoever is on it, and what else stands there, goes to the desktop that it was made for.
    void removeSpace(int ownSpace);
    // That many desktops, or as many as there are windows on, each with the full-screen spaces made for it on its right.
    std::vector<int> spacesFromTheLeft(int fewestDesktops) const;
    // The process behind all windows; 0 when there is none.
    std::int32_t desktopOwner = 0;

    // Ordered in, not minimised, on the current space.
    bool isOnScreen(const ServerWindow& window) const;
    // Front to back: everything on screen, or every window there is.
    std::vector<const ServerWindow*> onScreen() const;
    std::vector<const ServerWindow*> all() const;
    // The front window on screen whose frame contains the point and that takes mouse events.
    const ServerWindow* windowAt(const platform::CGPoint& point) const;

    // Anything that a picture of the desktop would show differently.
    platform::Signal<> changed;
    // This window was ordered in or out, on whatever space, or is about to be removed.
    platform::Signal<const ServerWindow&> cameOrWent;
    // Another space is current.
    platform::Signal<> spaceChanged;

    // The number of the next window of a launched application; counts up from firstPanelNumber.
    std::int64_t makePanelNumber() { return nextPanelNumber++; }

private:
    using Order = std::vector<ServerWindow*>;

    Order::iterator placeOf(const ServerWindow& window);
    std::size_t frontOfLevel(int level) const;
    std::size_t backOfLevel(int level) const;
    // Index in the order without the window itself.
    std::size_t destination(const ServerWindow& window, platform::NSWindowOrderingMode mode,
                            std::int64_t relativeTo) const;
    // Takes the window out, asks where to, and puts it in there; answers whether that's another place.
    template <typename Where>
    bool move(ServerWindow& window, Where where);
    void tellContent(const ServerWindow& window) const;

    std::unordered_map<std::int64_t, std::unique_ptr<ServerWindow>> byNumber;
    Order frontToBack;  // by level, then by order
    int space = 1;
    static constexpr int firstOwnSpace = 1000;
    int lastOwnSpace = firstOwnSpace;
    std::map<int, int> desktopOfOwnSpace;
    std::int64_t nextPanelNumber = firstPanelNumber;
};

}  // namespace desk
