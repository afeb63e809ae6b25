// What a press on a folder window can hit, and the ids by which a laid-out window tells it.
#pragma once

#include <cstddef>
#include <string>

#include "platform/Geometry.h"
#include "views/LaidOutView.h"

namespace desk {

enum class FinderPart { titleBar, back, forward, sidebar, place, header, row, emptyList, scroller, status };

struct FinderHit {
    FinderPart part = FinderPart::titleBar;
    std::size_t index = 0;  // of the place or the row
    friend bool operator==(const FinderHit&, const FinderHit&) = default;
};

std::string idOf(const FinderHit& hit);
// From the window's top left corner, y downward.
FinderHit hitAt(const views::LaidOutView& window, const platform::CGPoint& point);

}  // namespace desk
