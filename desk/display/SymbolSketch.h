// A symbol being drawn: strokes, fills and erasures in order, in ems, origin at the top left of the symbol's room, y downward. Strokes are round
// and as wide as the weight of the font asks for. The result is a mask; who paints it gives the colour.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <initializer_list>
#include <vector>

#include "platform/Drawing.h"

class QPainter;

namespace desk {

class SymbolSketch {
public:
    explicit SymbolSketch(platform::FontWeight weight);

    double strokeWidth() const { return width; }

    void line(std::initializer_list<QPointF> points, double widthFactor = 1);
    void outline(const QPainterPath& path);
    void fill(const QPainterPath& path);
    void eraseLine(std::initializer_list<QPointF> points);
    // Also a margin of that many ems around it.
    void erase(const QPainterPath& path, double margin = 0);

    static QPainterPath circle(QPointF center, double radius);
    static QPainterPath rounded(QRectF rect, double radius);
    static QPainterPath polygon(std::initializer_list<QPointF> corners, double radius);

    // Opaque black where the symbol is, nothing elsewhere; the painter's transform maps ems to pixels.
    void paintMask(QPainter& painter) const;

private:
    struct Step {
        QPainterPath path;
        double strokeWidth;  // 0: none
        bool fills;
        bool erases;
    };

    double width;
    std::vector<Step> steps;
};

}  // namespace desk
