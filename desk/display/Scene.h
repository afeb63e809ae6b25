// One composition under way: the picture being made, and how AppKit space maps onto its pixels.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>

#include "desk/display/Palette.h"
#include "platform/Geometry.h"

namespace desk {

struct Scene {
    QImage& image;
    QPainter& painter;
    Palette palette;
    double scale;
    platform::CGPoint topLeft;  // of the picture, in AppKit space

    QRect pixels(const platform::CGRect& appKitRect) const;
};

}  // namespace desk
