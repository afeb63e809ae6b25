#include "views/text/KeyBindings.h"

#include <cstdint>

namespace views {

namespace {

namespace Flags = platform::NSEventModifierFlags;

namespace keys {

constexpr std::uint64_t none = 0;
constexpr std::uint64_t shift = Flags::shift;
constexpr std::uint64_t option = Flags::option;
constexpr std::uint64_t command = Flags::command;
constexpr std::uint64_t control = Flags::control;

constexpr std::string_view left = "\uF702";
constexpr std::string_view right = "\uF703";
constexpr std::string_view up = "\uF700";
constexpr std::string_view down = "\uF701";
constexpr std::string_view home = "\uF729";
constexpr std::string_view end = "\uF72B";
constexpr std::string_view backspace = "\x7F";
constexpr std::string_view forwardDelete = "\uF728";

}  // namespace keys

// Keys go by the character that they make without modifiers.
struct KeyBinding {
    std::string_view key;
    std::uint64_t modifiers;
    std::string_view command;
};

constexpr KeyBinding textBindings[] = {
    {keys::left, keys::none, "moveLeft:"},
    {keys::left, keys::shift, "moveLeftAndModifySelection:"},
    {keys::left, keys::option, "moveWordLeft:"},
    {keys::left, keys::option | keys::shift, "moveWordLeftAndModifySelection:"},
    {keys::left, keys::command, "moveToBeginningOfLine:"},
    {keys::left, keys::command | keys::shift, "moveToBeginningOfLineAndModifySelection:"},
    {keys::right, keys::none, "moveRight:"},
    {keys::right, keys::shift, "moveRightAndModifySelection:"},
    {keys::right, keys::option, "moveWordRight:"},
    {keys::right, keys::option | keys::shift, "moveWordRightAndModifySelection:"},
    {keys::right, keys::command, "moveToEndOfLine:"},
    {keys::right, keys::command | keys::shift, "moveToEndOfLineAndModifySelection:"},
    {keys::up, keys::none, "moveUp:"},
    {keys::up, keys::shift, "moveUpAndModifySelection:"},
    {keys::up, keys::option, "moveUp:"},
    {keys::up, keys::option | keys::shift, "moveUpAndModifySelection:"},
    {keys::up, keys::command, "moveUp:"},
    {keys::up, keys::command | keys::shift, "moveUpAndModifySelection:"},
    {keys::down, keys::none, "moveDown:"},
    {keys::down, keys::shift, "moveDownAndModifySelection:"},
    {keys::down, keys::option, "moveDown:"},
    {keys::down, keys::option | keys::shift, "moveDownAndModifySelection:"},
    {keys::down, keys::command, "moveDown:"},
    {keys::down, keys::command | keys::shift, "moveDownAndModifySelection:"},
    {keys::home, keys::none, "moveToBeginningOfLine:"},
    {keys::home, keys::shift, "moveToBeginningOfLineAndModifySelection:"},
    {keys::end, keys::none, "moveToEndOfLine:"},
    {keys::end, keys::shift, "moveToEndOfLineAndModifySelection:"},
    {keys::backspace, keys::none, "deleteBackward:"},
    {keys::backspace, keys::shift, "deleteBackward:"},
    {keys::backspace, keys::option, "deleteWordBackward:"},
    {keys::backspace, keys::command, "deleteToBeginningOfLine:"},
    {keys::forwardDelete, keys::none, "deleteForward:"},
    {keys::forwardDelete, keys::shift, "deleteForward:"},
    {keys::forwardDelete, keys::option, "deleteWordForward:"},
    {keys::forwardDelete, keys::command, "deleteToEndOfLine:"},
    {"\r", keys::none, "insertNewline:"},
    {"\r", keys::shift, "insertNewline:"},
    {"\x03", keys::none, "insertNewline:"},
    {"\t", keys::none, "insertTab:"},
    {"\t", keys::shift, "insertBacktab:"},
    {"\x19", keys::shift, "insertBacktab:"},
    {"\x1B", keys::none, "cancelOperation:"},
    {".", keys::command, "cancelOperation:"},
    {"a", keys::control, "moveToBeginningOfLine:"},
    {"a", keys::control | keys::shift, "moveToBeginningOfLineAndModifySelection:"},
    {"e", keys::control, "moveToEndOfLine:"},
    {"e", keys::control | keys::shift, "moveToEndOfLineAndModifySelection:"},
    {"b", keys::control, "moveLeft:"},
    {"b", keys::control | keys::shift, "moveLeftAndModifySelection:"},
    {"f", keys::control, "moveRight:"},
    {"f", keys::control | keys::shift, "moveRightAndModifySelection:"},
    {"p", keys::control, "moveUp:"},
    {"n", keys::control, "moveDown:"},
    {"h", keys::control, "deleteBackward:"},
    {"d", keys::control, "deleteForward:"},
    {"k", keys::control, "deleteToEndOfLine:"},
};

constexpr KeyBinding editMenuBindings[] = {
    {"a", keys::command, "selectAll:"}, {"c", keys::command, "copy:"}, {"v", keys::command, "paste:"},
    {"x", keys::command, "cut:"},       {"z", keys::command, "undo:"}, {"z", keys::command | keys::shift, "redo:"},
};

std::string lowercase(std::string text) {
    for (char& each : text)
        if (each >= 'A' && each <= 'Z') each = static_cast<char>(each - 'A' + 'a');
    return text;
}

template <std::size_t size>
std::string_view commandIn(const KeyBinding (&bindings)[size], const platform::NSEvent& keyDown) {
    const std::string key = lowercase(keyDown.charactersIgnoringModifiers.value_or(keyDown.characters));
    const std::uint64_t modifiers =
        keyDown.modifierFlags & (Flags::shift | Flags::option | Flags::command | Flags::control);
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
    const bool isShortcut = (keyDown.modifierFlags & (Flags::command | Flags::control)) != 0;
    const std::string& characters = keyDown.characters;
    return isShortcut || characters.empty() || !isText(characters) ? std::string() : characters;
}

}  // namespace views
