#include "desk/display/SymbolSet.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cmath>

namespace desk {

namespace {

constexpr double unitsPerEm = 100;
constexpr double largestEm = 4096;
const QString symbolFolder = QStringLiteral(":/symbols/");
const QString symbolSuffix = QStringLiteral(".svg");

constexpr auto fileStroke = "stroke-width=\"9\"";
constexpr std::array strokes{fileStroke, "stroke-width=\"10.5\"", "stroke-width=\"12.5\"", "stroke-width=\"14.5\""};

QByteArray weighted(QByteArray file, platform::FontWeight weight) {
    return file.replace(fileStroke, strokes.at(static_cast<std::size_t>(weight)));
}

QImage rendered(const QByteArray& file, const QRectF& place, QImage onto) {
    QPainter painter(&onto);
    QSvgRenderer(file).render(&painter, place);
    return onto;
}

QImage filled(QSize pixels, QImage::Format format, const QColor& color) {
    QImage image(pixels, format);
    image.fill(color);
    return image;
}

// The file's picture, inverted: what is black in it is opaque.
QImage maskOf(const QByteArray& file, const QRectF& place, QSize pixels) {
    QImage gray = rendered(file, place, filled(pixels, QImage::Format_Grayscale8, Qt::white));
    gray.invertPixels();
    gray.reinterpretAsFormat(QImage::Format_Alpha8);
    return gray;
}

}  // namespace

const SymbolSet::Symbol& SymbolSet::find(std::string_view name) {
    const auto known = symbols.find(name);
    if (known != symbols.end()) return known->second;
    Symbol symbol;
    QFile file(symbolFolder + QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())) + symbolSuffix);
    if (file.open(QIODevice::ReadOnly)) {
        symbol.file = file.readAll();
        const QSizeF box = QSvgRenderer(symbol.file).viewBoxF().size() / unitsPerEm;
        symbol.ems = {box.width(), box.height()};
    }
    return symbols.emplace(name, std::move(symbol)).first->second;
}

std::optional<platform::CGSize> SymbolSet::size(std::string_view name, platform::Font font) {
    const Symbol& symbol = find(name);
    if (symbol.file.isEmpty()) return std::nullopt;
    return platform::CGSize{symbol.ems.width * font.size, symbol.ems.height * font.size};
}

QImage SymbolSet::picture(std::string_view name, platform::Font font, const QColor& color, double scale) {
    const Symbol& symbol = find(name);
    const double em = font.size * scale;
    if (symbol.file.isEmpty() || !(em > 0) || em > largestEm) return {};
    const QSizeF exact(symbol.ems.width * em, symbol.ems.height * em);
    const QSize pixels(static_cast<int>(std::ceil(exact.width())), static_cast<int>(std::ceil(exact.height())));
    const QRectF centred(QPointF((pixels.width() - exact.width()) / 2, (pixels.height() - exact.height()) / 2), exact);
    constexpr auto format = QImage::Format_ARGB32_Premultiplied;
    if (name.ends_with(".icon")) return rendered(symbol.file, centred, filled(pixels, format, Qt::transparent));
    QImage image = filled(pixels, format, color);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(QPoint(), maskOf(weighted(symbol.file, font.weight), centred, pixels));
    return image;
}

std::vector<std::string> SymbolSet::names() {
    std::vector<std::string> result;
    for (const QString& file : QDir(symbolFolder).entryList())
        result.push_back(file.chopped(symbolSuffix.size()).toStdString());
    return result;
}

}  // namespace desk
