// The desk's symbols, of our own design: one SVG file each in symbols/, a hundred units to the em. Black is ink, white cuts what lies below; lines that name no width of
// their own get that of the font's weight. Those named `.icon` have colours instead. It keeps the files it has read, and no pictures.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Drawing.h"
#include "platform/Geometry.h"

namespace desk {

class SymbolSet {
public:
    // In points, in text of that font; empty for an unknown name.
    std::optional<platform::CGSize> size(std::string_view name, platform::Font font);
    // At `scale` pixels a point; a null image for an unknown name.
    QImage picture(std::string_view name, platform::Font font, const QColor& color, double scale);

    static std::vector<std::string> names();

private:
    struct Symbol {
        QByteArray file;
        platform::CGSize ems;  // empty when there is no such symbol
    };

    const Symbol& find(std::string_view name);

    std::map<std::string, Symbol, std::less<>> symbols;
};

}  // namespace desk
