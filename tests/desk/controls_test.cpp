// Controls in a window of an application, under the mouse and the keyboard of a desk: what reacts, how it looks meanwhile, what is said about it.
#include <gtest/gtest.h>

#include "tests/desk/Probe.h"
#include "views/Views.h"

namespace {

using namespace views;
using platform::CGPoint;

struct Form {
    std::vector<std::string>* log;

    View body() const {
        const auto says = [this](const char* what) { return [all = log, what] { all->emplace_back(what); }; };
        return VStack({.spacing = 4}, Button("Cancel", says("cancel")),
                      Button("Send", says("send")).keyboardShortcut(KeyboardShortcut::defaultAction),
                      Button("Never", says("never")).disabled(true), Link("Website", "https://example.org/a"),
                      ScrollView(LazyRows({.count = 100, .rowHeight = 20},
                                          [this](std::size_t row) {
                                              return Button(std::to_string(row), [this, row] {
                                                  log->push_back("row " + std::to_string(row));
                                              });
                                          }))
                          .frame({.width = 100, .height = 50}))
            .buttonStyle(ButtonStyle::bordered);
    }
};

class ControlsTest : public testing::Test {
protected:
    ControlsTest() {
        panel = probe.panel(platform::CGRectMake(100, 300, 200, 240));
        auto made = std::make_unique<NSHostingView<Form>>(probe.platform, Form{&log});
        host = made.get();
        panel->setContentView(std::move(made));
        panel->makeKeyWindow();
        desk.run(0.1);
    }

    const AccessibilityElement& element(const std::string& label) {
        elements = host->elements();
        return *std::find_if(elements.begin(), elements.end(), [&](const auto& each) { return each.label == label; });
    }
    // On the screen, in the middle of what is called so.
    CGPoint at(const std::string& label) {
        const CGRect frame = element(label).frame;
        return panel->convertPointToScreen({frame.midX(), 240 - frame.midY()});
    }
    std::vector<std::string> rows() {
        std::vector<std::string> shown;
        for (const auto& each : host->elements())
            if (each.label.size() < 3) shown.push_back(each.label);
        return shown;
    }
    std::size_t strokes() { return host->drawing().operations.size(); }

    kit::Desk desk;
    kit::Probe& probe = kit::launchProbe(desk);
    std::vector<std::string> log;
    std::shared_ptr<kit::RecordingPanel> panel;
    HostingView* host = nullptr;
    std::vector<AccessibilityElement> elements;
};

TEST_F(ControlsTest, ReactToClicksAndReturnUnlessTheyAreDisabled) {
    for (const char* label : {"Cancel", "Send", "Never", "Website"}) desk.click(at(label));
    desk.key("return");
    EXPECT_EQ(log, (std::vector<std::string>{"cancel", "send", "send"}));
    ASSERT_EQ(desk.machine.launchServices.opened().size(), 1U);
    EXPECT_EQ(desk.machine.launchServices.opened()[0].urls, std::vector<std::string>{"https://example.org/a"});
}

TEST_F(ControlsTest, ShowAPressWhileTheMouseIsOverThem) {
    const std::size_t before = strokes();
    const CGPoint button = at("Cancel");
    desk.press(button);
    EXPECT_EQ(strokes(), before + 1);
    desk.dragTo({button.x, button.y + 60});
    EXPECT_EQ(strokes(), before);
    desk.release({button.x, button.y + 60});
    desk.press(at("Never"));
    EXPECT_EQ(strokes(), before);
    EXPECT_TRUE(log.empty());
}

TEST_F(ControlsTest, SayWhatTheyAre) {
    struct Expected {
        const char* label;
        AccessibilityRole role;
        bool isEnabled, isDefault, isVisible;
    };
    for (const Expected& each : {Expected{"Cancel", AccessibilityRole::button, true, false, true},
                                 Expected{"Send", AccessibilityRole::button, true, true, true},
                                 Expected{"Never", AccessibilityRole::button, false, false, true},
                                 Expected{"Website", AccessibilityRole::link, true, false, true}}) {
        const AccessibilityElement& said = element(each.label);
        EXPECT_EQ(said.role, each.role) << each.label;
        EXPECT_EQ(said.texts, std::vector<std::string>{each.label});
        EXPECT_EQ(said.isEnabled, each.isEnabled) << each.label;
        EXPECT_EQ(said.isDefault, each.isDefault) << each.label;
        EXPECT_EQ(said.isVisible, each.isVisible) << each.label;
    }
}

TEST_F(ControlsTest, AListMakesOnlyTheRowsInSightAndScrollsToItsEnds) {
    using Rows = std::vector<std::string>;
    EXPECT_EQ(rows(), (Rows{"0", "1", "2"}));
    const CGPoint row = at("1");
    const auto wheel = [&](double delta) { desk.play([&] { desk.machine.input.scrollWheel(row, 0, delta); }); };
    wheel(30);
    EXPECT_EQ(rows(), (Rows{"0", "1", "2"})) << "it is at its beginning";
    wheel(-30);
    EXPECT_EQ(rows(), (Rows{"1", "2", "3"}));
    desk.click(row);
    desk.click({row.x, row.y + 32});  // above the list, where the row before has gone
    wheel(-1e6);
    EXPECT_EQ(rows(), (Rows{"97", "98", "99"}));
    EXPECT_EQ(log, Rows{"row 3"});
}

}  // namespace
