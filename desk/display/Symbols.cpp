#include "desk/display/Symbols.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "desk/display/SymbolSketch.h"

namespace desk {

namespace {

using Sketch = SymbolSketch;

void chevronRight(Sketch& s) {
    s.line({{0.14, 0.1}, {0.44, 0.43}, {0.14, 0.76}});
}

void chevronLeft(Sketch& s) {
    s.line({{0.44, 0.1}, {0.14, 0.43}, {0.44, 0.76}});
}

void chevronDown(Sketch& s) {
    s.line({{0.1, 0.14}, {0.43, 0.44}, {0.76, 0.14}});
}

void chevronUp(Sketch& s) {
    s.line({{0.1, 0.44}, {0.43, 0.14}, {0.76, 0.44}});
}

void checkmark(Sketch& s) {
    s.line({{0.1, 0.52}, {0.36, 0.84}, {0.86, 0.12}});
}

void xmark(Sketch& s) {
    s.line({{0.12, 0.12}, {0.76, 0.76}});
    s.line({{0.76, 0.12}, {0.12, 0.76}});
}

void checkmarkCircleFill(Sketch& s) {
    s.fill(Sketch::circle({0.6, 0.6}, 0.55));
    s.eraseLine({{0.36, 0.63}, {0.53, 0.83}, {0.84, 0.38}});
}

void xmarkCircleFill(Sketch& s) {
    s.fill(Sketch::circle({0.6, 0.6}, 0.55));
    s.eraseLine({{0.42, 0.42}, {0.78, 0.78}});
    s.eraseLine({{0.78, 0.42}, {0.42, 0.78}});
}

void exclamationTriangleFill(Sketch& s) {
    s.fill(Sketch::polygon({{0.65, 0.04}, {1.26, 1.12}, {0.04, 1.12}}, 0.16));
    s.eraseLine({{0.65, 0.42}, {0.65, 0.7}});
    s.erase(Sketch::circle({0.65, 0.92}, 0.07));
}

void doc(Sketch& s) {
    s.outline(Sketch::polygon({{0.1, 0.08}, {0.58, 0.08}, {0.94, 0.44}, {0.94, 1.22}, {0.1, 1.22}}, 0.13));
    s.line({{0.56, 0.1}, {0.56, 0.46}, {0.92, 0.46}});
}

void docOnDoc(Sketch& s) {
    const QPainterPath front =
        Sketch::polygon({{0.46, 0.42}, {0.84, 0.42}, {1.14, 0.72}, {1.14, 1.28}, {0.46, 1.28}}, 0.12);
    s.outline(Sketch::polygon({{0.1, 0.08}, {0.5, 0.08}, {0.78, 0.36}, {0.78, 0.96}, {0.1, 0.96}}, 0.12));
    s.erase(front, s.strokeWidth() * 1.3);
    s.outline(front);
    s.line({{0.82, 0.44}, {0.82, 0.74}, {1.12, 0.74}}, 0.8);
}

QPainterPath folderShape() {
    return Sketch::polygon({{0.08, 0.12}, {0.5, 0.12}, {0.63, 0.26}, {1.26, 0.26}, {1.26, 1.0}, {0.08, 1.0}}, 0.13);
}

void folder(Sketch& s) {
    s.outline(folderShape());
    s.line({{0.1, 0.42}, {1.24, 0.42}}, 0.85);
}

void folderFill(Sketch& s) {
    s.fill(folderShape());
    s.outline(folderShape());
    s.eraseLine({{0.08, 0.4}, {1.26, 0.4}});
}

void internalDrive(Sketch& s) {
    s.outline(Sketch::polygon({{0.3, 0.1}, {1.02, 0.1}, {1.24, 0.5}, {1.24, 0.88}, {0.08, 0.88}, {0.08, 0.5}}, 0.12));
    s.line({{0.1, 0.52}, {1.22, 0.52}}, 0.85);
    s.fill(Sketch::circle({1.02, 0.7}, 0.07));
}

void gearshape(Sketch& s) {
    constexpr int teeth = 8;
    const QPointF center(0.62, 0.62);
    for (int tooth = 0; tooth < teeth; ++tooth) {
        const double angle = tooth * 2 * std::numbers::pi / teeth;
        const QPointF direction(std::cos(angle), std::sin(angle));
        s.line({center + direction * 0.42, center + direction * 0.5}, 1.7);
    }
    s.outline(Sketch::circle(center, 0.4));
    s.outline(Sketch::circle(center, 0.16));
}

void paintbrush(Sketch& s) {
    s.line({{1.1, 0.1}, {0.62, 0.66}}, 1.6);
    QPainterPath bristles(QPointF(0.44, 0.62));
    bristles.cubicTo({0.7, 0.6}, {0.76, 0.86}, {0.62, 1.0});
    bristles.cubicTo({0.46, 1.14}, {0.2, 1.14}, {0.06, 1.08});
    bristles.cubicTo({0.24, 0.98}, {0.18, 0.64}, {0.44, 0.62});
    s.erase(bristles, s.strokeWidth() * 0.6);
    s.fill(bristles);
}

void magnifyingGlass(Sketch& s) {
    s.outline(Sketch::circle({0.48, 0.48}, 0.38));
    s.line({{0.77, 0.77}, {1.1, 1.1}}, 1.2);
}

void house(Sketch& s) {
    s.line({{0.08, 0.66}, {0.66, 0.12}, {1.24, 0.66}});
    s.line({{0.24, 0.56}, {0.24, 1.12}, {1.08, 1.12}, {1.08, 0.56}});
    s.line({{0.54, 1.1}, {0.54, 0.78}, {0.78, 0.78}, {0.78, 1.1}});
}

void desktopComputer(Sketch& s) {
    s.outline(Sketch::rounded({0.08, 0.1, 1.2, 0.8}, 0.13));
    s.line({{0.48, 1.1}, {0.88, 1.1}});
    s.line({{0.68, 0.92}, {0.68, 1.08}}, 1.6);
}

void arrowDownCircle(Sketch& s) {
    s.outline(Sketch::circle({0.6, 0.6}, 0.52));
    s.line({{0.6, 0.34}, {0.6, 0.86}});
    s.line({{0.38, 0.65}, {0.6, 0.87}, {0.82, 0.65}});
}

void clock(Sketch& s) {
    s.outline(Sketch::circle({0.6, 0.6}, 0.52));
    s.line({{0.6, 0.28}, {0.6, 0.64}, {0.4, 0.64}});
}

void appGrid(Sketch& s) {
    for (const double x : {0.1, 0.66})
        for (const double y : {0.1, 0.66}) s.outline(Sketch::rounded({x, y, 0.4, 0.4}, 0.1));
}

void terminal(Sketch& s) {
    s.outline(Sketch::rounded({0.08, 0.1, 1.24, 0.96}, 0.15));
    s.line({{0.32, 0.38}, {0.54, 0.56}, {0.32, 0.74}});
    s.line({{0.66, 0.76}, {0.96, 0.76}});
}

// The mark at the left end of the menu bar: a pin in a disc.
void deskMark(Sketch& s) {
    s.fill(Sketch::circle({0.58, 0.58}, 0.54));
    s.erase(Sketch::circle({0.58, 0.46}, 0.2));
    s.eraseLine({{0.3, 0.84}, {0.86, 0.84}});
}

struct Symbol {
    std::string_view name;
    double width;  // in ems
    double height;
    void (*draw)(Sketch&);
};

constexpr std::array symbols{
    Symbol{"chevron.right", 0.58, 0.86, chevronRight},
    Symbol{"chevron.left", 0.58, 0.86, chevronLeft},
    Symbol{"chevron.down", 0.86, 0.58, chevronDown},
    Symbol{"chevron.up", 0.86, 0.58, chevronUp},
    Symbol{"checkmark", 0.96, 0.94, checkmark},
    Symbol{"checkmark.circle.fill", 1.2, 1.2, checkmarkCircleFill},
    Symbol{"xmark", 0.88, 0.88, xmark},
    Symbol{"xmark.circle.fill", 1.2, 1.2, xmarkCircleFill},
    Symbol{"exclamationmark.triangle.fill", 1.3, 1.2, exclamationTriangleFill},
    Symbol{"doc", 1.04, 1.3, doc},
    Symbol{"doc.on.doc", 1.24, 1.36, docOnDoc},
    Symbol{"folder", 1.34, 1.12, folder},
    Symbol{"folder.fill", 1.34, 1.12, folderFill},
    Symbol{"internaldrive", 1.32, 0.98, internalDrive},
    Symbol{"gearshape", 1.24, 1.24, gearshape},
    Symbol{"paintbrush", 1.2, 1.18, paintbrush},
    Symbol{"magnifyingglass", 1.2, 1.2, magnifyingGlass},
    Symbol{"house", 1.32, 1.22, house},
    Symbol{"desktopcomputer", 1.36, 1.2, desktopComputer},
    Symbol{"arrow.down.circle", 1.2, 1.2, arrowDownCircle},
    Symbol{"clock", 1.2, 1.2, clock},
    Symbol{"square.grid.2x2", 1.16, 1.16, appGrid},
    Symbol{"terminal", 1.4, 1.16, terminal},
    Symbol{"desk.mark", 1.16, 1.16, deskMark},
};

const Symbol* find(std::string_view name) {
    const auto* found =
        std::find_if(symbols.begin(), symbols.end(), [name](const Symbol& symbol) { return symbol.name == name; });
    return found == symbols.end() ? nullptr : found;
}

}  // namespace

std::optional<platform::CGSize> symbolSize(std::string_view name, platform::Font font) {
    const Symbol* symbol = find(name);
    if (symbol == nullptr) return std::nullopt;
    return platform::CGSize{symbol->width * font.size, symbol->height * font.size};
}

QImage symbolMask(std::string_view name, platform::Font font, double scale) {
    const Symbol* symbol = find(name);
    const double em = font.size * scale;
    if (symbol == nullptr || !(em > 0) || em > 4096) return {};
    const double width = std::ceil(symbol->width * em);
    const double height = std::ceil(symbol->height * em);
    QImage mask(static_cast<int>(width), static_cast<int>(height), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    Sketch sketch(font.weight);
    symbol->draw(sketch);
    QPainter painter(&mask);
    painter.translate((width - symbol->width * em) / 2, (height - symbol->height * em) / 2);
    painter.scale(em, em);
    sketch.paintMask(painter);
    return mask;
}

std::vector<std::string_view> symbolNames() {
    std::vector<std::string_view> names;
    for (const Symbol& symbol : symbols) names.push_back(symbol.name);
    return names;
}

}  // namespace desk
