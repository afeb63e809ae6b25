// Finder of the stand-in Mac: windows on real folders, front to back, and what a person or a script does to them. Frames and stacking lie in the
// WindowStack under the same numbers; this class keeps both in step and posts Accessibility notifications for what changes. Operations on a number that
// isn't a window of Finder's answer false; info panels can only be closed, raised, moved and put on another space.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/finder/FinderNeighbours.h"
#include "desk/finder/FinderWindow.h"
#include "platform/Geometry.h"
#include "platform/Token.h"

namespace platform {
struct NSScreen;
}

namespace desk {

class FinderAccessibility;
class FinderBrowser;
class FinderKeeper;

class Finder {
public:
    explicit Finder(const FinderNeighbours& theNeighbours);
    ~Finder();

    // The process; its windows go with it. The bundle identifier is com.apple.finder.
    void launch();
    void quit();
    bool isRunning() const { return processIdentifier != 0; }
    std::int32_t pid() const { return processIdentifier; }

    // Answer the window's number, or nothing when the path is no folder or Finder doesn't run. Numbers count up from 101 and are never reused. The new window stands in front
    // of Finder's others; opening doesn't activate Finder. Without a frame the windows cascade.
    std::optional<std::int64_t> open(const std::string& path, std::optional<platform::CGRect> frame = std::nullopt);
    std::optional<std::int64_t> openVirtual(const std::string& name,
                                            std::optional<platform::CGRect> frame = std::nullopt);
    std::optional<std::int64_t> openInfoPanel(const std::string& path);

    bool close(std::int64_t number);
    bool minimize(std::int64_t number);
    bool restore(std::int64_t number);
    // In front of Finder's other windows, and of all windows when Finder is frontmost. Neither its space nor its being minimised changes.
    bool raise(std::int64_t number);
    bool go(std::int64_t number, const std::string& path);
    bool goVirtual(std::int64_t number, const std::string& name);
    // Back or forward: what go() and goVirtual() showed before.
    bool revisit(std::int64_t number, const std::optional<std::string>& target, const std::string& name);
    // False when one of the items isn't there.
    bool select(std::int64_t number, const std::vector<std::string>& paths);
    // Paths from the window's own list, of which there can be many, aren't looked for.
    void selectListed(std::int64_t number, std::vector<std::string> paths);
    // Not of a full-screen window, which fills its screen.
    bool setFrame(std::int64_t number, const platform::CGRect& frame);
    // A full-screen window fills its screen, in a space of its own which becomes current; it goes back to where it was.
    bool setFullScreen(std::int64_t number, bool fullScreen);
    // As large as the screen has room for, and back.
    bool zoom(std::int64_t number);
    bool setSpace(std::int64_t number, int space);

    // Folder windows and info panels: those on screen front to back, then those of other spaces, then minimised ones. Selected items that have
    // vanished from the disk are left out of what is answered.
    std::vector<const FinderWindow*> windows() const;
    const FinderWindow* find(std::int64_t number) const;
    // The frontmost folder window that is on screen.
    const FinderWindow* front() const;
    // The window that is main and focused: the front folder window on screen, 0 without any.
    std::int64_t mainWindow() const;

    // What has changed may have another window be the main one; Accessibility hears of it.
    void mainWindowMayHaveChanged();
    bool isFrontmost() const;
    // On the current space and not minimised.
    bool isOnScreen(const FinderWindow& window) const;
    // The user's home folder.
    std::string home() const;

    FinderAccessibility& accessibility() { return *tree; }
    FinderBrowser& browser() { return *inside; }

private:
    friend class FinderAccessibility;

    // Cheap: they leave the selection as it is.
    const FinderWindow* entry(std::int64_t number) const;
    FinderWindow* entry(std::int64_t number);
    FinderWindow* folderWindow(std::int64_t number);
    void dropVanishedSelection(FinderWindow& window) const;
    void show(FinderWindow& window, const std::optional<std::string>& target, const std::string& name);

    std::optional<std::int64_t> add(FinderWindow window, std::optional<platform::CGRect> frame);
    platform::CGRect defaultFrame(const FinderWindow& window) const;
    bool isFolder(const std::string& path) const;
    void bringForward(std::int64_t number);
    void placeAmongOthers(std::int64_t number);
    void moveTo(std::int64_t number, const platform::CGRect& frame);
    void setMinimized(FinderWindow& window, bool minimized);
    // The one that shows most of the window; null without displays.
    const platform::NSScreen* screenOf(std::int64_t number) const;
    bool enterFullScreen(FinderWindow& window);
    void leaveFullScreen(FinderWindow& window);
    void refitFullScreenWindows();
    std::int64_t findMainWindow() const;
    void stackChanged();

    FinderNeighbours neighbours;
    std::unique_ptr<FinderAccessibility> tree;
    std::unique_ptr<FinderBrowser> inside;
    std::unique_ptr<FinderKeeper> keeper;
    mutable std::vector<FinderWindow> list;  // by number
    std::int32_t processIdentifier = 0;
    std::int64_t nextNumber;

    std::int64_t announcedMainWindow = 0;
    mutable std::optional<std::int64_t> knownMainWindow;  // until the window stack changes
    bool willCheckMainWindow = false;
    std::vector<platform::Token> subscriptions;
};

}  // namespace desk
