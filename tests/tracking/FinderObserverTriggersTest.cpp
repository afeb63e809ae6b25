#include <gtest/gtest.h>

#include "tests/tracking/ObservedFinder.h"

namespace brindle {
namespace {

using platform::CGRectMake;
using platform::NSEvent;
using platform::NSEventType;
using platform::WorkspaceNotification;
namespace Flags = platform::NSEventModifierFlags;

NSEvent keyDown(std::optional<std::string> characters, std::uint64_t modifiers) {
    NSEvent event;
    event.type = NSEventType::keyDown;
    event.charactersIgnoringModifiers = std::move(characters);
    event.modifierFlags = modifiers;
    return event;
}

TEST(FinderObserverTriggers, StartingTwiceLeavesOneOfEachAndStoppingNone) {
    ObservedFinder f;
    f.start();
    f.start();
    EXPECT_EQ(f.fake.timerPeriods(), std::vector<platform::Duration>{500ms});
    EXPECT_EQ(f.fake.monitorCount(), 3U);
    EXPECT_EQ(f.fake.workspaceObserverCount(), 2U);
    EXPECT_EQ(f.fake.subscriptions.size(), 8U);
    EXPECT_EQ(f.shown(), Texts{"/Data/Reports/"});
    f.fake.sendMouse(NSEventType::rightMouseUp, {0, 0});
    f.observer->stop();
    const auto passes = f.passes();
    f.fake.advance(10s);
    EXPECT_EQ(f.passes(), passes);
    EXPECT_EQ(f.fake.timerCount() + f.fake.monitorCount() + f.fake.workspaceObserverCount() +
                  f.fake.subscriptions.size(),
              0U);
    EXPECT_EQ(f.shown(), Texts{"/Data/Reports/"});
}

TEST(FinderObserverTriggers, PollsEverySecondInFrontAndEveryThreeBehind) {
    ObservedFinder f;
    f.fake.servesQueues = false;
    f.observer->start();
    EXPECT_EQ(f.passes(), 1);
    f.fake.advance(500ms);
    EXPECT_EQ(f.passes(), 2);
    f.fake.advance(999ms);
    EXPECT_EQ(f.passes(), 2);
    f.fake.advance(1ms);
    EXPECT_EQ(f.passes(), 3);
    f.fake.frontmost = "com.apple.mail";
    f.fake.notify(WorkspaceNotification::didActivateApplication);
    EXPECT_EQ(f.passes(), 3);
    f.fake.advance(2999ms);
    EXPECT_EQ(f.passes(), 4);
    f.fake.advance(1ms);
    EXPECT_EQ(f.passes(), 5);
}

TEST(FinderObserverTriggers, ASpaceChangeRunsTwoPassesInLaterTurns) {
    ObservedFinder f;
    f.start();
    const auto passes = f.passes();
    f.fake.notify(WorkspaceNotification::activeSpaceDidChange);
    EXPECT_EQ(f.passes(), passes);
    f.fake.advance({});
    EXPECT_EQ(f.passes(), passes + 2);
}

TEST(FinderObserverTriggers, CommandLAsksForThePathField) {
    struct {
        const char* what;
        NSEvent event;
        int tokens;
    } const rows[] = {{"Command-L", keyDown("l", Flags::command), 1},
                      {"Command-Shift-L", keyDown("L", Flags::command | Flags::shift), 1},
                      {"Command-Option-L", keyDown("l", Flags::command | Flags::option), 1},
                      {"with Caps Lock", keyDown("L", Flags::command | Flags::capsLock), 1},
                      {"L alone", keyDown("l", 0), 0},
                      {"Command-K", keyDown("k", Flags::command), 0},
                      {"Command-Ll", keyDown("ll", Flags::command), 0},
                      {"no characters", keyDown(std::nullopt, Flags::command), 0}};
    for (const auto& row : rows) {
        ObservedFinder f;
        f.start();
        f.fake.sendGlobal(row.event);
        EXPECT_EQ(f.tokens, 0) << row.what;
        f.fake.advance({});
        EXPECT_EQ(f.tokens, row.tokens) << row.what;
        f.fake.sendLocal(row.event);
        EXPECT_EQ(f.tokens, 2 * row.tokens) << row.what;
        EXPECT_EQ(f.observer->counts().editRequests, f.tokens);
        f.fake.frontmost = "com.apple.mail";
        f.settle();
        f.fake.sendLocal(row.event);
        EXPECT_EQ(f.tokens, 2 * row.tokens) << row.what;
    }
}

TEST(FinderObserverTriggers, ABurstOfInputEndsInOneSelectionFetchAndOnePass) {
    ObservedFinder f;
    f.start();
    const auto passes = f.passes();
    for (const auto type :
         {NSEventType::keyUp, NSEventType::rightMouseUp, NSEventType::leftMouseUp, NSEventType::keyUp}) {
        f.fake.sendMouse(type, {0, 0});
        f.fake.advance(14ms);
    }
    EXPECT_EQ(f.passes(), passes);
    f.fake.advance(1ms);
    EXPECT_EQ(f.passes(), passes + 1);
    EXPECT_EQ(f.observer->counts().selectionFetches, 1);
}

TEST(FinderObserverTriggers, InputElsewhereAndPressesScheduleNothing) {
    ObservedFinder f;
    f.start();
    f.fake.sendMouse(NSEventType::leftMouseDown, {0, 0});
    f.fake.sendMouse(NSEventType::leftMouseDragged, {0, 0});
    f.fake.frontmost = "com.apple.mail";
    f.settle();
    f.fake.sendMouse(NSEventType::keyUp, {0, 0});
    f.fake.advance(100ms);
    EXPECT_EQ(f.observer->counts().selectionFetches, 0);
}

TEST(FinderObserverTriggers, OnlyTheLatestSelectionAnswerCounts) {
    ObservedFinder f;
    f.start();
    f.fake.servesQueues = false;
    for (int request = 0; request < 3; ++request) {
        f.fake.sendMouse(NSEventType::keyUp, {0, 0});
        f.fake.advance(15ms);
    }
    int answers = 0;
    f.fake.answerScript = [&](const std::string&) {
        return platform::NSAppleScriptResult{"1\x1F/Data/Reports/" + std::to_string(++answers), std::nullopt};
    };
    const int publications = f.windowPublications;
    f.fake.serveQueue("com.velmora.Brindle.selection");
    EXPECT_EQ(answers, 3);
    EXPECT_EQ(f.shown(), Texts{"/Data/Reports/*/Data/Reports/3"});
    EXPECT_EQ(f.windowPublications, publications + 1);
    EXPECT_EQ(f.observer->activeWindow->value().selectedFilePath, std::nullopt);
}

TEST(FinderObserverTriggers, ASelectionAnswerMustNameAShownWindowAndBringNews) {
    struct {
        const char* answer;
        bool publishes;
    } const rows[] = {{"1\x1F/Data/Reports/a", false},
                      {"2\x1F/x", false},
                      {"", false},
                      {"1\x1F", true},
                      {"1\x1F/Data/Reports/b", true}};
    for (const auto& row : rows) {
        ObservedFinder f;
        f.fake.selection = "/Data/Reports/a";
        f.start();
        f.add(2, "New");
        f.fake.servesQueues = false;
        f.fake.sendMouse(NSEventType::keyUp, {0, 0});
        f.fake.advance(15ms);
        f.fake.answerScript = [&](const std::string&) {
            return platform::NSAppleScriptResult{row.answer, std::nullopt};
        };
        const int publications = f.windowPublications;
        f.fake.serveQueue("com.velmora.Brindle.selection");
        EXPECT_EQ(f.windowPublications - publications, row.publishes ? 1 : 0) << row.answer;
    }
}

TEST(FinderObserverTriggers, MovesAreAppliedWithoutAPassAndOtherNotificationsRunOne) {
    ObservedFinder f(2);
    f.start();
    const auto passes = f.passes();
    f.fake.window(1).frame = CGRectMake(300, 100, 700, 400);
    f.fake.notify(1, "AXMoved");
    EXPECT_EQ(f.passes(), passes);
    EXPECT_EQ(f.observer->windows->front().frame, CGRectMake(300, 400, 700, 400));
    EXPECT_EQ(f.observer->activeWindow->value().frame, CGRectMake(100, 200, 800, 500));
    f.fake.window(1).attributes["AXSize"] = std::nullopt;
    f.fake.notify(1, "AXResized");
    EXPECT_EQ(f.passes(), passes + 1);
    f.fake.notify(2, "AXTitleChanged");
    EXPECT_EQ(f.passes(), passes + 2);
}

TEST(FinderObserverTriggers, AMoveGoesToTheMainElseTheNamedElseTheNearestWindow) {
    struct {
        const char* what;
        bool finderInFront;
        bool isMain;
        std::optional<std::string> title;
        std::string moved;
    } const rows[] = {{"main, in front", true, true, "Archive", "finder-1"},
                      {"main, Finder behind", false, true, "Archive", "finder-2"},
                      {"named twice", true, false, "Twin", "finder-3"},
                      {"named by its folder", true, false, "Berichte", "finder-2"},
                      {"unknown name", true, false, "Info", "finder-4"},
                      {"no name", true, false, std::nullopt, "finder-4"},
                      {"a name of no characters", true, false, "", "finder-4"}};
    for (const auto& row : rows) {
        ObservedFinder f(2);
        f.fake.window(2).path = "/Data/Berichte/";
        f.add(3, "Twin");
        f.add(4, "Twin");
        f.start();
        if (!row.finderInFront) {
            f.fake.frontmost = "com.apple.mail";
            f.settle();
        }
        // At (125, 200) in AppKit space, half way between the frames of windows 3 and 4, and nearest to the latter by its width.
        auto& window = f.fake.window(1);
        window.frame = CGRectMake(129, 200, 800, 500);
        window.isMain = row.isMain;
        window.attributes["AXTitle"] = row.title ? std::optional(platform::AXAttributeValue(*row.title)) : std::nullopt;
        f.fake.notify(1, "AXMoved");
        for (const auto& state : *f.observer->windows)
            EXPECT_EQ(state.frame == CGRectMake(129, 200, 800, 500), state.id == row.moved)
                << row.what << " " << state.id;
    }
}

TEST(FinderObserverTriggers, AnEventWithoutFullScreenLeavesTheFlagAlone) {
    ObservedFinder f;
    f.fake.window(1).attributes["AXFullScreen"] = platform::AXAttributeValue(true);
    f.start();
    f.fake.window(1).attributes["AXFullScreen"] = std::nullopt;
    f.fake.notify(1, "AXMoved");
    EXPECT_TRUE(f.observer->windows->front().isFullScreen);
    f.fake.window(1).attributes["AXFullScreen"] = platform::AXAttributeValue(false);
    f.fake.notify(1, "AXResized");
    EXPECT_FALSE(f.observer->windows->front().isFullScreen);
}

TEST(FinderObserverTriggers, ADestroyedWindowMakesEveryWindowMatchAfresh) {
    ObservedFinder f(2);
    f.start();
    f.fake.accessibilityOrder = {1};
    f.fake.notify(1, "AXTitleChanged");
    EXPECT_EQ(f.observer->windows->size(), 2U);
    f.fake.notify(2, "AXUIElementDestroyed");
    EXPECT_EQ(f.observer->windows->size(), 1U);
}

TEST(FinderObserverTriggers, PermissionThatComesLateIsPickedUpByThePoll) {
    ObservedFinder f;
    f.fake.isTrusted = false;
    f.start();
    f.fake.isTrusted = true;
    f.fake.advance(1500ms);
    EXPECT_EQ(f.shown(), Texts{"/Data/Reports/"});
    EXPECT_TRUE(f.fake.subscriptions.empty());
}

}  // namespace
}  // namespace brindle
