// Small pictures of texts and symbols in their colour, kept between paints: copying one is several times cheaper than drawing its glyphs. The picture
// of a text doesn't depend on what it is copied onto, nor on whether it was kept.
#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <optional>
#include <string_view>
#include <utility>

#include "desk/display/BoundedCache.h"
#include "desk/display/ShapedText.h"
#include "desk/display/SymbolSet.h"
#include "desk/display/SystemFonts.h"
#include "desk/display/TextKey.h"
#include "desk/display/TintedKey.h"
#include "platform/Drawing.h"
#include "platform/Text.h"

namespace desk {

// Where the top left pixel of the image stands as seen from the left end of the baseline.
struct TextPicture {
    QImage image;
    QPoint offset;
    platform::FontMetrics metrics;
};

class TextPictures {
public:
    TextPictures();

    // A line that is too long for a picture, most of which couldn't be seen anyway; null for any other.
    const ShapedText* longLine(std::string_view text, platform::Font font, double scale);
    TextPicture text(std::string_view text, platform::Font font, const QColor& color, double scale);
    // A null image for an unknown name.
    QImage symbol(std::string_view name, platform::Font font, const QColor& color, double scale);

private:
    const ShapedText& shaped(std::string_view text, platform::Font font);

    SystemFonts fonts;
    SymbolSet symbolSet;
    BoundedCache<TextKey, ShapedText, TextHash, TextEqual> lines;
    std::optional<std::pair<TextKey, ShapedText>> latestLong;
    BoundedCache<TintedKey, TextPicture, TintedHash, TintedEqual> texts;
    BoundedCache<TintedKey, QImage, TintedHash, TintedEqual> symbols;
};

}  // namespace desk
