// The stand-in Mac: it owns the parts and the applications launched on it, and holds what connects several parts. Everything happens on one
// thread, in virtual time unless it is told otherwise; after each thing done to it from outside, settle() runs what is due.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/disk/Disk.h"
#include "desk/finder/Finder.h"
#include "desk/finder/FinderScripting.h"
#include "desk/input/Input.h"
#include "desk/menus/MenuLayer.h"
#include "desk/menus/ToolTips.h"
#include "desk/processes/Faults.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/Permissions.h"
#include "desk/processes/Processes.h"
#include "desk/time/Scheduler.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowStack.h"
#include "platform/Screens.h"
#include "platform/Text.h"

namespace desk {

// Opened with another application.
struct OpenedFiles {
    std::string application;
    std::vector<std::string> urls;
};

class Machine {
public:
    // It is 2024-06-03 09:00:00 UTC; Finder runs, is frontmost and has no window; one display of 1440 by 900.
    explicit Machine(platform::TextSystem& theText);
    ~Machine();
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    Scheduler scheduler;
    Disk disk;
    Displays displays;
    Processes processes;
    WindowStack windows;
    Faults faults;
    Permissions permissions;
    Input input;
    MenuLayer menus;
    ToolTips toolTips;
    Finder finder;
    FinderScripting scripting;
    platform::Appearance appearance;
    std::optional<std::string> clipboard;
    std::vector<OpenedFiles> opened;
    std::deque<SentScript> sentScripts;  // the last 20
    platform::TextSystem& text;

    // Starts a copy; its launch callbacks run when the machine next settles.
    LaunchedApplication& launch(const std::string& bundlePath, const ApplicationImage& image,
                                const ProgramFactory& factory);
    const std::vector<std::unique_ptr<LaunchedApplication>>& applications() const { return running; }
    LaunchedApplication* application(std::int32_t processIdentifier) const;

    // Set by who has programs to run: starts the one of the bundle at that path; false leaves it to the desk to play the application.
    std::function<bool(const std::string& bundlePath)> startProgram;

    // Another process with one ordinary window, behind all others.
    void startOtherProcess(const std::string& bundleIdentifier);
    // Later in this instant: the application is started if it doesn't run, shows a window for each file or folder, and comes to the front. Nothing happens when one of the
    // files or the application isn't there.
    void openFiles(const std::vector<std::string>& paths, const std::string& applicationPath);
    // Files with the application that documents belong to; nothing happens without one.
    void openDocuments(const std::vector<std::string>& paths);
    // The application at that path, as from the Dock: it is started if it doesn't run, has a window, and comes to the front with all it has.
    void openApplication(const std::string& applicationPath);
    // By bundle identifier, all windows forward, as a person switches applications; false when it doesn't run.
    bool activate(const std::string& bundleIdentifier);
    // `allWindows` false brings only the main window forward.
    void activate(std::int32_t processIdentifier, bool allWindows);
    void switchToSpace(int space);

    // From now on its time is the host's; see Scheduler.
    void useRealTime(RealTime& realTime);
    void settle();
    void advance(platform::Duration duration);
    double secondsSinceStart() const;

    // The system prompt for Automation, while it is up; pressing one of its buttons by label.
    std::optional<SystemAlert> alert() const;
    bool pressAlertButton(const std::string& label);

    // Destroys applications that have terminated and have no call on the stack.
    void reap();

private:
    void notifyApplications(platform::WorkspaceNotification notification);
    void frontmostHasChanged();
    std::int64_t mainWindow(std::int32_t processIdentifier) const;
    bool hasWindow(std::int32_t processIdentifier) const;
    void addForeignWindow(std::int32_t owner, const std::string& title, const platform::CGRect& frame,
                          platform::NSWindowOrderingMode place);

    platform::Date start;
    std::int64_t nextOtherNumber;
    std::vector<platform::Token> subscriptions;
    std::vector<std::unique_ptr<LaunchedApplication>> running;
};

}  // namespace desk
