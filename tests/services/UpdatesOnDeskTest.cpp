// Updates on the machine: what feeds may hold, the order of versions, installations that don't come about, and processes that end in the middle.
#include <gtest/gtest.h>

#include "desk/processes/LaunchedApplication.h"
#include "desk/updates/VersionOrder.h"
#include "services/UpdateManager.h"
#include "tests/kit/Desk.h"

namespace brindle {
namespace {

constexpr const char* installed = "/Applications/Orvane.app";
constexpr const char* newer = "/Users/ana/Orvane.app";

// The manager in a process that does nothing else, and agrees to end or doesn't.
struct Updating final : desk::Program, platform::NSApplicationDelegate {
    explicit Updating(platform::Platform& platform) : manager(platform) {
        manager.onWillRelaunchApplication = [this] { relaunches += 1; };
        manager.updaterController().startUpdater();
    }
    platform::NSApplicationDelegate& delegate() override { return *this; }
    void applicationWillFinishLaunching() override {}
    void applicationDidFinishLaunching() override {}
    platform::NSApplicationTerminateReply applicationShouldTerminate() override {
        return agrees ? platform::NSApplicationTerminateReply::terminateNow
                      : platform::NSApplicationTerminateReply::terminateCancel;
    }

    UpdateManager manager;
    int relaunches = 0;
    bool agrees = false;
};

class Updates : public testing::Test, public kit::Desk {
protected:
    Updates() {
        machine.launchServices.startProgram = [this](const std::string& path) {
            opened.push_back(path);
            return true;
        };
        machine.disk.copy(installed, newer);
        machine.disk.makeFile(std::string(newer) + "/Contents/new", "");
    }

    Updating& launch(const std::string& path = installed, const platform::Dictionary& over = {}) {
        desk::LaunchedApplication& launched =
            machine.applications.launch(desk::bundleAt(machine.disk, path, over), [](platform::Platform& platform) {
                return std::make_unique<Updating>(platform);
            });
        machine.settle();
        return *static_cast<Updating*>(launched.program());
    }

    static std::string item(const std::string& version, const std::string& url) {
        return "<item><sparkle:version>" + version + "</sparkle:version><enclosure url='" + url + "'/></item>";
    }
    static std::string feed(const std::string& items) {
        return "<?xml version='1.0'?><rss version='2.0' "
               "xmlns:sparkle='http://www.andymatuschak.org/xml-namespaces/sparkle'><channel><title>x</title>" +
               items + "</channel></rss>";
    }

    std::string message() const {
        const desk::Alert* alert = machine.alerts.shown();
        return alert == nullptr ? "" : alert->message;
    }
    void check(Updating& program, const std::string& answer) {
        machine.updateFeed.answer(answer);
        program.manager.updaterController().checkForUpdates();
        machine.settle();
    }
    void press(const std::string& button) {
        EXPECT_TRUE(machine.alerts.press(button)) << message();
        machine.settle();
    }
    // The installed copy is the old or the new one, and nothing else lies about.
    void expectInstalled(bool isNew) const {
        EXPECT_EQ(machine.disk.exists(std::string(installed) + "/Contents/new"), isNew);
        EXPECT_TRUE(machine.disk.exists(std::string(installed) + "/Contents/MacOS/Orvane"));
        const auto entries = machine.disk.list("/Applications");
        for (const desk::DiskEntry& entry : *entries) EXPECT_FALSE(entry.isHidden) << entry.name;
    }

    std::vector<std::string> opened;
};

TEST_F(Updates, AFeedThatCantBeTrustedChangesNothing) {
    const std::string plain = item("3", "file:///a");
    std::string bomb = "<!DOCTYPE rss [<!ENTITY a '" + std::string(100, 'a') + "'>";
    for (char name = 'b'; name < 'k'; ++name) {
        const std::string former = std::string("&") + static_cast<char>(name - 1) + ";";
        bomb += std::string("<!ENTITY ") + name + " '";
        for (int times = 0; times < 10; ++times) bomb += former;
        bomb += "'>";
    }
    bomb += "]>" + feed(item("&j;", "file:///a")).substr(21);
    std::string deep;
    for (int depth = 0; depth < 200'000; ++depth) deep += "<a>";

    enum Outcome { failed, none, offersThree };
    const std::pair<Outcome, std::string> feeds[] = {
        {failed, ""},
        {failed, "no feed"},
        {failed, "<html/>"},
        {failed, "<channel>" + plain + "</channel>"},
        {failed, feed(plain).substr(0, 200)},
        {failed, feed(plain).substr(0, feed(plain).size() - 1)},
        {failed, feed(plain) + "<rss/>"},
        {failed, "<rss><channel>" + plain + "</channel></rss>"},  // the prefix means nothing
        {failed, feed(item("&unknown;", "file:///a"))},
        {failed, feed("\xFF" + plain)},
        {failed, bomb},
        {failed, feed(deep)},
        {failed, feed(std::string(2'000'000, ' ') + plain)},
        {none, feed("")},
        {none, feed(item("1", "file:///a"))},
        {none, feed(item("", "file:///a") + item("4", "") + "<sparkle:version>5</sparkle:version>")},
        {none, feed(item(std::string(5000, '9'), "file:///a"))},
        {none, feed("<item><version>3</version><enclosure url='file:///a'/></item>")},
        {offersThree, feed(plain)},
        {offersThree, "<!DOCTYPE rss SYSTEM 'file:///etc/passwd'>" + feed(plain).substr(21)},  // which isn't read
        {offersThree, feed(item("2", "file:///a") + "<junk>" + plain + "</junk>" + plain + item("2.9", "file:///a"))},
        {offersThree, feed("<!-- a --><item><sparkle:version>4</sparkle:version><x><y/></x><sparkle:shortVersionString>"
                           " 3 <b>beta</b></sparkle:shortVersionString><enclosure url=' file:///a '/></item>")},
    };
    Updating& program = launch();
    for (const auto& [outcome, text] : feeds) {
        machine.updateFeed.answer(feed(item("8", "file:///a")));
        for (const std::string& answer : {feed(item("8", "file:///a")), text}) {
            machine.updateFeed.answer(answer);
            machine.updateFeed.checkNow(machine.applications.all().back()->processIdentifier());
            machine.settle();
        }
        const std::optional<std::string> expected[] = {"8", std::nullopt, "3"};
        EXPECT_EQ(program.manager.availableVersion.get(), expected[outcome]) << text.substr(0, 300);
        EXPECT_EQ(message(), "");
        EXPECT_TRUE(program.manager.canCheckForUpdates.get());
    }
}

TEST_F(Updates, VersionsAreComparedPartByPart) {
    const std::vector<std::vector<std::string>> ascending{{"b1"},
                                                          {"", "0", ".."},
                                                          {"0.9", "0.9.0", "0-9"},
                                                          {"1.0b2"},
                                                          {"1.0b10", "1.0 b010"},
                                                          {"1", "1.0", "01.0.0", "1."},
                                                          {"1.0.1"},
                                                          {"1.2"},
                                                          {"1.10"},
                                                          {"10"},
                                                          {"99999999999999999999999998"},
                                                          {"99999999999999999999999999"}};
    for (std::size_t left = 0; left < ascending.size(); ++left)
        for (std::size_t right = 0; right < ascending.size(); ++right)
            for (const std::string& one : ascending[left])
                for (const std::string& other : ascending[right])
                    EXPECT_EQ(desk::compareVersions(one, other), left <=> right) << one << " and " << other;
}

TEST_F(Updates, ACopyWithoutAVersionCantTellWhatIsNewer) {
    for (const platform::Value& version : {platform::Value(), platform::Value(1), platform::Value("")}) {
        Updating& program = launch(installed, {{"CFBundleVersion", version}});
        check(program, feed(item("2", "file:///Users/ana/Orvane.app")));
        EXPECT_EQ(message(), "The check for updates failed.");
        EXPECT_EQ(program.manager.availableVersion.get(), std::nullopt);
        press("OK");
    }
}

TEST_F(Updates, AskingAgainBringsTheOpenDialogForward) {
    const std::string offer = feed(item("2", "file:///Users/ana/Orvane.app"));
    Updating& first = launch();
    Updating& second = launch();
    check(first, offer);
    check(second, offer);
    for (Updating* each : {&second, &first, &second}) {
        const auto& all = machine.applications.all();
        const auto& process = each == &first ? all.front() : all.back();
        check(*each, feed(""));
        EXPECT_EQ(message(), "Orvane 2 is available.");
        EXPECT_EQ(machine.alerts.shown()->owner, process->processIdentifier());
    }
    press("Later");
    EXPECT_EQ(machine.alerts.shown()->owner, machine.applications.all().front()->processIdentifier());
}

TEST_F(Updates, AnUpdateThatCantBeHadLeavesTheOldVersionAndItsProcess) {
    machine.disk.makeFile("/Users/ana/file", "");
    machine.disk.makeFolder("/Users/ana/Empty.app");
    ASSERT_EQ(machine.disk.mount("/Applications/Mounted.app", *machine.disk.hostPath(newer)), std::nullopt);
    struct Case {
        std::string copy, url;
    };
    for (const Case& each : {Case{installed, "file:///Users/ana/Missing.app"},
                             {installed, "file:///Users/ana/file"},
                             {installed, "file:///Users/ana/Empty.app"},
                             {installed, "https://velmora.com/Users/ana/Orvane.app"},
                             {installed, "/Users/ana/Orvane.app"},
                             {installed, "file:///Users/ana/Orvane.app%00"},
                             {installed, "file:///"},
                             {"/Applications/Mounted.app", "file:///Users/ana/Orvane.app"}}) {
        Updating& program = launch(each.copy);
        program.agrees = true;
        check(program, feed(item("2", each.url)));
        press("Install and Relaunch");
        EXPECT_EQ(message(), "The update failed.") << each.url;
        press("OK");
        EXPECT_EQ(program.relaunches, 0) << each.url;
        EXPECT_TRUE(program.manager.canCheckForUpdates.get());
        expectInstalled(false);
    }
    EXPECT_EQ(opened, std::vector<std::string>{});
}

TEST_F(Updates, AReplacementTakesPlaceOnlyIfTheProcessAgreesToEnd) {
    machine.disk.makeSymbolicLink("/Users/ana/The newest.app", "Orvane.app");
    const std::string offer = feed(item("2", "file:///Users/ana/The%20newest.app"));
    Updating& program = launch();
    check(program, offer);
    press("Install and Relaunch");
    EXPECT_EQ(program.relaunches, 1);
    EXPECT_TRUE(program.manager.canCheckForUpdates.get());
    expectInstalled(false);

    program.agrees = true;
    check(program, offer);
    press("Install and Relaunch");
    expectInstalled(true);
    EXPECT_EQ(opened, std::vector<std::string>{installed});
    EXPECT_TRUE(machine.disk.exists(newer));
    std::vector<std::string> told;
    for (const desk::JournalEntry& entry : machine.journal.entries()) told.push_back(entry.what);
    EXPECT_EQ(told, (std::vector<std::string>{"updater start", "updater check", "updater relaunch", "terminate refused",
                                              "updater check", "updater relaunch", "terminate accepted"}));
}

TEST_F(Updates, AProcessThatEndsTakesItsCheckItsDialogAndItsFetchAlong) {
    const std::string offer = feed(item("2", "file:///Users/ana/Orvane.app"));
    const std::function<void()> endings[] = {[&] { run(1); }, [&] { run(3); },
                                             [&] {
                                                 run(3);
                                                 machine.alerts.press("Install and Relaunch");
                                             }};
    for (const auto& untilTheEnd : endings) {
        machine.updateFeed.latency = platform::seconds(2);
        check(launch(), offer);
        untilTheEnd();
        machine.applications.all().back()->end(desk::Ending::forced);
        run(200'000);
        EXPECT_TRUE(machine.applications.all().empty());
        EXPECT_EQ(message(), "");
        EXPECT_EQ(machine.updateFeed.checkNow.subscriberCount(), 0U);
        expectInstalled(false);
    }
    EXPECT_EQ(opened, std::vector<std::string>{});
}

}  // namespace
}  // namespace brindle
