// One composition under way: the picture being made, and how AppKit space maps onto its pixels.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>

#include "desk/display/Palette.h"
#include "platform/Geometry.h"

namespace desk {

// In device pixels, of a picture whose top left corner stands at that AppKit point.
QRect pixelsOf(const platform::CGRect& appKitRect, const platform::CGPoint& topLeft, double scale);

struct Scene {
    QImage& image;
    QPainter& painter;
    Palette palette;
    double scale;
    platform::CGPoint topLeft;  // of the picture, in AppKit space

    QRect pixels(const platform::CGRect& appKitRect) const { return pixelsOf(appKitRect, topLeft, scale); }
};

}  // namespace desk
