// A style of the bar to choose from: a sample of it with its name, marked when it is the chosen one.
#pragma once

#include <functional>

#include "pathbar/PathBarDesign.h"
#include "views/Views.h"

namespace brindle {

struct DesignChoiceCard {
    PathBarDesign design;
    bool isSelected;
    std::function<void()> select;

    views::View body() const;

private:
    views::View texts() const;
    views::View mark() const;
};

}  // namespace brindle
