// All ports of one application together, and the Platform that refers to them. It connects each port with the parts of the machine that it answers from and does nothing by itself.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "desk/ports/AccessibilityPort.h"
#include "desk/ports/AnalyticsPort.h"
#include "desk/ports/AppleEventsPort.h"
#include "desk/ports/ApplicationWindows.h"
#include "desk/ports/BundlePort.h"
#include "desk/ports/DefaultsPort.h"
#include "desk/ports/EventsPort.h"
#include "desk/ports/FilesPort.h"
#include "desk/ports/ImagesPort.h"
#include "desk/ports/LoginItemPort.h"
#include "desk/ports/MenusPort.h"
#include "desk/ports/NSApplicationPort.h"
#include "desk/ports/PasteboardPort.h"
#include "desk/ports/UpdaterPort.h"
#include "desk/ports/UuidPort.h"
#include "desk/ports/WindowPort.h"
#include "desk/ports/WindowServerPort.h"
#include "desk/ports/WorkspacePort.h"
#include "desk/processes/ApplicationBackend.h"
#include "desk/text/IcuCollation.h"
#include "desk/text/IcuTextBoundaries.h"

namespace desk {

class Alerts;
class Disk;
class Journal;
class WallClock;

// What the ports answer from, between them.
struct PortNeighbours {
    WallClock& clock;
    Disk& disk;
    Displays& displays;
    WindowStack& windows;
    Processes& processes;
    Activation& activation;
    LaunchServices& launchServices;
    Faults& faults;
    Permissions& permissions;
    Pointer& pointer;
    KeyboardFocus& keyboard;
    Alerts& alerts;
    MenuLayer& menus;
    MenuBar& menuBar;
    Finder& finder;
    FinderScripting& scripting;
    platform::Appearance& appearance;
    std::map<std::string, platform::Dictionary>& defaults;
    std::optional<std::string>& clipboard;
    platform::Calendar& calendar;
    LoginItem& loginItem;
    std::vector<std::string>& analyticsEvents;
    platform::TextSystem& text;
    Journal& journal;
    UpdaterNeighbours updater;
};

class ApplicationPorts final : public ApplicationBackend {
public:
    ApplicationPorts(const PortNeighbours& theNeighbours, LaunchedApplication& theApplication);

    platform::Platform& platform() override { return platformOfIt; }
    void dropShared() override { slots.reset(); }
    void answeredTermination(bool agreed) override;
    void processEnded() override;

    std::optional<platform::NSEvent> runLocalMonitors(const platform::NSEvent& event) override {
        return events.runLocalMonitors(event);
    }
    bool hasGlobalMonitorFor(platform::NSEventType type) const override { return events.hasGlobalMonitorFor(type); }
    void runGlobalMonitors(const platform::NSEvent& event) override { events.runGlobalMonitors(event); }
    void notify(platform::WorkspaceNotification notification) override { workspace.notify(notification); }

    Registrations registrations() const override;

private:
    PortNeighbours neighbours;
    LaunchedApplication& application;
    WorkspacePort workspace;
    WindowServerPort windowServer;
    AccessibilityPort accessibility;
    AppleEventsPort appleEvents;
    EventsPort events;
    NSApplicationPort applicationPort;
    WindowPort windows;
    ApplicationWindows keeper;
    MenusPort menus;
    ImagesPort images;
    IcuTextBoundaries textBoundaries;
    IcuCollation collation;
    FilesPort files;
    DefaultsPort defaults;
    BundlePort bundle;
    LoginItemPort loginItem;
    AnalyticsPort analytics;
    PasteboardPort pasteboard;
    UuidPort uuids;
    UpdaterPort updaters;
    std::unique_ptr<platform::SharedSlots> slots = std::make_unique<platform::SharedSlots>();
    platform::Platform platformOfIt;
};

}  // namespace desk
