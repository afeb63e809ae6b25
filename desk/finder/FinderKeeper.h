// Finder towards mouse and keyboard: what its windows' frames may do, and which part of Finder an event is for. It changes nothing itself: it asks Finder,
// as scripts and menus do.
#pragma once

#include "desk/finder/FinderKeys.h"
#include "desk/finder/FinderMouse.h"
#include "desk/finder/FinderNeighbours.h"
#include "desk/windows/WindowKeeper.h"

namespace desk {

class Finder;

class FinderKeeper final : public WindowKeeper {
public:
    FinderKeeper(Finder& theFinder, const FinderNeighbours& theNeighbours)
        : finder(theFinder), neighbours(theNeighbours), mouse(theFinder, theNeighbours), keys(theFinder) {}

    WindowTraits traits(std::int64_t window) const override;
    void bringForward(std::int64_t window) override;
    // Without any folder window it shows the home folder.
    void reopen() override;
    void close(std::int64_t window) override;
    void minimize(std::int64_t window) override;
    void restore(std::int64_t window) override;
    void zoom(std::int64_t window) override;
    // In and out of full screen.
    void pressZoomButton(std::int64_t window) override;
    void setFrame(std::int64_t window, const platform::CGRect& frame) override;
    bool hasContentInTitleBar(std::int64_t window, const platform::CGPoint& point) const override;
    void handle(std::int64_t window, const platform::NSEvent& event) override;
    void letGo() override { mouse.letGo(); }

private:
    Finder& finder;
    FinderNeighbours neighbours;
    FinderMouse mouse;
    FinderKeys keys;
};

}  // namespace desk
