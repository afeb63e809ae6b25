// The guide on a whole desk: where everything is, in every state of the two permissions, and what is left of it when it is closed or its process ends.
#include <gtest/gtest.h>

#include <algorithm>
#include <variant>

#include "tests/kit/MachineKit.h"
#include "tests/kit/PaintedShapes.h"

namespace brindle {
namespace {

using desk::AutomationPermission;
using kit::shapes;
using platform::CGRect;
using platform::seconds;

class OnboardingTest : public testing::Test {
protected:
    kit::OrvaneDesk mac;

    void launch(bool isTrusted, AutomationPermission automation = AutomationPermission::ask) {
        mac.machine.permissions.setAccessibility(isTrusted);
        mac.machine.permissions.setAutomation(automation);
        mac.machine.defaults[domain].erase(finished);
        mac.launch();
    }
    platform::NSWindow* guide() {
        for (const auto& [number, window] : mac.application().windows())
            if (window->settings().title == "Welcome to Orvane" && window->isVisible()) return window;
        return nullptr;
    }
    const platform::Drawing& drawing() { return guide()->contentView()->drawing(); }
    std::optional<bool> stored() {
        const auto* value = platform::find(mac.machine.defaults[domain], finished);
        return value == nullptr ? std::nullopt : value->boolean();
    }
    std::ptrdiff_t journalled(const std::string& what) {
        const auto& entries = mac.machine.journal.entries();
        return std::count_if(entries.begin(), entries.end(), [&](const auto& entry) { return entry.what == what; });
    }
    std::ptrdiff_t checks() { return journalled("automation query") + journalled("automation request"); }

    const std::string domain = "com.velmora.Brindle";
    const std::string finished = "hasCompletedOnboardingV1";
};

// From the numbers that the guide is made of. All of it is 527 points high: 6.5 remain above and below.
TEST_F(OnboardingTest, EverythingIsWhereItBelongs) {
    launch(false);
    EXPECT_EQ(shapes(drawing()), (std::vector<std::string>{
                                     "window 1 at 0 0 is 620 540 round 0",
                                     "icon primary 1 at 272 6.5 is 76 76 round 0",
                                     "control 1 at 24 166.5 is 572 120 round 12",  // 6.5 + 76 + 8 + 30 + 8 + 16 + 22
                                     "orange 1 at 40 182.5 is 30 30 round 15",
                                     "control 1 at 84 240.5 is 270 30 round 7",  // 182.5 + 18 + 5 + two lines of 15 + 5
                                     "icon primary 1 at 218.5 247.5 is 16 16 round 0",
                                     "accent 1 at 289 247 is 30 17 round 8.5",
                                     "shadowed white 1 at 304 249 is 13 13 round 6.5",
                                     "line primary 0.09 at 84 240.5 is 270 30 round 7 wide 1",
                                     "orange 0.12 at 480 182.5 is 100 22 round 11",
                                     "control 1 at 473.5 211.5 is 106.5 22 round 6",  // 182.5 + 22 + 7
                                     "line separator 1 at 474 212 is 105.5 21 round 5.5 wide 1",
                                     "line primary 0.08 at 24 166.5 is 572 120 round 12 wide 1",
                                     "control 1 at 24 298.5 is 572 141 round 12",  // 166.5 + 120 + 12
                                     "orange 1 at 40 314.5 is 30 30 round 15",
                                     "control 1 at 84 372.5 is 270 51 round 7",
                                     "icon primary 1 at 93 377 is 16 16 round 0",
                                     "separator 1 at 116 397.5 is 229 1 round 0",  // 84 + 9 + 23, up to 84 + 270 - 9
                                     "accent 1 at 315 402.5 is 30 17 round 8.5",
                                     "shadowed white 1 at 330 404.5 is 13 13 round 6.5",
                                     "line primary 0.09 at 84 372.5 is 270 51 round 7 wide 1",
                                     "orange 0.12 at 480 314.5 is 100 22 round 11",
                                     "control 1 at 432.5 343.5 is 147.5 22 round 6",
                                     "line separator 1 at 433 344 is 146.5 21 round 5.5 wide 1",
                                     "line primary 0.08 at 24 298.5 is 572 141 round 12 wide 1",
                                     "separator 1 at 24 488.5 is 572 1 round 0",  // 298.5 + 141 + 12 + 15 + 22
                                     "accent 1 at 537 511.5 is 59 22 round 6",
                                 }));
}

// Texts and symbols by their own rectangles: none is outside the padding at the sides, none on another.
TEST_F(OnboardingTest, NothingIsCutAndNothingTouches) {
    launch(false);
    struct State {
        bool isTrusted;
        AutomationPermission automation;
        std::optional<std::int32_t> code;
    };
    for (const State& state : {State{false, AutomationPermission::ask, {}},
                               {true, AutomationPermission::ask, {}},
                               {true, AutomationPermission::denied, {}},
                               {true, AutomationPermission::allowed, -2147483647},
                               {true, AutomationPermission::allowed, {}}}) {
        mac.machine.permissions.setAccessibility(state.isTrusted);
        mac.machine.permissions.setAutomation(state.automation);
        mac.machine.faults.automationCode = state.code;
        mac.run(2);
        std::vector<std::pair<std::string, CGRect>> signs;
        for (const auto& operation : drawing().operations) {
            if (const auto* text = std::get_if<platform::DrawText>(&operation))
                signs.emplace_back(text->text, text->rect);
            if (const auto* symbol = std::get_if<platform::DrawSymbol>(&operation))
                signs.emplace_back(symbol->name, symbol->rect);
        }
        for (std::size_t i = 0; i < signs.size(); ++i) {
            const auto& [text, rect] = signs[i];
            EXPECT_EQ(text.find("…"), std::string::npos) << text;
            EXPECT_TRUE(rect.minX() >= 24 && rect.maxX() <= 596 && rect.minY() >= 6 && rect.maxY() <= 534) << text;
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_TRUE(platform::CGRectIsNull(platform::CGRectIntersection(rect, signs[j].second)) ||
                            rect.minY() == signs[j].second.maxY() || rect.maxY() == signs[j].second.minY())
                    << text << " on " << signs[j].first;
        }
    }
}

TEST_F(OnboardingTest, ClosingStoresStartsAndGivesTheFocusBackInThisOrder) {
    launch(true);
    EXPECT_EQ(mac.orvane().appDelegate.finderObserver().counts().passes, 0);
    mac.key("cmd+w");
    EXPECT_EQ(stored(), false);
    std::vector<std::string> asked;
    for (const auto& entry : mac.machine.journal.entries())
        if (entry.what.starts_with("log trusted") || entry.what.starts_with("activate com.apple") ||
            entry.what.ends_with(" out"))
            asked.push_back(entry.what.substr(0, entry.what.find(' ')));
    ASSERT_GE(asked.size(), 3U);
    asked.resize(3);
    EXPECT_EQ(asked, (std::vector<std::string>{"log", "activate", "window"}));
}

// Opened again it is the window that it was: it has asked, and reported, once.
TEST_F(OnboardingTest, OpenedAgainItKnowsWhatItDid) {
    launch(false);
    mac.run(1);
    EXPECT_EQ(journalled("accessibility request"), 1);
    mac.key("cmd+w");
    mac.orvane().appDelegate.showPermissionGuide();
    mac.run(5);
    EXPECT_EQ(journalled("accessibility request"), 1);

    // On another space it goes on looking.
    mac.machine.windows.switchToSpace(2);
    mac.machine.permissions.setAccessibility(true);
    mac.machine.permissions.setAutomation(AutomationPermission::allowed);
    mac.run(2);
    EXPECT_EQ(mac.orvane().appDelegate.automationPermissions().status.get(),
              FinderAutomationPermissionManager::Status::allowed);
    mac.machine.windows.switchToSpace(1);
    EXPECT_EQ(stored(), false);
    mac.key("return");
    EXPECT_EQ(guide(), nullptr);
    EXPECT_EQ(stored(), true);
    // What has come since the last look counts as missing.
    mac.orvane().appDelegate.showPermissionGuide();
    mac.run(1.5);
    mac.machine.permissions.setAutomation(AutomationPermission::denied);
    mac.run(0.2);
    mac.key("return");
    EXPECT_EQ(stored(), true);
}

TEST_F(OnboardingTest, ClosedItLeavesNothingBehind) {
    launch(true, AutomationPermission::allowed);
    mac.run(3);
    const auto before = mac.application().registrations();
    const auto checked = checks();
    EXPECT_GT(checked, 2);
    mac.key("cmd+w");
    mac.run(10);
    EXPECT_EQ(checks(), checked);
    EXPECT_EQ(mac.application().registrations().timers, before.timers);
    EXPECT_EQ(mac.application().registrations().windows, before.windows) << "the window is kept for the next time";
}

// While it sleeps before it asks, between two looks, and while Finder's answer is on its way.
TEST_F(OnboardingTest, ItsProcessMayEndAtAnyMoment) {
    for (const double after : {0.0, 0.3, 0.8, 2.5}) {
        mac.machine.faults.automationLatency = seconds(0.9);
        launch(after < 2, AutomationPermission::ask);
        mac.run(after);
        const auto checked = checks();
        mac.machine.processes.end(mac.application().processIdentifier(), desk::Ending::forced);
        mac.run(5);
        EXPECT_EQ(checks(), checked) << after;
        EXPECT_TRUE(mac.machine.applications.all().empty()) << after;
    }
}

}  // namespace
}  // namespace brindle
