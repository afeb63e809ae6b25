// What the views around a view have set for it: what goes down the tree while a layout's items are made. Sizes and places are no part of it.
#pragma once

#include "platform/Drawing.h"
#include "views/ControlState.h"
#include "views/TextStyle.h"

namespace views {

struct Surroundings {
    platform::Font font;
    platform::Color color;
    double opacity = 1;
    TextStyle textStyle;
    ControlState control;
    bool isVertical = true;  // the axis of the nearest stack

    platform::Color faded(platform::Color of) const {
        of.opacity *= opacity;
        return of;
    }
};

}  // namespace views
