// The copy button says what it does when the mouse rests on it.
#include <gtest/gtest.h>

#include "tests/kit/MachineKit.h"

namespace brindle {
namespace {

TEST(ToolTipOnDesk, ComesAfterASecondOfRestAndGoesWithThePointerThePressOrTheKey) {
    kit::OrvaneDesk mac;
    mac.twoWindows();
    mac.launch();
    mac.run(2);
    const platform::CGPoint copyButton{1076, 522};
    const auto text = [&] {
        const auto shown = mac.machine.toolTips.shown();
        return shown ? shown->text : std::string();
    };

    mac.moveTo(copyButton);
    mac.run(0.9);
    EXPECT_EQ(text(), "");
    mac.run(0.2);
    EXPECT_EQ(text(), "Copy Current Path");
    mac.moveTo({1078, 524});
    EXPECT_EQ(text(), "Copy Current Path");
    mac.moveTo({800, 522});
    EXPECT_EQ(text(), "");
    mac.run(2);
    EXPECT_EQ(text(), "");

    mac.moveTo(copyButton);
    mac.run(1.5);
    mac.machine.finder.raise(101);
    mac.machine.finder.setFrame(101, platform::CGRectMake(600, 300, 800, 500));
    mac.run(1);
    EXPECT_EQ(text(), "") << "another window covers the button";
    mac.machine.finder.close(101);
    mac.run(1);
    mac.moveTo(copyButton);
    mac.run(1.5);
    EXPECT_EQ(text(), "Copy Current Path");
    mac.press(copyButton);
    EXPECT_EQ(text(), "");
    mac.release(copyButton);
    mac.moveTo({1077, 523});
    mac.run(3);
    EXPECT_EQ(text(), "") << "the mouse hasn't left the button since the press";
    mac.moveTo({800, 522});
    mac.moveTo(copyButton);
    mac.run(1.5);
    EXPECT_EQ(text(), "Copy Current Path");
}

}  // namespace
}  // namespace brindle
