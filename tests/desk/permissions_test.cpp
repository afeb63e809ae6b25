// What an application is told of its two permissions, and what the user sees meanwhile: prompts, System Settings. A check runs on a thread of its own.
#include <gtest/gtest.h>

#include "desk/settings/SettingsProgram.h"
#include "tests/desk/Probe.h"

namespace {

using desk::AutomationPermission;
using platform::OSStatus;
using platform::seconds;

enum class Way { silently, withLeaveToAsk };

class PermissionTest : public testing::Test {
protected:
    kit::Desk desk;
    desk::Machine& machine = desk.machine;
    kit::Probe& probe = kit::launchProbe(desk);
    std::vector<std::string> answers;  // each with the time of its arrival, in seconds

    void check(Way way, const std::string& target = "com.apple.finder") {
        probe.platform.dispatch.detachedTask(platform::QualityOfService::userInitiated, [this, way, target] {
            EXPECT_FALSE(probe.platform.dispatch.isMainThread());
            const OSStatus code = probe.platform.appleEvents.AEDeterminePermissionToAutomateTarget(
                platform::NSAppleEventDescriptor::descriptorWithBundleIdentifier(target), platform::typeWildCard,
                platform::typeWildCard, way == Way::withLeaveToAsk);
            probe.platform.dispatch.mainAsync([this, code] {
                answers.push_back(std::to_string(code) + " at " +
                                  std::to_string(static_cast<int>(machine.secondsSinceStart())));
            });
        });
        machine.settle();
    }
    std::string answerTo(Way way) {
        answers.clear();
        check(way);
        return answers.empty() ? "none" : answers.front();
    }
    std::string shownMessage() const {
        const desk::Alert* alert = machine.alerts.shown();
        return alert == nullptr ? std::string() : alert->message;
    }
    bool isTrusted(bool mayAsk) {
        const bool answer = probe.platform.accessibility.AXIsProcessTrustedWithOptions(
            {{platform::kAXTrustedCheckOptionPrompt, mayAsk}});
        machine.settle();
        return answer;
    }
};

TEST_F(PermissionTest, AnAutomationCheckAnswersWithTheCodeOfTheMoment) {
    const struct {
        bool finderRuns;
        AutomationPermission permission;
        std::string silently, asking;
    } rows[] = {{true, AutomationPermission::allowed, "0 at 0", "0 at 0"},
                {true, AutomationPermission::denied, "-1743 at 0", "-1743 at 0"},
                {true, AutomationPermission::ask, "-1744 at 0", "none"},
                {false, AutomationPermission::allowed, "-600 at 0", "-600 at 0"},
                {false, AutomationPermission::ask, "-600 at 0", "-600 at 0"}};
    for (const auto& row : rows) {
        if (row.finderRuns)
            machine.finder.launch();
        else
            machine.finder.quit();
        machine.permissions.setAutomation(row.permission);
        EXPECT_EQ(answerTo(Way::silently), row.silently);
        EXPECT_EQ(machine.alerts.shown(), nullptr);
        EXPECT_EQ(answerTo(Way::withLeaveToAsk), row.asking);
        EXPECT_EQ(machine.alerts.shown() != nullptr, row.asking == "none");
        machine.alerts.press("OK");
        machine.settle();
        EXPECT_EQ(machine.finder.isRunning(), row.finderRuns) << "a check starts nothing";
    }
    machine.faults.automationCode = -1745;
    EXPECT_EQ(answerTo(Way::withLeaveToAsk), "-1745 at 0");
    machine.faults.automationCode.reset();
    answers.clear();
    check(Way::silently, "org.example.Nobody");
    EXPECT_EQ(answers, std::vector<std::string>{"-600 at 0"});
}

TEST_F(PermissionTest, OnePromptServesAllWhoWaitAndIsNotRepeated) {
    machine.permissions.setAutomation(AutomationPermission::ask);
    machine.faults.automationLatency = seconds(5);
    check(Way::withLeaveToAsk);
    check(Way::withLeaveToAsk);
    std::optional<platform::Dictionary> scriptError;
    probe.platform.dispatch.detachedTask(platform::QualityOfService::standard, [&] {
        const auto script = probe.platform.appleEvents.makeAppleScript("tell application \"Finder\" to activate");
        scriptError = script->executeAndReturnError().error;
    });
    desk.run(3);
    EXPECT_EQ(shownMessage().find("“Orvane” wants access to control “Finder”."), 0U);
    EXPECT_EQ(answers, std::vector<std::string>{}) << "the machine goes on, who asked waits";
    machine.alerts.press("Don't Allow");
    machine.settle();
    ASSERT_TRUE(scriptError.has_value());
    EXPECT_EQ(platform::find(*scriptError, platform::NSAppleScriptErrorNumber)->integer(), -1743);
    EXPECT_EQ(answers, std::vector<std::string>{}) << "the check's own time comes on top";
    desk.run(5);
    EXPECT_EQ(answers, (std::vector<std::string>{"-1743 at 8", "-1743 at 8"}));

    check(Way::withLeaveToAsk);
    EXPECT_EQ(machine.alerts.shown(), nullptr);
    machine.permissions.setAutomation(AutomationPermission::ask);
    check(Way::withLeaveToAsk);
    EXPECT_NE(machine.alerts.shown(), nullptr) << "asked anew once the permission is reset";

    probe.platform.dispatch.mainAsync([this] { probe.platform.application.terminate(); });
    machine.settle();
    EXPECT_EQ(machine.alerts.shown(), nullptr) << "nobody waits for the answer any more";
    EXPECT_TRUE(machine.applications.all().empty());
}

TEST_F(PermissionTest, AccessibilityIsAskedForOnceAtATimeAndLeadsToSystemSettings) {
    EXPECT_TRUE(isTrusted(true));
    EXPECT_EQ(machine.alerts.shown(), nullptr);
    machine.permissions.setAccessibility(false);
    EXPECT_FALSE(isTrusted(false));
    EXPECT_EQ(machine.alerts.shown(), nullptr);
    EXPECT_FALSE(isTrusted(true));
    EXPECT_FALSE(isTrusted(true));
    EXPECT_EQ(shownMessage(), "“Orvane” would like to control this computer using accessibility features.");
    EXPECT_TRUE(machine.alerts.press("Deny"));
    machine.settle();
    EXPECT_EQ(machine.alerts.shown(), nullptr);
    EXPECT_EQ(machine.systemSettings.program(), nullptr);

    EXPECT_FALSE(isTrusted(true));
    machine.alerts.press("Open System Settings");
    machine.settle();
    ASSERT_NE(machine.systemSettings.program(), nullptr);
    EXPECT_EQ(machine.systemSettings.program()->pane(), desk::SettingsPane::accessibility);
    EXPECT_FALSE(isTrusted(true));
    machine.permissions.setAccessibility(true);
    EXPECT_EQ(machine.alerts.shown(), nullptr) << "it has become pointless";
}

TEST_F(PermissionTest, AButtonActsWhenItIsReleasedOnTheAlertThatWasPressed) {
    const auto middleOf = [this](const char* label) {
        const auto button = machine.alertSurface.shown()->buttonLabelled(label);
        return platform::CGPoint{button->midX(), button->midY()};
    };
    machine.permissions.setAccessibility(false);
    EXPECT_FALSE(isTrusted(true));
    const platform::CGPoint deny = middleOf("Deny");
    desk.press(deny);
    machine.permissions.setAccessibility(true);
    machine.permissions.setAccessibility(false);
    EXPECT_FALSE(isTrusted(true));
    desk.release(deny);
    EXPECT_NE(machine.alerts.shown(), nullptr) << "another one, in the same place";
    desk.press(deny);
    desk.release(middleOf("Open System Settings"));
    EXPECT_NE(machine.alerts.shown(), nullptr);
    desk.press(deny);
    desk.click(deny, desk::MouseButton::right);
    EXPECT_NE(machine.alerts.shown(), nullptr);
    desk.release(deny);
    EXPECT_EQ(machine.alerts.shown(), nullptr);
}

TEST_F(PermissionTest, StoredDefaultsCountAsTrueTheWayThePlatformCountsThem) {
    const std::pair<platform::Value, bool> rows[] = {
        {true, true},  {false, false}, {1, true},     {0, false},    {-3, true},     {0.5, true},
        {"YES", true}, {"true", true}, {"1", true},   {"25", true},  {"NO", false},  {"false", false},
        {"0", false},  {"", false},    {"on", false}, {"1x", false}, {"nan", false}, {platform::Array{1}, false},
        {"yes", true}, {"True", true}, {"0.0", false}};
    auto& defaults = probe.platform.defaults;
    EXPECT_FALSE(defaults.boolForKey("key"));
    for (std::size_t row = 0; row < std::size(rows); ++row) {
        defaults.setObject("key", rows[row].first);
        EXPECT_EQ(defaults.boolForKey("key"), rows[row].second) << "row " << row;
    }
}

}  // namespace
