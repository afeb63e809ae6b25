#include <fstream>
#include <ostream>
#include <string>

#include "play/BarParts.h"
#include "play/Commands.h"
#include "play/DeskState.h"
#include "play/DiskTree.h"
#include "play/Json.h"
#include "play/OrdinaryWindows.h"
#include "play/ScriptPlayer.h"
#include "play/Strokes.h"

namespace play {

namespace {

void write(const std::string& path, const std::string& line) {
    std::ofstream file(path, std::ios::binary);
    file << line << '\n' << std::flush;
    if (!file) badCommand("the file can't be written: " + path);
}

void state(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(0, 1);
    const std::string line = toText(stateOf(player.session()));
    if (arguments.count() == 0) {
        player.output() << line << '\n' << std::flush;
        return;
    }
    write(arguments.text(0), line);
}

void screenshot(ScriptPlayer& player, const Arguments& arguments) {
    constexpr double scale = 2;
    auto& session = player.session();
    QImage picture;
    if (arguments.count() == 1) {
        picture = session.compositor.compose(session.desktop.read(), scale);
    } else {
        arguments.requireCount(3, 3);
        if (!arguments.is(1, "bar")) badCommand("unknown word: " + arguments.text(1));
        const std::int64_t panel = panelNumber(session, player.finderWindow(arguments, 2));
        if (panel == 0) missingTarget("window " + arguments.text(2) + " has no bar");
        if (const auto content = session.desktop.contentOf(panel))
            picture = session.compositor.composeWindow(*content, session.machine.appearance.colorScheme.get(), scale);
    }
    if (!desk::savePng(picture, arguments.text(0))) badCommand("the file can't be written: " + arguments.text(0));
}

void tree(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(2, 2);
    player.requirePath(arguments.path(1));
    write(arguments.text(0), toText(treeBelow(player.machine().disk, arguments.path(1))));
}

// What is painted in the window or the item that the words behind the file name.
const platform::Drawing& drawingOf(ScriptPlayer& player, const Arguments& arguments) {
    auto& session = player.session();
    if (arguments.is(1, "window")) {
        platform::NSWindow* window = ordinaryWindow(session, arguments.text(2));
        if (window == nullptr) missingTarget("no window " + arguments.text(2) + " is on screen");
        return window->contentView()->drawing();
    }
    if (arguments.is(1, "status-item")) {
        const desk::BarItem* item = session.statusItem();
        if (item == nullptr) missingTarget("the application has no item in the menu bar");
        return *item->image.drawing();
    }
    if (!arguments.is(1, "bar")) badCommand("unknown word: " + arguments.text(1));
    const desk::ServerWindow* panel =
        session.machine.windows.find(panelNumber(session, player.finderWindow(arguments, 2)));
    if (panel == nullptr) missingTarget("window " + arguments.text(2) + " has no bar");
    return panel->window->contentView()->drawing();
}

void look(ScriptPlayer& player, const Arguments& arguments) {
    const std::size_t count = arguments.is(1, "status-item") ? 2 : 3;
    arguments.requireCount(count, count);
    write(arguments.text(0), toText(strokesOf(drawingOf(player, arguments))));
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

// JSON to the end of the line. A comment may follow; a quotation may hold the JSON, or the text itself.
QJsonValue expectedValue(const Arguments& arguments, std::size_t index) {
    const std::string_view source = trimmed(arguments.source(index));
    if (const auto value = parseJson(source)) return *value;
    for (std::size_t hash = source.rfind(" #"); hash != std::string_view::npos && hash > 0;
         hash = source.rfind(" #", hash - 1))
        if (const auto value = parseJson(source.substr(0, hash))) return *value;
    if (arguments.count() != index + 1) badCommand("not a JSON value: " + std::string(source));
    const std::string& word = arguments.text(index);
    if (const auto value = parseJson(word)) return *value;
    if (arguments.is(index, word)) badCommand("not a JSON value: " + word);
    return jsonText(std::string_view(word));
}

const std::string& pointerOf(const Arguments& arguments) {
    const std::string& pointer = arguments.text(0);
    if (!isPointer(pointer)) badCommand("not a JSON pointer: " + pointer);
    return pointer;
}

void expect(ScriptPlayer& player, const Arguments& arguments) {
    const std::string& pointer = pointerOf(arguments);
    const QJsonValue expected = expectedValue(arguments, 1);
    const auto found = valueAt(stateOf(player.session()), pointer);
    if (!found) missingTarget("nothing stands at " + pointer + ", expected " + toText(expected));
    if (!equal(*found, expected)) missingTarget(pointer + " is " + toText(*found) + ", expected " + toText(expected));
}

void expectNear(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(3, 3);
    const std::string& pointer = pointerOf(arguments);
    const double expected = arguments.number(1);
    const double tolerance = arguments.number(2);
    const auto found = valueAt(stateOf(player.session()), pointer);
    if (!found) missingTarget("nothing stands at " + pointer);
    const bool isNear = found->isDouble() && std::abs(found->toDouble() - expected) <= tolerance;
    if (!isNear)
        missingTarget(pointer + " is " + toText(*found) + ", expected " + arguments.text(1) + " within " +
                      arguments.text(2));
}

void expectMissing(ScriptPlayer& player, const Arguments& arguments) {
    arguments.requireCount(1, 1);
    const std::string& pointer = pointerOf(arguments);
    const auto found = valueAt(stateOf(player.session()), pointer);
    if (found) missingTarget(pointer + " is " + toText(*found) + ", expected nothing there");
}

void print(ScriptPlayer& player, const Arguments& arguments) {
    player.output() << (arguments.count() == 0 ? std::string() : arguments.rest(0)) << '\n' << std::flush;
}

}  // namespace

const std::vector<Command>& checkCommands() {
    static const std::vector<Command> table{{"state", state},
                                            {"screenshot", screenshot},
                                            {"look", look},
                                            {"tree", tree},
                                            {"expect", expect},
                                            {"expect-near", expectNear},
                                            {"expect-missing", expectMissing},
                                            {"print", print}};
    return table;
}

}  // namespace play
