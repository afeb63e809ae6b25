#include "desk/keys/KeyStroke.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "platform/Events.h"

namespace desk {

namespace {

namespace Flags = platform::NSEventModifierFlags;

struct Modifier {
    std::string_view name;
    std::uint64_t flag;
};
constexpr Modifier namedModifiers[] = {
    {"cmd", Flags::command},  {"command", Flags::command}, {"shift", Flags::shift},
    {"ctrl", Flags::control}, {"control", Flags::control}, {"alt", Flags::option},
    {"opt", Flags::option},   {"option", Flags::option},   {"capslock", Flags::capsLock}};

struct NamedKey {
    std::string_view name;
    std::uint16_t keyCode;
    std::string_view characters;
};
constexpr NamedKey namedKeys[] = {{"return", 36, "\r"},
                                  {"enter", 76, "\x03"},
                                  {"tab", 48, "\t"},
                                  {"space", 49, " "},
                                  {"escape", 53, "\x1b"},
                                  {"esc", 53, "\x1b"},
                                  {"delete", 51, "\x7f"},
                                  {"backspace", 51, "\x7f"},
                                  {"forward-delete", 117, "\uF728"},
                                  {"forwarddelete", 117, "\uF728"},
                                  {"left", 123, "\uF702"},
                                  {"right", 124, "\uF703"},
                                  {"down", 125, "\uF701"},
                                  {"up", 126, "\uF700"},
                                  {"home", 115, "\uF729"},
                                  {"end", 119, "\uF72B"},
                                  {"page-up", 116, "\uF72C"},
                                  {"page-down", 121, "\uF72D"},
                                  {"pageup", 116, "\uF72C"},
                                  {"pagedown", 121, "\uF72D"},
                                  {"f1", 122, "\uF704"},
                                  {"f2", 120, "\uF705"},
                                  {"f3", 99, "\uF706"},
                                  {"f4", 118, "\uF707"},
                                  {"f5", 96, "\uF708"},
                                  {"f6", 97, "\uF709"},
                                  {"f7", 98, "\uF70A"},
                                  {"f8", 100, "\uF70B"},
                                  {"f9", 101, "\uF70C"},
                                  {"f10", 109, "\uF70D"},
                                  {"f11", 103, "\uF70E"},
                                  {"f12", 111, "\uF70F"}};

// The US layout: what each key types without and with Shift.
struct LayoutKey {
    char plain;
    char shifted;
    std::uint16_t keyCode;
};
constexpr LayoutKey layout[] = {
    {'a', 'A', 0},   {'b', 'B', 11}, {'c', 'C', 8},  {'d', 'D', 2},  {'e', 'E', 14}, {'f', 'F', 3},   {'g', 'G', 5},
    {'h', 'H', 4},   {'i', 'I', 34}, {'j', 'J', 38}, {'k', 'K', 40}, {'l', 'L', 37}, {'m', 'M', 46},  {'n', 'N', 45},
    {'o', 'O', 31},  {'p', 'P', 35}, {'q', 'Q', 12}, {'r', 'R', 15}, {'s', 'S', 1},  {'t', 'T', 17},  {'u', 'U', 32},
    {'v', 'V', 9},   {'w', 'W', 13}, {'x', 'X', 7},  {'y', 'Y', 16}, {'z', 'Z', 6},  {'1', '!', 18},  {'2', '@', 19},
    {'3', '#', 20},  {'4', '$', 21}, {'5', '%', 23}, {'6', '^', 22}, {'7', '&', 26}, {'8', '*', 28},  {'9', '(', 25},
    {'0', ')', 29},  {'-', '_', 27}, {'=', '+', 24}, {'[', '{', 33}, {']', '}', 30}, {'\\', '|', 42}, {';', ':', 41},
    {'\'', '"', 39}, {'`', '~', 50}, {',', '<', 43}, {'.', '>', 47}, {'/', '?', 44}, {' ', ' ', 49}};

// Of characters that no key of the layout types.
constexpr std::uint16_t noKeyCode = 0xFF;

const LayoutKey* layoutKeyTyping(char character) {
    const auto* found = std::find_if(std::begin(layout), std::end(layout), [&](const LayoutKey& key) {
        return key.plain == character || key.shifted == character;
    });
    return found == std::end(layout) ? nullptr : found;
}

std::uint64_t modifierNamed(std::string_view name) {
    const auto* found = std::find_if(std::begin(namedModifiers), std::end(namedModifiers),
                                     [&](const Modifier& entry) { return entry.name == name; });
    return found == std::end(namedModifiers) ? 0 : found->flag;
}

std::optional<KeyStroke> keyNamed(const std::string& name, std::uint64_t flags) {
    const auto* found = std::find_if(std::begin(namedKeys), std::end(namedKeys),
                                     [&](const NamedKey& entry) { return entry.name == name; });
    if (found != std::end(namedKeys))
        return KeyStroke{found->keyCode, flags, std::string(found->characters), std::string(found->characters)};
    if (name.size() != 1) return std::nullopt;
    // Letters name the key, in either case; whether Shift is held is said by the combination.
    const LayoutKey* key = layoutKeyTyping(static_cast<char>(std::tolower(static_cast<unsigned char>(name.front()))));
    if (key == nullptr) return std::nullopt;
    const bool isUpper = std::isalpha(static_cast<unsigned char>(key->plain)) != 0 && (flags & Flags::capsLock) != 0;
    const bool isShifted =
        (flags & Flags::shift) != 0 || key->plain != std::tolower(static_cast<unsigned char>(name.front()));
    const std::string typed(1, isShifted || isUpper ? key->shifted : key->plain);
    return KeyStroke{key->keyCode, flags, typed, typed};
}

}  // namespace

std::optional<KeyStroke> keyStroke(const std::string& combination) {
    std::uint64_t flags = 0;
    std::size_t begin = 0;
    // A plus sign at the end is the key, not a division.
    for (std::size_t plus = combination.find('+'); plus != std::string::npos && plus + 1 < combination.size();
         plus = combination.find('+', begin)) {
        const std::uint64_t flag = modifierNamed(std::string_view(combination).substr(begin, plus - begin));
        if (flag == 0) return std::nullopt;
        flags |= flag;
        begin = plus + 1;
    }
    return keyNamed(combination.substr(begin), flags);
}

KeyStroke keyStrokeTyping(const std::string& character) {
    if (character == "\n") return {36, 0, "\r", "\r"};
    if (character == "\t") return {48, 0, character, character};
    const LayoutKey* key = character.size() == 1 ? layoutKeyTyping(character.front()) : nullptr;
    if (key == nullptr) return {noKeyCode, 0, character, character};
    const bool isShifted = key->plain != character.front();
    return {key->keyCode, isShifted ? Flags::shift : 0, character, character};
}

}  // namespace desk
