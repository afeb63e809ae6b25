#include <ostream>
#include <string>

#include "play/Commands.h"
#include "play/ScriptPlayer.h"
#include "play/Target.h"

namespace play {

namespace {

void activate(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    if (!player.machine().activation.activate(arguments.text(0)))
        missingTarget("it isn't running: " + arguments.text(0));
}

void switchSpace(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    const std::int64_t space = arguments.integer(0);
    if (space < 1 || space > 100) badCommand("no space " + arguments.text(0));
    player.machine().windows.switchToSpace(static_cast<int>(space));
}

void mouse(ScriptPlayer& player, const Arguments& arguments) {
    using Event = void (*)(desk::Input&, const platform::CGPoint&, desk::MouseButton);
    using desk::Input;
    using desk::MouseButton;
    using platform::CGPoint;
    static constexpr Choice<Event> events[] = {
        {"down", [](Input& input, const CGPoint& point, MouseButton button) { input.mouseDown(point, button); }},
        {"drag", [](Input& input, const CGPoint& point, MouseButton) { input.mouseDragged(point); }},
        {"up", [](Input& input, const CGPoint& point, MouseButton button) { input.mouseUp(point, button); }},
        {"move", [](Input& input, const CGPoint& point, MouseButton) { input.mouseMoved(point); }}};
    arguments.requireCount(3, 4);
    if (arguments.count() == 4 && !arguments.is(3, "right")) badCommand("unknown word: " + arguments.text(3));
    const MouseButton button = arguments.count() == 4 ? MouseButton::right : MouseButton::left;
    choose(events, arguments, 0)(player.machine().input, arguments.point(1), button);
}

void click(ScriptPlayer& player, const Arguments& arguments) {
    const bool isRight = arguments.is(0, "right");
    const bool isDouble = arguments.is(0, "double");
    const Arguments words = arguments.after(isRight || isDouble ? 1 : 0);
    const Target target = readTarget(player, words);
    words.requireCount(target.words, target.words);
    const desk::MouseButton button = isRight ? desk::MouseButton::right : desk::MouseButton::left;
    auto& input = player.machine().input;
    input.mouseMoved(target.point);
    for (int count = 1; count <= (isDouble ? 2 : 1); ++count) {
        player.then([&input, point = target.point, button, count] { input.mouseDown(point, button, count); });
        player.then([&input, point = target.point, button] { input.mouseUp(point, button); });
    }
}

// For whoever moves a real mouse.
void where(ScriptPlayer& player, const Arguments& arguments) {
    const Target target = readTarget(player, arguments);
    arguments.requireCount(target.words, target.words);
    player.output() << target.point.x << ' ' << target.point.y << '\n' << std::flush;
}

struct DragPlan {
    std::int64_t steps = 10;
    double seconds = 0;
};

DragPlan readDragPlan(const Arguments& options) {
    DragPlan plan;
    for (std::size_t i = 0; i < options.count(); i += 2) {
        if (options.is(i, "steps")) {
            plan.steps = options.integer(i + 1);
            if (plan.steps < 1 || plan.steps > 100000) badCommand("no number of steps: " + options.text(i + 1));
        } else if (options.is(i, "over")) {
            plan.seconds = options.seconds(i + 1);
        } else {
            badCommand("unknown word: " + options.text(i));
        }
    }
    return plan;
}

void drag(ScriptPlayer& player, const Arguments& arguments) {
    const Target target = readTarget(player, arguments);
    const Arguments words = arguments.after(target.words);
    if (!words.is(0, "by")) badCommand("by is missing");
    const platform::CGPoint way = words.point(1);
    const DragPlan plan = readDragPlan(words.after(3));

    auto& input = player.machine().input;
    input.mouseMoved(target.point);
    player.then([&input, point = target.point] { input.mouseDown(point, desk::MouseButton::left); });
    const platform::Duration pause = platform::seconds(plan.seconds / static_cast<double>(plan.steps));
    for (std::int64_t i = 1; i <= plan.steps; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(plan.steps);
        const platform::CGPoint point{target.point.x + way.x * part, target.point.y + way.y * part};
        if (pause.count() > 0) player.then([&player, pause] { player.machine().advance(pause); });
        player.then([&input, point] { input.mouseDragged(point); });
    }
    const platform::CGPoint end{target.point.x + way.x, target.point.y + way.y};
    player.then([&input, end] { input.mouseUp(end, desk::MouseButton::left); });
}

void scroll(ScriptPlayer& player, const Arguments& arguments) {
    const Target target = readTarget(player, arguments);
    const Arguments words = arguments.after(target.words);
    words.requireCount(2, 2);
    if (!words.is(0, "by")) badCommand("by is missing");
    const double distance = words.number(1);
    auto& input = player.machine().input;
    input.mouseMoved(target.point);
    player.then([&input, point = target.point, distance] { input.scrollWheel(point, 0, distance); });
}

void pressKey(ScriptPlayer& player, const desk::KeyStroke& stroke) {
    auto& input = player.machine().input;
    player.then([&input, stroke] { input.keyDown(stroke); });
    player.then([&input, stroke] { input.keyUp(stroke); });
}

void key(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    const auto stroke = desk::keyStroke(arguments.text(0));
    if (!stroke) badCommand("no such key: " + arguments.text(0));
    pressKey(player, *stroke);
}

// The bytes of the first character of the text, which isn't empty.
std::size_t lengthOfFirstCharacter(const std::string& text) {
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) ++length;
    return length;
}

void type(ScriptPlayer& player, const Arguments& arguments) {
    std::string text = arguments.rest(0);
    while (!text.empty()) {
        const std::size_t length = lengthOfFirstCharacter(text);
        pressKey(player, desk::keyStrokeTyping(text.substr(0, length)));
        text.erase(0, length);
    }
}

void wait(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    player.machine().advance(platform::seconds(arguments.seconds(0)));
}

}  // namespace

const std::vector<Command>& inputCommands() {
    static const std::vector<Command> table{
        {"activate", activate}, {"space", switchSpace}, {"mouse", mouse}, {"click", click}, {"drag", drag},
        {"scroll", scroll},     {"key", key},           {"type", type},   {"wait", wait},   {"where", where}};
    return table;
}

}  // namespace play
