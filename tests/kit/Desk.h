// A machine in virtual time with a person at it, for tests: folder trees, Finder windows, mouse and keyboard in one line each. What a person does is played as
// steps, which nested loops of an application pull. It launches nothing by itself.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>

#include "desk/Machine.h"
#include "desk/time/Scheduler.h"
#include "tests/kit/FixedText.h"

namespace kit {

class Desk : public desk::Driver {
public:
    Desk() : ownText(std::make_unique<FixedText>()), machine(*ownText) { machine.scheduler.setDriver(this); }
    explicit Desk(std::unique_ptr<platform::TextSystem> text) : ownText(std::move(text)), machine(*ownText) {
        machine.scheduler.setDriver(this);
    }
    ~Desk() override { machine.scheduler.setDriver(nullptr); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

private:
    std::unique_ptr<platform::TextSystem> ownText;

public:
    desk::Machine machine;

    // A path that ends in a slash is a folder, any other a file of one line. Folders on the way are made.
    void tree(std::initializer_list<std::string> paths) {
        for (const std::string& path : paths) {
            if (path.back() == '/')
                machine.disk.makeFolder(path.substr(0, path.size() - 1));
            else
                machine.disk.makeFile(path, "text\n");
        }
    }

    // Windows 101 on /Users/ana/Work/One and 102, in front and overlapping it, on /Users/ana/Work/Two.
    std::pair<std::int64_t, std::int64_t> twoWindows() {
        tree({"/Users/ana/Work/One/", "/Users/ana/Work/Two/"});
        const auto one = machine.finder.open("/Users/ana/Work/One", platform::CGRectMake(100, 200, 800, 500));
        const auto two = machine.finder.open("/Users/ana/Work/Two", platform::CGRectMake(400, 100, 700, 400));
        machine.settle();
        return {one.value_or(0), two.value_or(0)};
    }

    void run(double seconds) { machine.advance(platform::seconds(seconds)); }

    void press(platform::CGPoint point, desk::MouseButton button = desk::MouseButton::left, int clickCount = 1) {
        play([this, point, button, clickCount] { machine.input.mouseDown(point, button, clickCount); });
    }
    void moveTo(platform::CGPoint point) {
        play([this, point] { machine.input.mouseMoved(point); });
    }
    void dragTo(platform::CGPoint point) {
        play([this, point] { machine.input.mouseDragged(point); });
    }
    void release(platform::CGPoint point, desk::MouseButton button = desk::MouseButton::left) {
        play([this, point, button] { machine.input.mouseUp(point, button); });
    }
    void click(platform::CGPoint point, desk::MouseButton button = desk::MouseButton::left) {
        then([this, point, button] { machine.input.mouseDown(point, button); });
        release(point, button);
    }
    // Press, moves evenly spread over the seconds, release.
    void drag(platform::CGPoint from, platform::CGPoint to, int stepCount = 10, double over = 0) {
        then([this, from] { machine.input.mouseDown(from, desk::MouseButton::left); });
        for (int step = 1; step <= stepCount; ++step) {
            const double part = static_cast<double>(step) / stepCount;
            const platform::CGPoint point{from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
            then([this, over, stepCount] { run(over / stepCount); });
            then([this, point] { machine.input.mouseDragged(point); });
        }
        release(to);
    }
    void key(const std::string& combination) {
        const desk::KeyStroke stroke = desk::keyStroke(combination).value();
        then([this, stroke] { machine.input.keyDown(stroke); });
        play([this, stroke] { machine.input.keyUp(stroke); });
    }
    // ASCII.
    void type(const std::string& text) {
        for (const char character : text) {
            const desk::KeyStroke stroke = desk::keyStrokeTyping(std::string(1, character));
            then([this, stroke] { machine.input.keyDown(stroke); });
            then([this, stroke] { machine.input.keyUp(stroke); });
        }
        play([] {});
    }

    // A step that waits until the present one and those before it have been played.
    void then(std::function<void()> step) { steps.push_back(std::move(step)); }
    // The same, and plays all there are. What is due after a step runs before the next one.
    void play(std::function<void()> step) {
        then(std::move(step));
        machine.settle();
        while (this->step()) {}
    }

    bool step() override {
        if (steps.empty()) return false;
        const auto next = std::move(steps.front());
        steps.pop_front();
        next();
        machine.settle();
        return true;
    }

private:
    std::deque<std::function<void()>> steps;
};

}  // namespace kit
