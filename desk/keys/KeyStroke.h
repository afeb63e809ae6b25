// The keys of a keyboard with the US layout: what a combination of keys, or a character, is as a press of a key. It knows of no window and delivers nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace desk {

// A key as the platform names it: what it types, and without modifiers.
struct KeyStroke {
    std::uint16_t keyCode = 0;
    std::uint64_t modifiers = 0;
    std::string characters;
    std::string charactersIgnoringModifiers;
};

// "cmd+l", "shift+cmd+n", "return", "left", "f12"; empty when there is no such key.
std::optional<KeyStroke> keyStroke(const std::string& combination);
// The key that types one character (UTF-8).
KeyStroke keyStrokeTyping(const std::string& character);

}  // namespace desk
