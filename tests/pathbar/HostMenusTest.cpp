// Menus and popovers of declared views on the desk, in a panel and in the menu bar: what they show, and what becomes of them when the views change.
#include <gtest/gtest.h>

#include "tests/desk/Probe.h"
#include "views/MenuBarExtraHost.h"
#include "views/Views.h"

namespace {

using namespace views;
using platform::CGRectMake;
using Log = std::vector<std::string>;

struct Model : platform::ObservableObject {
    platform::Published<std::string> name{*this, "one"};
    platform::Published<bool> showsMenu{*this, true};
    platform::Published<std::optional<std::string>> message{*this, std::nullopt};
};

// A menu 40 wide at the left, an area with a context menu and a popover over everything.
struct Root {
    Model* model;
    Log* log;
    ObservedObject<Model> observed;

    void connect(Context& context) { context.connect(observed); }
    View entries() const {
        *log = {"evaluated " + model->name.get()};
        return Group(Button([this, name = model->name.get()] { log->push_back(name + " of " + model->name.get()); },
                            Label(model->name.get(), "folder")),
                     Divider(), Text("nothing"), HStack({}, Image("doc"), Text("plain")));
    }
    View body() const {
        const Binding<bool> isPresented{[this] { return model->message.get().has_value(); },
                                        [this](bool value) {
                                            if (!value) model->message.set(std::nullopt);
                                        }};
        return GeometryReader([this](CGSize) {
                   return HStack({.spacing = 0},
                                 model->showsMenu.get()
                                     ? Menu([this] { return entries(); }, View(Color{}).frame({.width = 40}))
                                     : EmptyView(),
                                 View(Color{}));
               })
            .contextMenu([this] { return Group(Button("about", [this] { log->emplace_back("about"); })); })
            .popover(isPresented, Edge::bottom, [this] { return Text(model->message.get().value_or("")).padding(10); });
    }
};

class HostMenusTest : public testing::Test {
protected:
    kit::Desk desk;
    kit::Probe& probe = kit::launchProbe(desk);
    Model model;
    Log log;
    std::shared_ptr<kit::RecordingPanel> panel = probe.panel(CGRectMake(100, 700, 400, 44));

    void SetUp() override {
        panel->setContentView(
            std::make_unique<NSHostingView<Root>>(probe.platform, Root{&model, &log, ObservedObject<Model>(model)}));
        panel->makeKeyWindow();
        desk.machine.settle();
    }
    const desk::OpenMenu* menu() const { return desk.machine.menus.menu(); }
    CGPoint row(std::size_t index) const {
        const CGRect frame = menu()->frameOf(index);
        return {frame.midX(), frame.midY()};
    }
    // What the popovers say, each with its width.
    Log popovers() const {
        Log texts;
        for (const auto& shown : desk.machine.menus.popovers()) {
            const auto& host = dynamic_cast<const HostingView&>(*shown.popover->content);
            texts.push_back(host.elements().front().value + " " + std::to_string(shown.place.body.width()));
        }
        return texts;
    }
};

TEST_F(HostMenusTest, AMenuIsEvaluatedInThePressThatOpensIt) {
    EXPECT_TRUE(log.empty());
    desk.press({120, 720});
    EXPECT_EQ(log, Log{"evaluated one"});
    ASSERT_NE(menu(), nullptr);
    EXPECT_EQ(menu()->frame().maxY(), 698);
    ASSERT_EQ(menu()->items().size(), 4U);
    struct Shown {
        const char* title;
        const char* symbol;
        bool enabled;
        bool isSeparator;
    };
    const Shown expected[] = {{"one", "folder", true, false},
                              {"", "", true, true},
                              {"nothing", "", false, false},
                              {"plain", "doc", false, false}};
    for (std::size_t index = 0; index < 4; ++index) {
        const platform::MenuItem& item = menu()->items()[index];
        EXPECT_EQ(item.title, expected[index].title);
        EXPECT_EQ(item.symbol, expected[index].symbol);
        EXPECT_EQ(item.enabled, expected[index].enabled);
        EXPECT_EQ(item.isSeparator, expected[index].isSeparator);
    }
}

TEST_F(HostMenusTest, WhatWasDeclaredStaysUntilAnEntryIsChosen) {
    desk.click({120, 720});
    model.name.set("two");
    desk.machine.settle();
    panel->setFrame(CGRectMake(100, 700, 500, 44), true);
    desk.machine.settle();
    model.showsMenu.set(false);
    desk.machine.settle();
    ASSERT_NE(menu(), nullptr);
    EXPECT_EQ(menu()->items().front().title, "one");
    desk.click(row(0));
    EXPECT_EQ(log.back(), "one of two");
}

TEST_F(HostMenusTest, AContextMenuOpensAtTheRightOrControlledPress) {
    desk.click({300, 720}, desk::MouseButton::right);
    ASSERT_NE(menu(), nullptr);
    EXPECT_EQ(menu()->frame().minX(), 300);
    EXPECT_EQ(menu()->frame().maxY(), 720);
    desk.click(row(0));
    EXPECT_EQ(log, Log{"about"});
    platform::NSEvent press;
    press.type = platform::NSEventType::leftMouseDown;
    press.modifierFlags = platform::NSEventModifierFlags::control;
    press.locationInWindow = {20, 20};
    panel->sendEvent(press);
    ASSERT_NE(menu(), nullptr);
    EXPECT_EQ(menu()->items().front().title, "about") << "not the menu under it";
}

TEST_F(HostMenusTest, AMenuGoesWithItsPanel) {
    desk.click({120, 720});
    panel->orderOut();
    EXPECT_EQ(menu(), nullptr);
}

TEST_F(HostMenusTest, APopoverIsUpWhileItIsPresentedAndSaysWhatIsSaidNow) {
    model.message.set("no");
    desk.machine.settle();
    EXPECT_EQ(popovers(), Log{"no 36.000000"});
    model.message.set("never");
    desk.machine.settle();
    EXPECT_EQ(popovers(), Log{"never 59.000000"});
    model.message.set(std::nullopt);
    desk.machine.settle();
    EXPECT_EQ(popovers(), Log{});
}

TEST_F(HostMenusTest, DismissingAPopoverClearsItsBindingSoThatItCanComeAgain) {
    for (int time = 0; time < 2; ++time) {
        model.message.set("no");
        desk.machine.settle();
        EXPECT_EQ(popovers().size(), 1U);
        desk.click({900, 300});
        EXPECT_EQ(popovers(), Log{});
        EXPECT_EQ(model.message.get(), std::nullopt);
    }
    model.message.set("no");
    desk.machine.settle();
    panel.reset();
    EXPECT_EQ(popovers(), Log{});
}

TEST_F(HostMenusTest, APopoverDismissedAndPresentedInTheSameTurnComesUpAgain) {
    model.message.set("no");
    desk.machine.settle();
    desk.machine.input.mouseDown({900, 300}, desk::MouseButton::left, 1);
    EXPECT_EQ(popovers(), Log{});
    probe.platform.dispatch.mainAsync([this] { model.message.set("no"); });
    desk.machine.settle();
    EXPECT_EQ(popovers(), Log{"no 36.000000"});
    EXPECT_EQ(model.message.get(), "no");
    desk.release({900, 300});
    desk.click({900, 300});
    EXPECT_EQ(popovers(), Log{});
}

struct Extra {
    Model* model;
    Log* log;
    ObservedObject<Model> observed;

    void connect(Context& context) { context.connect(observed); }
    View body() const {
        return Group(Text(model->name.get()), Group(Button("Off", [] {}), Text("plain")).disabled(true),
                     Button("Act", [this] { log->push_back("acted on " + model->name.get()); }))
            .task([this] {
                log->push_back("task");
                model->name.set("two");
                return Task();
            });
    }
};

TEST_F(HostMenusTest, AMenuBarExtraFollowsWhatItObservesWhileItsMenuIsOpen) {
    const std::size_t before = model.observerCount();
    const MenuBarExtraHost extra(
        probe.platform, MenuBarExtra(
                            [this] {
                                return Extra{&model, &log, ObservedObject<Model>(model)};
                            },
                            View(Image(platform::NSImage("icon", {20, 20}, nullptr)).accessibilityLabel("Extra"))));
    const auto item = desk.machine.menuBar.items().front();
    EXPECT_EQ(item->label, "Extra");
    const CGRect frame = desk.machine.menuBar.frameOf(*item).value();
    EXPECT_EQ(model.observerCount(), before) << "nothing is evaluated before the menu opens";

    desk.press({frame.midX(), frame.midY()});
    ASSERT_NE(menu(), nullptr);
    std::string shown;
    for (const platform::MenuItem& entry : menu()->items()) shown += entry.title + (entry.enabled ? "* " : " ");
    EXPECT_EQ(shown, "two Off plain Act* ");
    EXPECT_EQ(log, Log{"task"});
    model.name.set("three");
    desk.machine.settle();
    EXPECT_EQ(menu()->items().front().title, "three");
    EXPECT_EQ(log, Log{"task"}) << "it is the same menu";
    desk.dragTo(row(3));
    desk.release(row(3));
    EXPECT_EQ(log, (Log{"task", "acted on three"}));
    EXPECT_EQ(model.observerCount(), before) << "it went with the menu";
}

}  // namespace
