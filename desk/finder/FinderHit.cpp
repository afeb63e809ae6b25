#include "desk/finder/FinderHit.h"

#include <cmath>

namespace desk {

std::string idOf(const FinderHit& hit) {
    return std::to_string(static_cast<int>(hit.part)) + ":" + std::to_string(hit.index);
}

FinderHit hitAt(const views::LaidOutView& window, const platform::CGPoint& point) {
    const std::string* id = window.idAt({point.x, std::nextafter(point.y, 0)});
    if (id == nullptr) return {};
    const std::size_t colon = id->find(':');
    return {static_cast<FinderPart>(std::stoi(id->substr(0, colon))), std::stoul(id->substr(colon + 1))};
}

}  // namespace desk
