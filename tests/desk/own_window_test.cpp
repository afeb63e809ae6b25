// A titled window of a launched application, as the application sees it.
#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "tests/desk/Probe.h"

namespace {

using platform::CGPoint;
using platform::CGRectMake;
namespace Style = platform::NSWindowStyleMask;

// What an application's window tells it, as lines.
using Log = std::vector<std::string>;

class Content final : public platform::ContentView {
public:
    Content(Log& theLog, bool accepts) : log(theLog), acceptsFirst(accepts) {}
    void didMoveToWindow(platform::NSWindow*) override {}
    void setSize(platform::CGSize size) override {
        log.push_back("height " + std::to_string(std::lround(size.height)));
    }
    void setOnScreen(bool onScreen) override { log.emplace_back(onScreen ? "on" : "off"); }
    bool acceptsFirstMouse(const platform::NSEvent&) override { return acceptsFirst; }
    void handleEvent(const platform::NSEvent& event) override {
        log.push_back("event " + std::to_string(static_cast<int>(event.type)));
    }
    const platform::Drawing& drawing() override { return nothing; }
    std::uint64_t drawingVersion() const override { return 0; }

private:
    Log& log;
    bool acceptsFirst;
    platform::Drawing nothing;
};

struct Delegate final : platform::NSWindowDelegate {
    explicit Delegate(Log& theLog) : log(theLog) {}
    void windowWillClose() override { log.emplace_back("will close"); }
    Log& log;
};

class OwnWindow : public testing::Test {
protected:
    OwnWindow() { desk.machine.displays.set({{CGRectMake(0, 0, 1440, 900), 60, 24, 70}}); }

    void open(bool acceptsFirst) {
        window = std::make_shared<platform::NSWindow>(probe.platform, CGRectMake(0, 0, 360, 390),
                                                      Style::titled | Style::closable,
                                                      platform::NSBackingStoreType::buffered, false);
        window->setDelegate(&delegate);
        window->setContentView(std::make_unique<Content>(log, acceptsFirst));
        window->center();
        window->orderFrontRegardless();
    }
    Log taken() { return std::exchange(log, {}); }

    kit::Desk desk;
    kit::Probe& probe = kit::launchProbe(desk);
    Log log;
    Delegate delegate{log};
    std::shared_ptr<platform::NSWindow> window;
};

TEST_F(OwnWindow, HasItsContentBelowTheTitleBarAndOnlyTheButtonsOfItsStyle) {
    open(false);
    // Two thirds of 806 - 418 below it.
    EXPECT_EQ(window->frame(), CGRectMake(540, 328, 360, 418));
    EXPECT_EQ(taken(), (Log{"height 390", "off", "on"}));
    for (const CGPoint button : {CGPoint{580, 732}, CGPoint{600, 732}}) desk.click(button);
    desk.drag({899, 329}, {950, 300}, 1);
    for (const int count : {1, 2}) {
        desk.press({720, 732}, desk::MouseButton::left, count);
        desk.release({720, 732});
    }
    desk.key("cmd+m");
    desk.key("escape");
    EXPECT_EQ(window->frame(), CGRectMake(540, 328, 360, 418));
    EXPECT_EQ(taken(), (Log{"event 1", "event 6", "event 2", "event 10", "event 11", "event 10", "event 11"}));
    EXPECT_TRUE(window->isKeyWindow());
    desk.key("cmd+w");
    EXPECT_EQ(taken(), (Log{"will close", "off"}));
    window->makeKeyAndOrderFront();
    desk.click({560, 732});
    EXPECT_EQ(taken(), (Log{"on", "will close", "off"}));
}

TEST_F(OwnWindow, GivesTheFirstClickToAContentThatAcceptsIt) {
    for (const bool accepts : {false, true}) {
        open(accepts);
        taken();
        desk.click({720, 500});
        EXPECT_EQ(taken(), accepts ? (Log{"event 1", "event 2"}) : Log{});
        EXPECT_TRUE(window->isKeyWindow());
        desk.click({720, 500});
        EXPECT_EQ(taken(), (Log{"event 1", "event 2"}));
        desk.machine.activation.activate("com.apple.finder");
        window->orderOut();
    }
}

}  // namespace
