// A person's afternoon at the desk with a real mouse and a real keyboard: what is on the display is what the desk says of itself, and the bar stands above its
// window at every moment that is looked at.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <cmath>
#include <vector>

#include "desk/display/GuiApplication.h"
#include "desk/finder/FinderLayout.h"
#include "tests/live/LiveDisplay.h"

namespace {

using live::LiveDisplay;
using platform::CGPoint;

constexpr const char* documents = "/Users/ana/Documents";

QJsonObject front(const QJsonObject& state) {
    return state["finder"]["windows"][0].toObject();
}

QJsonObject bar(const QJsonObject& state) {
    return state["panels"][0].toObject();
}

std::string path(const QJsonObject& state) {
    return front(state)["path"].toString().toStdString();
}

std::string lastCrumb(const QJsonObject& state) {
    const QJsonArray crumbs = bar(state)["crumbs"].toArray();
    return crumbs.isEmpty() ? std::string() : crumbs.last()["title"].toString().toStdString();
}

// As wide as the window, its lower edge on the window's upper one.
bool standsAbove(const QJsonObject& state) {
    const QJsonArray window = front(state)["frame"].toArray();
    const QJsonArray panel = bar(state)["frame"].toArray();
    return window.size() == 4 && panel.size() == 4 && panel[0] == window[0] && panel[2] == window[2] &&
           panel[1].toDouble() == window[1].toDouble() + window[3].toDouble();
}

class AtTheDesk : public testing::Test {
protected:
    void SetUp() override {
        display.ask(std::string("finder open ") + documents + " 200 200 800 500");
        display.tell("launch");
        ASSERT_TRUE(display.comesTrue([](const auto& state) { return lastCrumb(state) == "Documents"; }));
    }
    void TearDown() override { EXPECT_EQ(display.end(), 0); }

    void press(const char* keys) { display.xdotool({QStringLiteral("key"), QString::fromLatin1(keys)}); }
    void type(const char* text) { display.xdotool({QStringLiteral("type"), QString::fromUtf8(text)}); }

    // In steps, each of them waited for and looked at.
    void dragInSteps(const std::string& target, double dx, double dy) {
        constexpr int steps = 12;
        const CGPoint grip = display.where(target);
        const QJsonArray before = front(display.state())["frame"].toArray();
        display.moveMouse(grip);
        display.xdotool({QStringLiteral("mousedown"), QStringLiteral("1")});
        for (int step = 1; step <= steps; ++step) {
            const double part = static_cast<double>(step) / steps;
            display.moveMouse({grip.x + dx * part, grip.y + dy * part});
            EXPECT_TRUE(display.comesTrue([&](const QJsonObject& state) {
                const QJsonArray frame = front(state)["frame"].toArray();
                return std::abs(frame[0].toDouble() - before[0].toDouble() - dx * part) <= 0.5 &&
                       std::abs(frame[1].toDouble() - before[1].toDouble() - dy * part) <= 0.5 && standsAbove(state);
            })) << target
                << ", step " << step;
        }
        display.xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
        EXPECT_TRUE(display.comesTrue(
            [](const QJsonObject& state) { return standsAbove(state) && state["observer"]["tracking"] == "idle"; }));
        EXPECT_TRUE(display.showsWhatIsComposed());
    }

    // Of the list in the window, whose size is known.
    CGPoint middleOfRow(std::size_t row) {
        const desk::FinderLayout layout({800, 500}, 0);
        const CGPoint corner{200, 700};
        return {corner.x + layout.row(row).midX(), corner.y - layout.row(row).midY()};
    }

    const desk::GuiApplication gui;
    LiveDisplay display;
};

TEST_F(AtTheDesk, FoldersCrumbsThePathFieldAndDrags) {
    EXPECT_TRUE(display.showsWhatIsComposed());

    constexpr std::size_t invoices = 3;  // by their natural order
    display.moveMouse(middleOfRow(invoices));
    display.xdotool({QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"), QStringLiteral("1")});
    EXPECT_TRUE(display.comesTrue([](const auto& state) {
        return path(state) == "/Users/ana/Documents/Invoices" && lastCrumb(state) == "Invoices";
    }));
    press("ctrl+Up");
    EXPECT_TRUE(display.comesTrue(
        [](const auto& state) { return path(state) == documents && lastCrumb(state) == "Invoices"; }));
    type("pro");
    EXPECT_TRUE(display.comesTrue(
        [](const auto& state) { return lastCrumb(state) == "Projects" && path(state) == documents; }));
    press("ctrl+o");
    EXPECT_TRUE(display.comesTrue([](const auto& state) { return path(state) == "/Users/ana/Documents/Projects"; }));
    EXPECT_TRUE(display.showsWhatIsComposed());

    display.click("bar 101 crumb ana");
    EXPECT_TRUE(
        display.comesTrue([](const auto& state) { return path(state) == "/Users/ana" && lastCrumb(state) == "ana"; }));

    press("ctrl+l");
    EXPECT_TRUE(display.comesTrue([](const auto& state) { return bar(state)["fieldFocused"].toBool(); }));
    type("~/Downloads");
    EXPECT_TRUE(display.comesTrue([](const auto& state) { return bar(state)["inputText"] == "~/Downloads"; }));
    EXPECT_TRUE(display.showsWhatIsComposed());
    press("Return");
    EXPECT_TRUE(display.comesTrue(
        [](const auto& state) { return path(state) == "/Users/ana/Downloads" && lastCrumb(state) == "Downloads"; }));
    EXPECT_TRUE(display.showsWhatIsComposed());

    dragInSteps("window 101 titlebar", 180, 60);
    dragInSteps("bar 101 brand", -120, -90);
}

QString buttonOf(const QJsonObject& state, int index) {
    return state["windows"][0]["controls"][index]["label"].toString();
}

// From a Mac on which the application has never run to the first bar: prompts, System Settings and the guide, each with a press of the mouse.
TEST(FirstLaunch, LeadsByMouseToABar) {
    struct Step {
        const char* click;
        bool (*leadsTo)(const QJsonObject& state);
    };
    const auto asks = [](const QJsonObject& state) { return state["alert"]["source"] == "system"; };
    const Step steps[] = {
        {"label \"Open System Settings\"",
         [](const auto& state) { return state["systemSettings"]["pane"] == "accessibility"; }},
        {"label \"Orvane\"", [](const auto& state) { return buttonOf(state, 0) == "Allow Finder Access"; }},
        {"window \"System Settings\" close", [](const auto& state) { return state["systemSettings"].isNull(); }},
        {"window \"Welcome to Orvane\" titlebar",
         [](const auto& state) { return state["windows"][0]["key"].toBool(); }},
        {"label \"Allow Finder Access\"", asks},
        {"label \"OK\"",
         [](const auto& state) {
             return lastCrumb(state) == "Documents" && standsAbove(state) && buttonOf(state, 0) == "Close";
         }},
        {"label \"Close\"",
         [](const auto& state) {
             return state["windows"].toArray().isEmpty() && state["defaults"]["hasCompletedOnboardingV1"].toBool();
         }},
    };
    const desk::GuiApplication gui;
    LiveDisplay display;
    for (const char* line :
         {"permission accessibility missing", "permission automation ask", "set-default hasCompletedOnboardingV1 none"})
        display.tell(line);
    display.ask(std::string("finder open ") + documents + " 20 100 800 500");
    display.tell("launch");
    ASSERT_TRUE(display.comesTrue(asks));
    for (const Step& step : steps) {
        EXPECT_TRUE(display.showsWhatIsComposed());
        display.click(step.click);
        ASSERT_TRUE(display.comesTrue(step.leadsTo)) << step.click;
    }
    EXPECT_EQ(display.end(), 0);
}

// Each leaves the desk in the middle of something: a script that its queue or the main thread waits for, a question, a drag with a loop of its own, an open menu, typing.
class InTheMiddle : public testing::TestWithParam<std::vector<const char*>> {};

TEST_P(InTheMiddle, TheDeskEndsAtOnceAndLeavesNothing) {
    const desk::GuiApplication gui;
    LiveDisplay display;
    display.ask("finder open /Users/ana/Documents 200 200 800 500");
    display.tell("launch");
    ASSERT_TRUE(display.comesTrue([](const auto& state) { return lastCrumb(state) == "Documents"; }));
    for (const char* line : GetParam()) display.tell(line);
    EXPECT_EQ(display.interrupt(), 0);
}

using Lines = std::vector<const char*>;
INSTANTIATE_TEST_SUITE_P(Quitting, InTheMiddle,
                         testing::Values(Lines{"finder script-latency 1000", "finder go 101 /Users/ana", "wait 1000"},
                                         Lines{"finder script-latency 1000", "click bar 101 crumb ana"},
                                         Lines{"permission automation ask", "click bar 101 crumb ana"},
                                         Lines{"mouse down 250 722", "mouse drag 260 730"},
                                         Lines{"click bar 101 chevron ana"}, Lines{"key cmd+l", "type abc"}));

}  // namespace
