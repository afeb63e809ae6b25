// A window is used alike whoever has it: Finder, an application launched here, or one that the desk only sketches.
#include <gtest/gtest.h>

#include <sstream>

#include "desk/system/Dock.h"
#include "tests/desk/Probe.h"

namespace {

using kit::Desk;
using kit::Probe;
using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
namespace Style = platform::NSWindowStyleMask;

constexpr CGRect frameOfA = CGRectMake(100, 100, 600, 400);
constexpr CGRect frameOfB = CGRectMake(300, 200, 600, 400);
constexpr unsigned ordinary = Style::titled | Style::closable | Style::miniaturizable | Style::resizable;

// Windows A and, in front of it, B of one process, which is frontmost; then R of another one.
struct Windows {
    Desk desk;
    desk::Machine& machine = desk.machine;
    Probe& probe = kit::launchProbe(desk);
    std::int64_t a = 0;
    std::int64_t b = 0;
    std::vector<std::shared_ptr<platform::NSWindow>> own;

    Windows() {
        machine.displays.set({{CGRectMake(0, 0, 1440, 900), 60, 24, 70}});
        machine.launchServices.startOtherProcess("org.example.R");
    }
    std::int64_t front() { return machine.windows.onScreen().front()->number; }

    // Front to back what is on screen, then who has the keyboard, then what is in the Dock.
    std::string state() {
        machine.settle();
        const auto nameOf = [&](std::int64_t number) { return number == a ? "A" : number == b ? "B" : "R"; };
        std::ostringstream text;
        for (const auto* shown : machine.windows.onScreen()) {
            const CGRect& frame = shown->frame;
            text << nameOf(shown->number);
            if (shown->number == a || shown->number == b)
                text << '(' << frame.minX() << ' ' << frame.minY() << ' ' << frame.width() << ' ' << frame.height()
                     << ')';
            text << ' ';
        }
        std::int64_t key = machine.keyboard.keyWindow();
        if (key == 0) key = machine.activation.mainWindow(machine.processes.frontmost()->processIdentifier);
        text << "key " << (key == 0 ? "none" : nameOf(key));
        for (const auto& item : machine.dock.items())
            if (item.window != 0) text << " Dock " << nameOf(item.window);
        return text.str();
    }
    void doubleClick(CGPoint point) {
        for (const int count : {1, 2}) {
            desk.press(point, desk::MouseButton::left, count);
            desk.release(point);
        }
    }
    void clickInDock(std::int64_t window) {
        const auto items = machine.dock.items();
        const views::LaidOutView dock = machine.dock.shown({1440, 70});
        for (std::size_t i = 0; i < items.size(); ++i)
            if (const auto icon = dock.frameOf(std::to_string(i)); items[i].window == window)
                desk.click({icon->midX(), 70 - icon->midY()});
    }
};

struct Kind {
    const char* name;
    void (*open)(Windows& windows);
};
const Kind kinds[] = {
    {"Finders",
     [](Windows& w) {
         w.desk.tree({"/Users/ana/A/", "/Users/ana/B/"});
         w.a = w.machine.finder.open("/Users/ana/A", frameOfA).value();
         w.b = w.machine.finder.open("/Users/ana/B", frameOfB).value();
     }},
    {"OfALaunchedApplication",
     [](Windows& w) {
         for (const CGRect& frame : {frameOfA, frameOfB}) {
             const CGRect content{frame.origin, {frame.width(), frame.height() - 28}};
             w.own.push_back(std::make_shared<platform::NSWindow>(w.probe.platform, content, ordinary,
                                                                  platform::NSBackingStoreType::buffered, false));
             w.own.back()->setMinSize({320, 200});
             w.own.back()->makeKeyAndOrderFront();
             (&frame == &frameOfA ? w.a : w.b) = w.own.back()->windowNumber();
         }
         w.a = w.own.front()->windowNumber();
         w.b = w.own.back()->windowNumber();
         w.probe.platform.application.activate(true);
     }},
    {"Sketched",
     [](Windows& w) {
         w.desk.tree({"/Users/ana/A", "/Users/ana/B"});
         for (std::int64_t* number : {&w.a, &w.b}) {
             w.machine.launchServices.openFiles({number == &w.a ? "/Users/ana/A" : "/Users/ana/B"},
                                                "/System/Applications/Utilities/Terminal.app");
             w.machine.settle();
             *number = w.front();
             w.machine.windows.setFrame(*number, number == &w.a ? frameOfA : frameOfB);
         }
     }},
};

struct Behaviour {
    const char* name;
    void (*act)(Windows& windows);
    const char* state;
};
constexpr const char* untouched = "B(300 200 600 400) A(100 100 600 400) R key B";
constexpr const char* withoutB = "A(100 100 600 400) R key A";
constexpr const char* bInDock = "A(100 100 600 400) R key A Dock B";
const Behaviour behaviours[] = {
    {"as it begins", [](Windows&) {}, untouched},
    {"dragged by the title bar",
     [](Windows& w) {
         w.desk.drag({600, 586}, {650, 556});
     },
     "B(350 170 600 400) A(100 100 600 400) R key B"},
    {"dragged on through a right click",
     [](Windows& w) {
         w.desk.press({600, 586});
         w.desk.click({600, 586}, desk::MouseButton::right);
         w.desk.dragTo({650, 556});
         w.desk.release({650, 556});
     },
     "B(350 170 600 400) A(100 100 600 400) R key B"},
    {"dragged by a button",
     [](Windows& w) {
         w.desk.drag({320, 586}, {370, 916});
     },
     "B(350 530 600 400) A(100 100 600 400) R key B"},
    {"not dragged by its content",
     [](Windows& w) {
         w.desk.drag({600, 208}, {650, 260});
     },
     untouched},
    {"resized by a corner",
     [](Windows& w) {
         w.desk.drag({899, 201}, {949, 141});
     },
     "B(300 140 650 460) A(100 100 600 400) R key B"},
    {"resized no further than its limit",
     [](Windows& w) {
         w.desk.drag({899, 201}, {299, 801});
     },
     "B(300 400 320 200) A(100 100 600 400) R key B"},
    {"closed",
     [](Windows& w) {
         w.desk.click({320, 586});
     },
     withoutB},
    {"closed by key", [](Windows& w) { w.desk.key("cmd+w"); }, withoutB},
    {"not closed by Escape", [](Windows& w) { w.desk.key("escape"); }, untouched},
    {"not closed beside the button",
     [](Windows& w) {
         w.desk.drag({326, 586}, {329, 586});
     },
     untouched},
    {"both closed",
     [](Windows& w) {
         w.desk.key("cmd+w");
         w.desk.key("cmd+w");
     },
     "R key none"},
    {"minimised",
     [](Windows& w) {
         w.desk.click({340, 586});
     },
     bInDock},
    {"minimised by key", [](Windows& w) { w.desk.key("cmd+m"); }, bInDock},
    {"back from the Dock",
     [](Windows& w) {
         w.desk.key("cmd+m");
         w.clickInDock(w.b);
     },
     untouched},
    {"zoomed by a double click",
     [](Windows& w) {
         w.doubleClick({600, 586});
     },
     "B(0 70 1440 806) A(100 100 600 400) R key B"},
    {"zoomed and back",
     [](Windows& w) {
         w.doubleClick({600, 586});
         w.doubleClick({600, 862});
     },
     untouched},
    {"the one behind pressed",
     [](Windows& w) {
         w.desk.click({400, 110});
     },
     "A(100 100 600 400) B(300 200 600 400) R key A"},
    {"another process pressed",
     [](Windows& w) {
         w.desk.click({1100, 600});
     },
     "R B(300 200 600 400) A(100 100 600 400) key R"},
    {"pressed again after another process",
     [](Windows& w) {
         w.desk.click({1100, 600});
         w.desk.click({150, 150});
     },
     "A(100 100 600 400) R B(300 200 600 400) key A"},
};

TEST(WindowKindsTest, AreUsedAlike) {
    for (const Kind& kind : kinds)
        for (const Behaviour& behaviour : behaviours) {
            Windows windows;
            kind.open(windows);
            behaviour.act(windows);
            EXPECT_EQ(windows.state(), behaviour.state) << kind.name << ": " << behaviour.name;
        }
}

}  // namespace
