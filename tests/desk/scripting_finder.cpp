// Scripts that an application sends to Finder: what they see of it and do to it, how long they take, and how they fail.
#include <gtest/gtest.h>

#include "tests/desk/Probe.h"

namespace {

using platform::NSAppleScriptResult;
using platform::seconds;
using Lines = std::vector<std::string>;

std::string inFinder(const std::string& lines) {
    return "tell application \"Finder\"\n" + lines + "\nend tell";
}

std::string described(const NSAppleScriptResult& result) {
    if (!result.error) return result.stringValue.value_or("no text");
    const platform::Value* message = platform::find(*result.error, platform::NSAppleScriptErrorMessage);
    const platform::Value* number = platform::find(*result.error, platform::NSAppleScriptErrorNumber);
    return std::to_string(number->integer().value_or(0)) + " " +
           (message == nullptr ? "" : *message->as<std::string>());
}

class FinderScripts : public testing::Test {
protected:
    FinderScripts() { desk.twoWindows(); }

    std::string run(const std::string& source) {
        return described(probe.platform.appleEvents.makeAppleScript(source)->executeAndReturnError());
    }
    double now() { return machine.secondsSinceStart(); }
    // On a queue of its own; the answer is logged with the time at which it reached the main thread.
    void runOnQueue(const std::string& source) {
        queues.push_back(probe.platform.dispatch.makeSerialQueue("scripts", platform::QualityOfService::standard));
        queues.back()->async([this, source] {
            const std::string answer = run(source);
            probe.platform.dispatch.mainAsync(
                [this, answer] { answers.push_back(answer + " at " + std::to_string(now()).substr(0, 4)); });
        });
    }

    kit::Desk desk;
    desk::Machine& machine = desk.machine;
    kit::Probe& probe = kit::launchProbe(desk);
    std::vector<std::unique_ptr<platform::SerialQueue>> queues;
    Lines answers;
};

TEST_F(FinderScripts, SeeAndChangeRealWindows) {
    desk.tree({"/Users/ana/Work/Two/quo\"te \\ e\u0301.txt"});
    machine.finder.openVirtual("Recents");
    machine.finder.openInfoPanel("/tmp");
    machine.finder.minimize(101);
    const std::string allIdentifiers =
        "\"\" & (id of Finder window 1) & (id of Finder window 2) & (id of Finder window 3)";
    const std::pair<std::string, std::string> cases[] = {
        {"(count of Finder windows) as text", "3"},
        {allIdentifiers, "103102101"},
        {"(name of front Finder window) & (name of Finder window id 101)", "RecentsOne"},
        {"try\nPOSIX path of (target of front Finder window as alias)\non error\n\"none\"\nend try", "none"},
        {"POSIX path of (target of Finder window id 102 as alias)", "/Users/ana/Work/Two/"},
        {"set target of Finder window id 103 to POSIX file \"/Users/ana/Work/Two\"\nname of front Finder window",
         "Two"},
        {"select POSIX file \"/Users/ana/Work/Two/quo\\\"te \\\\ e\u0301.txt\"\nPOSIX path of (item 1 of "
         "selection as alias)",
         "/Users/ana/Work/Two/quo\"te \\ e\u0301.txt"},
        {"set target of front Finder window to POSIX file \"/tmp\"\n(count of selection) as text", "0"},
        {"make new Finder window to POSIX file \"/Users\"\n(id of front Finder window) as text", "105"},
    };
    for (const auto& [lines, answer] : cases) EXPECT_EQ(run(inFinder(lines)), answer) << lines;
    EXPECT_EQ(machine.finder.front()->target, "/Users");
}

TEST_F(FinderScripts, FailInFindersWords) {
    const std::pair<std::string, std::string> cases[] = {
        {inFinder("select POSIX file \"/nowhere\""),
         "-1728 Finder got an error: Can’t get file \"Macintosh HD:nowhere\"."},
        {inFinder("set target of front Finder window to POSIX file \"/Users/ana/Desktop/To Do.txt\""),
         "-10006 Finder got an error: Can’t set target of Finder window id 102 to file \"Macintosh "
         "HD:Users:ana:Desktop:To Do.txt\"."},
        {inFinder("error \"mine\" number 7"), "7 mine"},
        {"tell application \"Finder\"", "-2741 "},
    };
    for (const auto& [source, error] : cases) EXPECT_EQ(run(source).substr(0, error.size()), error) << source;
    EXPECT_EQ(machine.finder.find(102)->target, "/Users/ana/Work/Two");
}

TEST_F(FinderScripts, AreListedWithTheirErrorsAndCompiledOnce) {
    const auto script = probe.platform.appleEvents.makeAppleScript(inFinder("name of front Finder window"));
    for (int time = 0; time < 25; ++time) EXPECT_EQ(script->executeAndReturnError().stringValue, "Two");
    machine.faults.scriptError = "out of order";
    EXPECT_EQ(run(inFinder("activate")), "-10000 out of order");
    machine.faults.scriptError.reset();
    machine.faults.scriptAnswer = "rubbish\x1f";
    EXPECT_EQ(run(inFinder("activate")), "rubbish\x1f");
    EXPECT_EQ(machine.scripting.sentScripts().size(), 20u);
    EXPECT_EQ(machine.scripting.sentScripts()[17].source, inFinder("name of front Finder window"));
    EXPECT_EQ(machine.scripting.sentScripts()[18].error, "out of order");
    EXPECT_EQ(machine.scripting.sentScripts()[19].error, "");
}

TEST_F(FinderScripts, AreEvaluatedWhenSentAndAnsweredAfterTheLatency) {
    machine.faults.scriptLatency = seconds(3);
    runOnQueue(inFinder("(count of Finder windows) as text"));
    desk.run(1);
    machine.faults.scriptLatency = seconds(0.5);
    machine.finder.close(101);
    runOnQueue(inFinder("(count of Finder windows) as text"));
    desk.run(5);
    EXPECT_EQ(answers, (Lines{"1 at 1.50", "2 at 3.00"}));

    // On the main thread the application stands still meanwhile, but not the machine.
    machine.faults.scriptLatency = seconds(2);
    probe.platform.dispatch.mainAsync([&] {
        probe.platform.dispatch.mainAsync([&] { answers.push_back("block at " + std::to_string(now()).substr(0, 4)); });
        run(inFinder("activate"));
        answers.push_back("main at " + std::to_string(now()).substr(0, 4));
    });
    machine.scheduler.after(seconds(1), [&] { machine.finder.close(102); });
    machine.settle();
    EXPECT_EQ(answers, (Lines{"1 at 1.50", "2 at 3.00", "main at 8.00", "block at 8.00"}));
    EXPECT_EQ(machine.finder.front(), nullptr);
}

TEST_F(FinderScripts, DelaysLetTimePassBetweenTwoCommands) {
    runOnQueue(
        inFinder("set target of front Finder window to POSIX file \"/tmp\"\ndelay 0.5\nname of front Finder window"));
    desk.run(0.25);
    EXPECT_EQ(machine.finder.front()->target, "/tmp");
    machine.finder.raise(101);
    desk.run(1);
    EXPECT_EQ(answers, Lines{"One at 0.50"});
}

TEST_F(FinderScripts, WaitForTheUsersWordAndObeyIt) {
    machine.permissions.setAutomation(desk::AutomationPermission::ask);
    runOnQueue(inFinder("(count of Finder windows) as text"));
    runOnQueue(inFinder("name of front Finder window"));
    desk.run(2);
    ASSERT_NE(machine.alerts.shown(), nullptr);
    EXPECT_EQ(machine.alerts.shown()->buttons, (Lines{"Don't Allow", "OK"}));
    EXPECT_EQ(answers, Lines{});
    machine.permissions.setAccessibility(false);
    desk.run(1);
    EXPECT_EQ(answers, Lines{});
    machine.alerts.press("OK");
    desk.run(1);
    EXPECT_EQ(answers, (Lines{"2 at 3.00", "Two at 3.00"}));
    EXPECT_EQ(machine.alerts.shown(), nullptr);

    // On the main thread, with the person's answer as the next step; and without one.
    machine.permissions.setAutomation(desk::AutomationPermission::ask);
    desk.then([&] { EXPECT_TRUE(machine.alerts.press("Don't Allow")); });
    EXPECT_EQ(run(inFinder("activate")), "-1743 Not authorized to send Apple events to Finder.");
    machine.permissions.setAutomation(desk::AutomationPermission::ask);
    EXPECT_EQ(run(inFinder("activate")), "-1743 Not authorized to send Apple events to Finder.");
    EXPECT_EQ(machine.alerts.shown(), nullptr);
    EXPECT_EQ(run("\"1\" & 1"), "11");
}

TEST_F(FinderScripts, ReachNobodyWhenFinderOrTheSenderIsGone) {
    machine.faults.scriptLatency = seconds(60);
    runOnQueue(inFinder("delay 5\nset target of front Finder window to POSIX file \"/Users\""));
    runOnQueue(inFinder("name of front Finder window"));
    desk.run(1);
    machine.finder.quit();
    machine.faults.scriptLatency = seconds(0);
    EXPECT_EQ(run(inFinder("activate")), "-600 Finder got an error: Application isn’t running.");
    machine.finder.launch();
    machine.finder.open("/tmp");
    probe.platform.dispatch.mainAsync([&] { probe.platform.application.terminate(); });
    desk.run(100);
    EXPECT_EQ(machine.applications.all().size(), 0u);
    EXPECT_EQ(answers, Lines{});
    EXPECT_EQ(machine.finder.front()->target, "/tmp");
}

TEST_F(FinderScripts, RunShellLinesOnTheDesksDisk) {
    EXPECT_EQ(run("do shell script \"/bin/ls \" & quoted form of \"/Volumes/Data/Reports\""),
              "Annual\rMonthly\rSummary.txt");
    EXPECT_EQ(run("do shell script \"/bin/rm -rf \" & quoted form of \"/Applications/Safari.app\" with administrator "
                  "privileges"),
              "");
    EXPECT_FALSE(machine.disk.exists("/Applications/Safari.app"));
    EXPECT_EQ(run("do shell script \"/bin/rm /nowhere\""), "1 rm: /nowhere: No such file or directory");
    EXPECT_EQ(run("do shell script \"exit 9\""), "9 The command exited with a non-zero status.");
}

}  // namespace
