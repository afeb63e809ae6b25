// Everything the system asks of the operating system, for one launched application: a struct of references that the backend fills and that is
// handed to every class as its first constructor argument. There are no globals: objects that are shared within an application lie in slots here.
#pragma once

#include <memory>
#include <typeindex>
#include <utility>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/AnalyticsSDK.h"
#include "platform/AppleEvents.h"
#include "platform/Application.h"
#include "platform/Bundle.h"
#include "platform/Calendar.h"
#include "platform/Collation.h"
#include "platform/Defaults.h"
#include "platform/Dispatch.h"
#include "platform/Events.h"
#include "platform/Files.h"
#include "platform/Images.h"
#include "platform/LoginItems.h"
#include "platform/Menus.h"
#include "platform/Pasteboard.h"
#include "platform/RunLoop.h"
#include "platform/Screens.h"
#include "platform/Text.h"
#include "platform/TextBoundaries.h"
#include "platform/Time.h"
#include "platform/Updater.h"
#include "platform/Uuid.h"
#include "platform/WindowServer.h"
#include "platform/Windows.h"
#include "platform/Workspace.h"

namespace platform {

// Objects by type, made on first use and destroyed in reverse order of making.
class SharedSlots {
public:
    SharedSlots() = default;
    SharedSlots(const SharedSlots&) = delete;
    SharedSlots& operator=(const SharedSlots&) = delete;
    ~SharedSlots() {
        while (!slots.empty()) slots.pop_back();
    }

    template <typename T, typename Make>
    T& get(Make make) {
        for (const auto& [type, object] : slots)
            if (type == typeid(T)) return *static_cast<T*>(object.get());
        std::shared_ptr<T> object = make();
        slots.emplace_back(typeid(T), object);
        return *object;
    }

private:
    std::vector<std::pair<std::type_index, std::shared_ptr<void>>> slots;
};

struct Platform {
    Clock& clock;
    Dispatch& dispatch;
    RunLoop& runLoop;
    Workspace& workspace;
    Screens& screens;
    Appearance& appearance;
    WindowServer& windowServer;
    Accessibility& accessibility;
    AppleEvents& appleEvents;
    Events& events;
    NSApplication& application;
    WindowSystem& windows;
    Menus& menus;
    TextSystem& text;
    ImageSystem& images;
    TextBoundaries& textBoundaries;
    Collation& collation;
    NSFileManager& files;
    NSUserDefaults& defaults;
    NSBundle& bundle;
    Calendar& calendar;
    SMAppService& loginItem;
    AnalyticsSDK& analytics;
    NSPasteboard& pasteboard;
    UUIDSource& uuids;
    UpdaterFramework& updaters;
    SharedSlots& slots;

    // The one T of this application; T is made from the Platform on first use.
    template <typename T>
    T& shared() {
        return slots.get<T>([this] { return std::make_shared<T>(*this); });
    }
};

}  // namespace platform
