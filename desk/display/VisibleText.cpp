#include "desk/display/VisibleText.h"

namespace desk {

namespace {

// U+2400 and up picture the control characters in their order.
char16_t pictureOf(char16_t unit) {
    constexpr char16_t controlPictures = 0x2400;
    constexpr char16_t deletePicture = 0x2421;
    constexpr char16_t newlinePicture = 0x2424;
    constexpr char16_t replacement = 0xFFFD;
    if (unit < 0x20) return static_cast<char16_t>(controlPictures + unit);
    if (unit == 0x7F) return deletePicture;
    if (unit == 0x85 || unit == 0x2028 || unit == 0x2029) return newlinePicture;
    if (unit >= 0x80 && unit < 0xA0) return replacement;
    return unit;
}

}  // namespace

QString visibleText(std::string_view text) {
    QString result = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (QChar& character : result) {
        const char16_t picture = pictureOf(character.unicode());
        if (picture != character.unicode()) character = QChar(picture);
    }
    return result;
}

}  // namespace desk
