#include <gtest/gtest.h>

#include "tests/kit/FakePlatform.h"
#include "tracking/FinderPathProvider.h"

namespace brindle {
namespace {

#define FS "\x1F"
#define RS "\x1E"

struct Provider {
    kit::FakePlatform fake;
    FinderPathProvider provider{fake.platform};

    void answer(std::string text) {
        fake.answerScript = [text](const std::string&) { return platform::NSAppleScriptResult{text, std::nullopt}; };
    }
    std::vector<FinderPathSnapshot> paths(std::string text) {
        answer(std::move(text));
        return provider.fetchWindowPaths();
    }
    std::optional<FinderSelectionSnapshot> selection(std::string text) {
        answer(std::move(text));
        return provider.fetchFrontWindowSelection();
    }
};

using Snapshots = std::vector<FinderPathSnapshot>;

TEST(FinderPathProvider, ReadsARecordForEachWindowInOrder) {
    Provider p;
    const Snapshots expected{
        {"snapshot-42", 42, "/Volumes/Data/R\xC3\xA9sum\xC3\xA9s/", "R\xC3\xA9sum\xC3\xA9s", "/a/b c", true},
        {"snapshot-7", 7, "", "", std::nullopt, false}};
    EXPECT_EQ(p.paths("42" FS "/Volumes/Data/R\xC3\xA9sum\xC3\xA9s/" FS "R\xC3\xA9sum\xC3\xA9s" FS "/a/b c" FS "1" RS
                      "7" FS FS FS FS "0" RS),
              expected);
}

TEST(FinderPathProvider, AMalformedRecordCostsOnlyItself) {
    const std::string good = "5" FS "/a/" FS "a" FS FS "1" RS;
    struct {
        const char* what;
        std::string record;
    } const rows[] = {
        {"four fields", "4" FS "/a/" FS "a" FS "1"}, {"letters", "12a" FS "/" FS FS FS "0"},
        {"no number", FS "/" FS FS FS "0"},          {"20 digits", "99999999999999999999" FS "/" FS FS FS "0"},
        {"two signs", "+-3" FS "/" FS FS FS "0"},    {"a sign alone", "-" FS "/" FS FS FS "0"},
        {"a blank", " 3" FS "/" FS FS FS "0"},       {"nothing", ""}};
    for (const auto& row : rows) {
        Provider p;
        EXPECT_EQ(p.paths(row.record + RS + good), (Snapshots{{"snapshot-5", 5, "/a/", "a", std::nullopt, true}}))
            << row.what;
    }
}

TEST(FinderPathProvider, ReadsOddButWellFormedRecords) {
    Provider p;
    EXPECT_TRUE(p.paths("").empty());
    EXPECT_EQ(p.paths("+12" FS "/a/" FS "a" FS FS "1")[0].windowNumber, 12);
    EXPECT_EQ(p.paths("-9223372036854775808" FS "/a/" FS "a" FS FS "1")[0].id, "snapshot--9223372036854775808");
    EXPECT_FALSE(p.paths("1" FS "/a/" FS "a" FS FS "1" FS "more" RS)[0].selectionWasQueried);
    EXPECT_EQ(p.paths("1" FS "/a/" FS "a" FS "/a/x" FS "0" RS)[0].selectedFilePath, "/a/x");
    EXPECT_EQ(p.paths("1" FS "/a/" FS "line\nfeed" FS FS "0" RS)[0].displayName, "line\nfeed");
}

TEST(FinderPathProvider, ReadsTheSelectionRecord) {
    struct {
        const char* answer;
        std::optional<FinderSelectionSnapshot> expected;
    } const rows[] = {{"42" FS, FinderSelectionSnapshot{42, std::nullopt}},
                      {"42" FS "/a/b", FinderSelectionSnapshot{42, "/a/b"}},
                      {"42" FS "/a" FS "b", FinderSelectionSnapshot{42, "/a" FS "b"}},
                      {"42", std::nullopt},
                      {"x" FS "/a", std::nullopt},
                      {"", std::nullopt}};
    Provider p;
    for (const auto& row : rows) EXPECT_EQ(p.selection(row.answer), row.expected) << row.answer;
}

TEST(FinderPathProvider, AnErrorIsAnEmptyAnswerAndScriptsAreMadeOnce) {
    Provider p;
    p.fake.answerScript = [](const std::string&) {
        return platform::NSAppleScriptResult{"1" FS "/a/" FS "a" FS FS "1" RS, platform::Dictionary{}};
    };
    EXPECT_TRUE(p.provider.fetchWindowPaths().empty());
    EXPECT_EQ(p.provider.fetchFrontWindowSelection(), std::nullopt);
    EXPECT_EQ(p.paths("1" FS "/a/" FS "a" FS FS "1" RS).size(), 1U);
    EXPECT_EQ(p.fake.scriptsMade, 2);
}

TEST(FinderPathProvider, ARefusedSourceIsNotTriedAgain) {
    struct Refusing final : platform::AppleEvents {
        platform::OSStatus AEDeterminePermissionToAutomateTarget(const platform::NSAppleEventDescriptor&, std::uint32_t,
                                                                 std::uint32_t, bool) override {
            return platform::noErr;
        }
        std::unique_ptr<platform::NSAppleScript> makeAppleScript(const std::string&) override {
            asked += 1;
            return nullptr;
        }
        int asked = 0;
    } refusing;
    kit::FakePlatform fake;
    platform::Platform& p = fake.platform;
    platform::Platform refused{
        p.clock,         p.dispatch,       p.runLoop,    p.workspace,   p.screens,  p.appearance, p.windowServer,
        p.accessibility, refusing,         p.events,     p.application, p.windows,  p.menus,      p.text,
        p.images,        p.textBoundaries, p.collation,  p.files,       p.defaults, p.bundle,     p.calendar,
        p.loginItem,     p.analytics,      p.pasteboard, p.uuids,       p.updaters, p.slots};
    FinderPathProvider provider(refused);
    EXPECT_TRUE(provider.fetchWindowPaths().empty());
    EXPECT_TRUE(provider.fetchWindowPaths().empty());
    EXPECT_EQ(refusing.asked, 1);
}

}  // namespace
}  // namespace brindle
