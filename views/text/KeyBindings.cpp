#include "views/text/KeyBindings.h"

#include <cstdint>

namespace views {

namespace {

namespace Flags = platform::NSEventModifierFlags;

constexpr std::uint64_t none = 0;
constexpr std::uint64_t shift = Flags::shift;
constexpr std::uint64_t option = Flags::option;
constexpr std::uint64_t command = Flags::command;
constexpr std::uint64_t control = Flags::control;

// Keys go by the character that they make without modifiers.
struct KeyBinding {
    std::string_view key;
    std::uint64_t modifiers;
    std::string_view command;
};

constexpr std::string_view left = "\uF702";
constexpr std::string_view right = "\uF703";
constexpr std::string_view up = "\uF700";
constexpr std::string_view down = "\uF701";
constexpr std::string_view home = "\uF729";
constexpr std::string_view end = "\uF72B";
constexpr std::string_view backspace = "\x7F";
constexpr std::string_view forwardDelete = "\uF728";

constexpr KeyBinding textBindings[] = {
    {left, none, "moveLeft:"},
    {left, shift, "moveLeftAndModifySelection:"},
    {left, option, "moveWordLeft:"},
    {left, option | shift, "moveWordLeftAndModifySelection:"},
    {left, command, "moveToBeginningOfLine:"},
    {left, command | shift, "moveToBeginningOfLineAndModifySelection:"},
    {right, none, "moveRight:"},
    {right, shift, "moveRightAndModifySelection:"},
    {right, option, "moveWordRight:"},
    {right, option | shift, "moveWordRightAndModifySelection:"},
    {right, command, "moveToEndOfLine:"},
    {right, command | shift, "moveToEndOfLineAndModifySelection:"},
    {up, none, "moveUp:"},
    {up, shift, "moveUpAndModifySelection:"},
    {up, option, "moveUp:"},
    {up, option | shift, "moveUpAndModifySelection:"},
    {up, command, "moveUp:"},
    {up, command | shift, "moveUpAndModifySelection:"},
    {down, none, "moveDown:"},
    {down, shift, "moveDownAndModifySelection:"},
    {down, option, "moveDown:"},
    {down, option | shift, "moveDownAndModifySelection:"},
    {down, command, "moveDown:"},
    {down, command | shift, "moveDownAndModifySelection:"},
    {home, none, "moveToBeginningOfLine:"},
    {home, shift, "moveToBeginningOfLineAndModifySelection:"},
    {end, none, "moveToEndOfLine:"},
    {end, shift, "moveToEndOfLineAndModifySelection:"},
    {backspace, none, "deleteBackward:"},
    {backspace, shift, "deleteBackward:"},
    {backspace, option, "deleteWordBackward:"},
    {backspace, command, "deleteToBeginningOfLine:"},
    {forwardDelete, none, "deleteForward:"},
    {forwardDelete, shift, "deleteForward:"},
    {forwardDelete, option, "deleteWordForward:"},
    {forwardDelete, command, "deleteToEndOfLine:"},
    {"\r", none, "insertNewline:"},
    {"\r", shift, "insertNewline:"},
    {"\x03", none, "insertNewline:"},
    {"\t", none, "insertTab:"},
    {"\t", shift, "insertBacktab:"},
    {"\x19", shift, "insertBacktab:"},
    {"\x1B", none, "cancelOperation:"},
    {".", command, "cancelOperation:"},
    {"a", control, "moveToBeginningOfLine:"},
    {"a", control | shift, "moveToBeginningOfLineAndModifySelection:"},
    {"e", control, "moveToEndOfLine:"},
    {"e", control | shift, "moveToEndOfLineAndModifySelection:"},
    {"b", control, "moveLeft:"},
    {"b", control | shift, "moveLeftAndModifySelection:"},
    {"f", control, "moveRight:"},
    {"f", control | shift, "moveRightAndModifySelection:"},
    {"p", control, "moveUp:"},
    {"n", control, "moveDown:"},
    {"h", control, "deleteBackward:"},
    {"d", control, "deleteForward:"},
    {"k", control, "deleteToEndOfLine:"},
};

constexpr KeyBinding editMenuBindings[] = {
    {"a", command, "selectAll:"}, {"c", command, "copy:"}, {"v", command, "paste:"},
    {"x", command, "cut:"},       {"z", command, "undo:"}, {"z", command | shift, "redo:"},
};

std::string lowercase(std::string text) {
    for (char& each : text)
        if (each >= 'A' && each <= 'Z') each = static_cast<char>(each - 'A' + 'a');
    return text;
}

template <std::size_t size>
std::string_view commandIn(const KeyBinding (&bindings)[size], const platform::NSEvent& keyDown) {
    const std::string key = lowercase(keyDown.charactersIgnoringModifiers.value_or(keyDown.characters));
    const std::uint64_t modifiers = keyDown.modifierFlags & (shift | option | command | control);
    for (const KeyBinding& binding : bindings)
        if (binding.key == key && binding.modifiers == modifiers) return binding.command;
    return {};
}

// Control characters, and the private ones that stand for keys such as arrows (U+F700 to U+F8FF).
bool isText(std::string_view characters) {
    const auto first = static_cast<unsigned char>(characters.front());
    if (first < 0x20 || first == 0x7F) return false;
    return !(characters >= "\uF700" && characters < "\uF900");
}

}  // namespace

std::string_view textCommand(const platform::NSEvent& keyDown) {
    return commandIn(textBindings, keyDown);
}

std::string_view editMenuCommand(const platform::NSEvent& keyDown) {
    return commandIn(editMenuBindings, keyDown);
}

std::string typedText(const platform::NSEvent& keyDown) {
    const bool isShortcut = (keyDown.modifierFlags & (command | control)) != 0;
    const std::string& characters = keyDown.characters;
    return isShortcut || characters.empty() || !isText(characters) ? std::string() : characters;
}

}  // namespace views
