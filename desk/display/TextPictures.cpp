#include "desk/display/TextPictures.h"

#include <QPainter>
#include <QRectF>
#include <algorithm>
#include <string>
#include <utility>

namespace desk {

namespace {

// A long line's picture is worth more memory than its painting is time.
constexpr qsizetype largestKeptPicture = 96 * 1024;
constexpr double widestPicture = 16384;

TextPicture draw(const ShapedText& line, const QColor& color, double scale) {
    const QRectF bounds = line.bounds();
    const QRectF scaled(bounds.topLeft() * scale, bounds.size() * scale);
    QRect pixels = scaled.toAlignedRect().adjusted(-1, -1, 1, 1);
    TextPicture picture{QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied), pixels.topLeft(), line.metrics()};
    picture.image.fill(Qt::transparent);
    QPainter painter(&picture.image);
    painter.setPen(color);
    painter.translate(-picture.offset);
    painter.scale(scale, scale);
    line.paint(painter);
    return picture;
}

}  // namespace

TextPictures::TextPictures() : lines(512), texts(96), symbols(64) {}

const ShapedText* TextPictures::longLine(std::string_view text, platform::Font font, double scale) {
    // No letter is wider than four times its font's size.
    if (static_cast<double>(text.size()) * 4 * font.size * scale <= widestPicture) return nullptr;
    const ShapedText& line = shaped(text, font);
    return line.bounds().width() * scale > widestPicture ? &line : nullptr;
}

TextPicture TextPictures::text(std::string_view text, platform::Font font, const QColor& color, double scale) {
    const TextLookup lookup{text, font};
    if (const TextPicture* known = texts.find(TintedLookup{lookup, color.rgba(), scale})) return *known;
    TextPicture made = draw(shaped(text, font), color, scale);
    if (made.image.sizeInBytes() > largestKeptPicture) return made;
    return texts.insert({{std::string(text), font}, color.rgba(), scale}, std::move(made));
}

QImage TextPictures::symbol(std::string_view name, platform::Font font, const QColor& color, double scale) {
    if (const QImage* known = symbols.find(TintedLookup{{name, font}, color.rgba(), scale})) return *known;
    return symbols.insert({{std::string(name), font}, color.rgba(), scale},
                          symbolSet.picture(name, font, color, scale));
}

const ShapedText& TextPictures::shaped(std::string_view text, platform::Font font) {
    if (text.size() > longestKeptText) {
        if (!latestLong || latestLong->first.text != text || latestLong->first.font != font)
            latestLong.emplace(TextKey{std::string(text), font}, ShapedText(text, fonts.face(font)));
        return latestLong->second;
    }
    if (const ShapedText* known = lines.find(TextLookup{text, font})) return *known;
    return lines.insert({std::string(text), font}, ShapedText(text, fonts.face(font)));
}

}  // namespace desk
