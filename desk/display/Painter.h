// Paints drawings: a platform::Drawing in points onto a painter in device pixels, with colours of a palette. Keeps pictures of texts, symbols and
// corners between paints, so that painting a bar is little more than copying pixels.
#pragma once

#include <QPoint>

#include "desk/display/Palette.h"
#include "desk/display/ShapePainter.h"
#include "desk/display/TextPictures.h"
#include "platform/Drawing.h"

class QPainter;

namespace desk {

class Painter {
public:
    // `scale` is device pixels a point, `origin` the device pixel of the drawing's (0, 0). The painter has no transform; its state is put back.
    void paint(QPainter& painter, const platform::Drawing& drawing, const Palette& palette, double scale,
               QPoint origin = {});

private:
    class Run;

    ShapePainter shapes;
    TextPictures texts;
};

}  // namespace desk
