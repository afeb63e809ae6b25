#include "desk/finder/FinderKeeper.h"

#include <algorithm>

#include "desk/disk/Disk.h"
#include "desk/finder/Finder.h"
#include "desk/finder/FinderBrowser.h"
#include "desk/processes/Activation.h"
#include "desk/processes/Processes.h"
#include "desk/windows/WindowFrame.h"
#include "desk/windows/WindowStack.h"

namespace desk {

namespace {

constexpr platform::CGSize leastFinderWindow{320, 200};

}  // namespace

WindowTraits FinderKeeper::traits(std::int64_t window) const {
    WindowTraits traits{platform::NSWindowStyleMask::titled | everyWindowButton, leastFinderWindow};
    const FinderWindow* shown = finder.find(window);
    traits.isFullScreen = shown != nullptr && shown->fullScreen;
    return traits;
}

void FinderKeeper::bringForward(std::int64_t window) {
    if (window == 0) return neighbours.processes.activate(finder.pid());
    // Raised before the activation too, so that this is the window which the activation finds in front.
    neighbours.windows.raise(window);
    if (!finder.isFrontmost()) {
        neighbours.activation.activate(finder.pid(), false);
        neighbours.windows.raise(window);
    }
    finder.mainWindowMayHaveChanged();
}

void FinderKeeper::reopen() {
    const auto windows = finder.windows();
    const bool showsFolder = std::any_of(windows.begin(), windows.end(), [](const FinderWindow* window) {
        return window->kind == FinderWindowKind::folder;
    });
    if (!showsFolder) finder.open(neighbours.disk.home());
}

void FinderKeeper::close(std::int64_t window) {
    finder.close(window);
}

void FinderKeeper::minimize(std::int64_t window) {
    finder.minimize(window);
}

void FinderKeeper::restore(std::int64_t window) {
    neighbours.activation.activate(finder.pid(), false);
    finder.restore(window);
}

void FinderKeeper::zoom(std::int64_t window) {
    finder.zoom(window);
}

void FinderKeeper::pressZoomButton(std::int64_t window) {
    const FinderWindow* shown = finder.find(window);
    if (shown != nullptr) finder.setFullScreen(window, !shown->fullScreen);
}

void FinderKeeper::setFrame(std::int64_t window, const platform::CGRect& frame) {
    finder.setFrame(window, frame);
}

bool FinderKeeper::hasContentInTitleBar(std::int64_t window, const platform::CGPoint& point) const {
    const FinderWindow* shown = finder.find(window);
    if (shown == nullptr || shown->kind != FinderWindowKind::folder) return false;
    return hitAt(finder.browser().parts(*shown), point).part != FinderPart::titleBar;
}

void FinderKeeper::handle(std::int64_t window, const platform::NSEvent& event) {
    if (event.type == platform::NSEventType::keyDown)
        keys.keyDown(event);
    else
        mouse.handle(window, event);
}

}  // namespace desk
