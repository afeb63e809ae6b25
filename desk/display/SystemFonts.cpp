#include "desk/display/SystemFonts.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

namespace desk {

namespace {

QFont::Weight weightOf(platform::FontWeight weight) {
    constexpr std::array weights{QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold};
    return weights[std::min<std::size_t>(static_cast<std::size_t>(weight), weights.size() - 1)];
}

// The toolkit takes whole pixel sizes only, and the line of a font without a size is none.
int pixelSizeOf(double size) {
    return static_cast<int>(std::lround(std::clamp(size, 1.0, 512.0)));
}

QFont toolkitFont(platform::Font font) {
    QFont result;
    result.setFamilies({QString::fromLatin1(systemFontFamily), QStringLiteral("Noto Sans"),
                        QStringLiteral("Noto Color Emoji"), QStringLiteral("Noto Sans Symbols2")});
    result.setPixelSize(pixelSizeOf(font.size));
    result.setWeight(weightOf(font.weight));
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setStyleStrategy(QFont::PreferAntialias);
    return result;
}

// In halves of a point and whole lines, so that what is stacked below text starts on a pixel at 2x.
platform::FontMetrics lineOf(const QFontMetricsF& raw) {
    platform::FontMetrics result;
    result.ascent = std::round(raw.ascent() * 2) / 2;
    result.descent = std::ceil(raw.ascent() + raw.descent() - 0.25) - result.ascent;
    result.capHeight = raw.capHeight();
    return result;
}

constexpr std::size_t mostFaces = 64;

}  // namespace

const FontFace& SystemFonts::face(platform::Font font) {
    const auto known =
        std::find_if(faces.begin(), faces.end(), [&](const FontFace& each) { return each.font == font; });
    if (known != faces.end()) return *known;
    if (faces.size() == mostFaces) faces.pop_front();
    const QFont made = toolkitFont(font);
    const QFontMetricsF measure(made);
    return faces.emplace_back(FontFace{font, made, measure, lineOf(measure)});
}

}  // namespace desk
