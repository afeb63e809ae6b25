// Puts a menu-bar scene up, as long as it lives. It evaluates the content when the item is pressed; the open menu then follows what the content observes, and the content's
// tasks run. With the menu the content goes, and what it kept.
#pragma once

#include <memory>
#include <vector>

#include "platform/Lifetime.h"
#include "platform/Platform.h"
#include "views/Context.h"
#include "views/HostWork.h"
#include "views/MenuBarExtra.h"

namespace views {

class MenuBarExtraHost {
public:
    MenuBarExtraHost(platform::Platform& thePlatform, MenuBarExtra theScene);
    ~MenuBarExtraHost();
    MenuBarExtraHost(const MenuBarExtraHost&) = delete;
    MenuBarExtraHost& operator=(const MenuBarExtraHost&) = delete;

private:
    void open();
    void invalidate();
    void update();
    std::vector<platform::MenuItem> evaluate();

    platform::Platform& platform;
    MenuBarExtra scene;
    const std::shared_ptr<HostLink> link;
    // The entries of the menu hold it.
    std::weak_ptr<View> content;
    HostWork work;
    std::unique_ptr<platform::MenuHandle> menu;
    std::unique_ptr<platform::StatusItem> item;
    bool isScheduled = false;
    platform::Lifetime lifetime;
};

}  // namespace views
