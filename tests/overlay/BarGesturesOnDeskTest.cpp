// Gestures on bars as a person makes them, with the whole system running.
#include <gtest/gtest.h>

#include "tests/kit/MachineKit.h"

namespace brindle {
namespace {

class BarGesturesOnDeskTest : public testing::Test {
protected:
    BarGesturesOnDeskTest() {
        mac.twoWindows();
        mac.launch();
        mac.run(2);
    }
    FinderOverlayWindowController& overlay(const std::string& id) {
        return *mac.orvane().appDelegate.coordinator()->liveControllers().at(id);
    }
    platform::CGRect publishedFrame(const std::string& id) {
        for (const auto& state : mac.orvane().appDelegate.finderObserver().windows.get())
            if (state.id == id) return state.frame;
        return platform::CGRectNull;
    }

    kit::OrvaneDesk mac;
};

TEST_F(BarGesturesOnDeskTest, ADragByTheBrandMovesTheWindowWithoutDriftAndWithoutActivatingTheApplication) {
    mac.drag({450, 520}, {513, 487}, 10, 0.5);
    mac.run(2);
    EXPECT_EQ(publishedFrame("finder-102"), platform::CGRectMake(463, 67, 700, 400));
    EXPECT_EQ(overlay("finder-102").panel->frame(), platform::CGRectMake(463, 467, 700, 44));
    EXPECT_EQ(mac.machine.processes.frontmost()->bundleIdentifier, "com.apple.finder");
}

TEST_F(BarGesturesOnDeskTest, APressOnTheBarOfAWindowBehindBringsItForward) {
    mac.press({150, 720});
    mac.release({150, 720});
    mac.run(2);
    EXPECT_EQ(mac.orvane().appDelegate.finderObserver().activeWindow.get()->id, "finder-101");
    EXPECT_TRUE(overlay("finder-101").viewModel->isActive.get());
    EXPECT_EQ(overlay("finder-102").panel->level(), platform::NSNormalWindowLevel);
}

TEST_F(BarGesturesOnDeskTest, AWindowThatClosesUnderTheMouseTakesItsBarAlong) {
    mac.then([this] { mac.machine.input.mouseDown({450, 520}, desk::MouseButton::left); });
    mac.then([this] { mac.machine.finder.close(102); });
    mac.then([this] { mac.run(2); });
    mac.dragTo({460, 530});
    EXPECT_FALSE(mac.orvane().appDelegate.coordinator()->liveControllers().contains("finder-102"));
    mac.release({460, 530});
    mac.run(2);
    EXPECT_EQ(mac.application().registrations().windows, 1u);
}

}  // namespace
}  // namespace brindle
