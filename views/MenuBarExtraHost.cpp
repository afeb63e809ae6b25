#include "views/MenuBarExtraHost.h"

#include <utility>

#include "views/AccessibilityElement.h"
#include "views/MenuItems.h"
#include "views/Reconciler.h"

namespace views {

namespace {

struct ShownLabel {
    platform::NSImage image;
    AccessibilityElement element;

    void read(const View& view) {
        view.node->describe(element);
        if (const platform::NSImage* picture = view.node->shownPicture()) image = *picture;
        for (const View& child : view.children) read(child);
    }
};

}  // namespace

MenuBarExtraHost::MenuBarExtraHost(platform::Platform& thePlatform, MenuBarExtra theScene)
    : platform(thePlatform),
      scene(std::move(theScene)),
      link(std::make_shared<HostLink>(HostLink{thePlatform, [this] { invalidate(); }})) {
    Reconciler(link, work).update(scene.label, nullptr);
    ShownLabel shown;
    shown.read(scene.label);
    item = platform.menus.addStatusItem(shown.image, shown.element.label, lifetime.guard([this] { open(); }));
}

MenuBarExtraHost::~MenuBarExtraHost() {
    link->invalidate = nullptr;
}

void MenuBarExtraHost::open() {
    content.reset();
    menu = item->popUpMenu(evaluate());
    platform.runLoop.atEndOfTurn(lifetime.guard([this] { work.runTasks(true); }));
}

void MenuBarExtraHost::invalidate() {
    if (std::exchange(isScheduled, true)) return;
    platform.runLoop.atEndOfTurn(lifetime.guard([this] { update(); }));
}

void MenuBarExtraHost::update() {
    isScheduled = false;
    if (content.expired()) return;
    menu->update(evaluate());
    work.runTasks(true);
    const auto keptContent = content.lock();
    work.runChanges();
}

std::vector<platform::MenuItem> MenuBarExtraHost::evaluate() {
    const auto before = content.lock();
    const auto fresh = std::make_shared<View>(scene.content());
    Reconciler(link, work).update(*fresh, before.get());
    content = fresh;
    std::vector<platform::MenuItem> items = menuItems(*fresh);
    for (platform::MenuItem& entry : items)
        entry.action = lifetime.guard([kept = fresh, action = std::move(entry.action)] {
            if (action) action();
        });
    return items;
}

}  // namespace views
