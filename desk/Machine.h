// The stand-in Mac: it owns the parts and the applications launched on it, and holds what connects several parts. Everything happens on one
// thread, in virtual time unless it is told otherwise; after each thing done to it from outside, settle() runs what is due.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/disk/Disk.h"
#include "desk/finder/Finder.h"
#include "desk/finder/FinderScripting.h"
#include "desk/input/Input.h"
#include "desk/input/WindowSurface.h"
#include "desk/menus/MenuBar.h"
#include "desk/menus/MenuLayer.h"
#include "desk/menus/ToolTips.h"
#include "desk/processes/Activation.h"
#include "desk/processes/Alerts.h"
#include "desk/processes/Applications.h"
#include "desk/processes/Faults.h"
#include "desk/processes/Journal.h"
#include "desk/processes/KeyboardFocus.h"
#include "desk/processes/LaunchServices.h"
#include "desk/processes/LoginItem.h"
#include "desk/processes/Permissions.h"
#include "desk/processes/Processes.h"
#include "desk/processes/SketchedWindows.h"
#include "desk/processes/WindowJournal.h"
#include "desk/settings/SystemSettings.h"
#include "desk/system/AlertSurface.h"
#include "desk/system/Dock.h"
#include "desk/text/IcuCalendar.h"
#include "desk/time/Scheduler.h"
#include "desk/time/WallClock.h"
#include "desk/updates/UpdateFeed.h"
#include "desk/windows/Displays.h"
#include "desk/windows/Pointer.h"
#include "desk/windows/WindowStack.h"
#include "platform/Screens.h"
#include "platform/Text.h"

namespace desk {

class Machine {
public:
    // It is 2024-06-03 09:00:00 UTC; Finder runs, is frontmost and has no window; one display of 1440 by 900.
    explicit Machine(platform::TextSystem& theText);
    ~Machine();
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    Scheduler scheduler;
    WallClock clock{scheduler};
    Journal journal{scheduler};
    Disk disk;
    Displays displays;
    WindowStack windows;
    SketchedWindows sketchedWindows;
    WindowJournal windowJournal{windows, journal};
    Processes processes;
    Activation activation;
    KeyboardFocus keyboard;
    Pointer pointer;
    LaunchServices launchServices;
    Faults faults;
    Alerts alerts;
    Permissions permissions{alerts};
    UpdateFeed updateFeed{disk};
    platform::TextSystem& text;
    platform::Appearance appearance;
    Finder finder;
    FinderScripting scripting;
    // Stored user defaults by domain: a bundle identifier, or the path of a bundle without one. They outlive processes.
    std::map<std::string, platform::Dictionary> defaults;
    std::optional<std::string> clipboard;
    IcuCalendar calendar;
    LoginItem loginItem;
    // The names of those handed to the analytics SDK, by any process, in order.
    std::vector<std::string> analyticsEvents;
    SystemSettings systemSettings;

    // What stands on the screens, front to back.
    AlertSurface alertSurface;
    ToolTips toolTips;
    MenuLayer menus;
    MenuBar menuBar;
    Dock dock;
    WindowSurface windowSurface;
    Input input;

    // The first to go: what applications hold they take out of the parts above.
    Applications applications;

    // From now on its time is the host's; see Scheduler.
    void useRealTime(RealTime& realTime);
    void settle();
    void advance(platform::Duration duration);
    double secondsSinceStart() const { return secondsAt(scheduler.now()); }
    // Since the start.
    double secondsAt(platform::Date time) const { return platform::inSeconds(time - start); }

private:
    FinderNeighbours neighboursOfFinder();
    std::unique_ptr<ApplicationBackend> makePorts(LaunchedApplication& application);
    void frontmostHasChanged();
    void spaceHasChanged();

    platform::Date start;
    std::vector<platform::Token> subscriptions;
};

}  // namespace desk
