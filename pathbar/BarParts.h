// Where the parts of one bar are, read from what its host shows: for desk scripts, the state and tests. Frames are in view space. It shows what is drawn, not
// what the window's path has.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "views/AccessibilityElement.h"

namespace brindle {

struct BarParts {
    struct Crumb {
        std::string id;
        std::string title;
        platform::CGRect frame;
        std::optional<platform::CGRect> chevron;  // the last crumb of a path has none

        friend bool operator==(const Crumb&, const Crumb&) = default;
    };

    std::vector<Crumb> crumbs;  // from left to right; none while the field is open
    std::optional<platform::CGRect> ellipsis;
    std::optional<platform::CGRect> copy;
    std::optional<platform::CGRect> brand;
    std::optional<platform::CGRect> plate;
    std::optional<platform::CGRect> field;  // while the bar is edited
    // A point of the row on which nothing stands: behind the last crumb if there is room, else in front of the first.
    std::optional<platform::CGPoint> empty;

    static BarParts of(const std::vector<views::AccessibilityElement>& elements);
};

}  // namespace brindle
