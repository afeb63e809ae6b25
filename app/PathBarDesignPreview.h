// A drawn sample of a bar in one style, as high as it is offered. It has nothing of a real bar but its looks.
#pragma once

#include "pathbar/PathBarDesign.h"
#include "views/Views.h"

namespace brindle {

struct PathBarDesignPreview {
    explicit PathBarDesignPreview(PathBarDesign theDesign) : design(theDesign) {}

    void connect(views::Context& context) { context.connect(colorScheme); }
    views::View body() const;

private:
    views::View background() const;

    views::ColorSchemeEnvironment colorScheme;
    PathBarDesign design;
};

}  // namespace brindle
