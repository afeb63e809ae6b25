// A text in a font, as the key of caches: owned when stored, only looked at when looked up.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Drawing.h"

namespace desk {

// Longer texts aren't kept: one that is being typed is another one at each key, and only titles come again.
inline constexpr std::size_t longestKeptText = 1024;

struct TextLookup {
    std::string_view text;
    platform::Font font;
};

struct TextKey {
    std::string text;
    platform::Font font;
    operator TextLookup() const { return {text, font}; }
};

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(const TextLookup& key) const {
        const std::size_t font = std::hash<double>{}(key.font.size) * 31 + static_cast<std::size_t>(key.font.weight);
        return std::hash<std::string_view>{}(key.text) ^ (font * 0x9e3779b97f4a7c15U);
    }
};

struct TextEqual {
    using is_transparent = void;
    bool operator()(const TextLookup& a, const TextLookup& b) const { return a.font == b.font && a.text == b.text; }
};

}  // namespace desk
