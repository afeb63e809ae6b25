// The switch: it turns with a click on itself, not on its label, and says how it is set.
#include <gtest/gtest.h>

#include "tests/kit/ViewPlatform.h"
#include "views/Views.h"

namespace {

using namespace views;

struct Model : platform::ObservableObject {
    platform::Published<bool> isOn{*this, false};
};

struct Settings {
    platform::Published<bool>* isOn;
    bool isDisabled;
    View body() const { return Toggle("Launch at login", Binding<bool>::to(*isOn)).disabled(isDisabled); }
};

TEST(Toggle, TurnsWithAClickOnTheSwitch) {
    kit::ViewPlatform machine;
    Model model;
    for (const bool isDisabled : {false, true}) {
        NSHostingView<Settings> host(machine.platform, Settings{&model.isOn, isDisabled});
        host.setSize({300, 40});
        machine.endTurn();
        const auto elements = host.elements();
        ASSERT_EQ(elements.size(), 2U);
        const AccessibilityElement& control = elements[1];
        EXPECT_EQ(control.role, AccessibilityRole::switchControl);
        EXPECT_EQ(control.label, "Launch at login");
        EXPECT_EQ(control.isOn, model.isOn.get());
        EXPECT_EQ(control.isEnabled, !isDisabled);
        for (const AccessibilityElement& each : elements) {
            platform::NSEvent event;
            event.locationInWindow = {each.frame.midX(), 40 - each.frame.midY()};
            event.type = platform::NSEventType::leftMouseDown;
            host.handleEvent(event);
            event.type = platform::NSEventType::leftMouseUp;
            host.handleEvent(event);
        }
        EXPECT_TRUE(model.isOn.get()) << "turned once by the switch, not by the label, not while disabled";
        EXPECT_EQ(host.drawing().operations.size(), 3U);
    }
}

}  // namespace
