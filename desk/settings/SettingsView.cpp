#include "desk/settings/SettingsView.h"

#include <string>
#include <utility>

#include "desk/look/Icons.h"

namespace desk {

using namespace views;

namespace {

constexpr const char* applicationName = "Orvane";
constexpr double iconSide = 26;

View card(View content) {
    return std::move(content)
        .padding(Edge::horizontal, 12)
        .background(RoundedRectangle(10).fill(Color::of(ColorRole::controlBackground)))
        .overlay(RoundedRectangle(10).strokeBorder(Color::of(ColorRole::primary, 0.08), 1));
}

View row(View name) {
    return HStack({.spacing = 10}, std::move(name), Spacer()).frame({.height = 44});
}

View named(View icon, const char* application) {
    return HStack({.spacing = 10}, std::move(icon), Text(application).font(Font{13}));
}

View switchRow(View name, std::string label, Binding<bool> value) {
    View line = row(std::move(name));
    line.addChildren(View(SwitchNode(std::move(value))).accessibilityLabel(std::move(label)));
    return line;
}

}  // namespace

struct SettingsView::Pane {
    SettingsPane pane;
    const char* title;
    const char* symbol;
    std::uint32_t color;
    const char* explanation;
    View (SettingsView::*content)() const;
};

const SettingsView::Pane SettingsView::panes[] = {
    {SettingsPane::accessibility, "Accessibility", "accessibility", 0x1E88F7,
     "Allow the applications below to control your computer.", &SettingsView::accessibility},
    {SettingsPane::automation, "Automation", "gearshape", 0x8E8E93,
     "Allow the applications below to control other applications.", &SettingsView::automation},
    {SettingsPane::loginItems, "Login Items", "desktopcomputer", 0x8E8E93,
     "Allow the applications below to open when you log in.", &SettingsView::loginItems}};

View SettingsView::body() const {
    View shown = VStack({.alignment = HorizontalAlignment::leading, .spacing = 10});
    for (const Pane& pane : panes) {
        if (pane.pane != model->pane.get()) continue;
        shown.addChildren(Text(pane.title).font(Font{17, FontWeight::semibold}),
                          Text(pane.explanation).font(Font{12}).foregroundStyle(ColorRole::secondary),
                          (this->*pane.content)());
    }
    View side = sidebar();
    return HStack({.spacing = 0}, std::move(side),
                  View(Color::of(ColorRole::separator)).frame({.width = 1, .maxHeight = infinity}),
                  std::move(shown).padding(20).frame(
                      {.maxWidth = infinity, .maxHeight = infinity, .alignment = Alignment::topLeading}));
}

View SettingsView::sidebar() const {
    View list = VStack({.spacing = 2});
    for (const Pane& pane : panes) {
        const bool isShown = pane.pane == model->pane.get();
        View label = HStack({.spacing = 8},
                            Image(pane.symbol)
                                .font(Font{12, FontWeight::medium})
                                .foregroundStyle(ColorRole::white)
                                .frame({.width = 20, .height = 20})
                                .background(RoundedRectangle(5).fill(Color::hex(pane.color))),
                            Text(pane.title).font(Font{13}).lineLimit(1));
        list.addChildren(
            Button([this, shown = pane.pane] { model->pane.setIfChanged(shown); },
                   std::move(label)
                       .frame({.maxWidth = infinity, .alignment = Alignment::leading})
                       .padding(Edge::horizontal, 8)
                       .frame({.height = 30})
                       .background(RoundedRectangle(6).fill(Color::of(ColorRole::primary, isShown ? 0.1 : 0)))));
    }
    return std::move(list)
        .padding(10)
        .frame({.width = 190, .maxHeight = infinity, .alignment = Alignment::top})
        .background(Color::of(ColorRole::primary, 0.03));
}

View SettingsView::application() const {
    return named(Image(icon)
                     .resizable()
                     .interpolation(platform::ImageInterpolation::high)
                     .frame({.width = iconSide, .height = iconSide}),
                 applicationName);
}

View SettingsView::accessibility() const {
    Permissions& permissions = model->permissions;
    return card(switchRow(application(), applicationName,
                          {[&permissions] { return permissions.accessibility; },
                           [&permissions](bool isOn) { permissions.setAccessibility(isOn); }}));
}

// Whoever hasn't asked yet isn't listed.
View SettingsView::automation() const {
    Permissions& permissions = model->permissions;
    if (permissions.automation == AutomationPermission::ask)
        return card(row(Text("No applications have asked.").font(Font{13}).foregroundStyle(ColorRole::secondary)));
    View finder =
        switchRow(named(applicationIcon("Finder", iconSide), "Finder"), "Finder",
                  {[&permissions] { return permissions.automation == AutomationPermission::allowed; },
                   [&permissions](bool isOn) {
                       permissions.setAutomation(isOn ? AutomationPermission::allowed : AutomationPermission::denied);
                   }});
    return card(VStack({.spacing = 0}, row(application()), Divider(), std::move(finder).padding(Edge::leading, 36)));
}

// What the user turns off stays listed.
View SettingsView::loginItems() const {
    using Status = LoginItem::Status;
    LoginItem& item = model->loginItem;
    if (!item.isRegistered())
        return card(row(Text("No applications open at login.").font(Font{13}).foregroundStyle(ColorRole::secondary)));
    return card(switchRow(application(), applicationName,
                          {[&item] { return item.status == Status::enabled; },
                           [&item](bool isOn) { item.setStatus(isOn ? Status::enabled : Status::requiresApproval); }}));
}

}  // namespace desk
