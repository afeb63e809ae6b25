// A text or symbol name in a font, a colour and a scale, as the key of small pictures: owned when stored, only looked at when looked up.
#pragma once

#include <QRgb>
#include <cstddef>
#include <string>
#include <string_view>

#include "desk/display/TextKey.h"
#include "platform/Drawing.h"

namespace desk {

struct TintedLookup {
    TextLookup text;
    QRgb color;
    double scale;
};

struct TintedKey {
    TextKey text;
    QRgb color;
    double scale;
    operator TintedLookup() const { return {text, color, scale}; }
};

struct TintedHash {
    using is_transparent = void;
    std::size_t operator()(const TintedLookup& key) const { return TextHash{}(key.text) * 31 + key.color; }
};

struct TintedEqual {
    using is_transparent = void;
    bool operator()(const TintedLookup& a, const TintedLookup& b) const {
        return a.color == b.color && a.scale == b.scale && TextEqual{}(a.text, b.text);
    }
};

}  // namespace desk
