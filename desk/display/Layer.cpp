#include "desk/display/Layer.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

namespace desk {

namespace {

bool same(const SharedDrawing& a, const SharedDrawing& b) {
    return a == b || (a != nullptr && b != nullptr && *a == *b);
}

std::vector<std::int64_t> commonIds(const std::vector<Layer>& of,
                                    const std::unordered_map<std::int64_t, const Layer*>& in) {
    std::vector<std::int64_t> ids;
    for (const Layer& layer : of)
        if (in.contains(layer.id)) ids.push_back(layer.id);
    return ids;
}

std::unordered_map<std::int64_t, const Layer*> byId(const std::vector<Layer>& layers) {
    std::unordered_map<std::int64_t, const Layer*> map;
    for (const Layer& layer : layers) map.emplace(layer.id, &layer);
    return map;
}

}  // namespace

platform::CGRect Layer::extent() const {
    // An arrow reaches less far than a shadow.
    const double reach = shadow ? WindowShadow::reach(*shadow) + WindowShadow::drop(*shadow) : 0;
    return CGRectInset(frame, -reach, -reach);
}

bool Layer::looksLike(const Layer& other) const {
    return id == other.id && frame == other.frame && content == other.content && cornerRadius == other.cornerRadius &&
           shadow == other.shadow && isOpaque == other.isOpaque && popover == other.popover &&
           same(background, other.background) && same(foreground, other.foreground);
}

std::vector<platform::CGRect> differences(const std::vector<Layer>& before, const std::vector<Layer>& after) {
    std::vector<platform::CGRect> places;
    const auto old = byId(before);
    const auto now = byId(after);
    for (const Layer& layer : after) {
        const auto known = old.find(layer.id);
        if (known == old.end()) {
            places.push_back(layer.extent());
        } else if (!layer.looksLike(*known->second)) {
            places.push_back(known->second->extent());
            places.push_back(layer.extent());
        }
    }
    for (const Layer& layer : before)
        if (!now.contains(layer.id)) places.push_back(layer.extent());

    // Of those in another order, all between the first and the last that stand elsewhere.
    const std::vector<std::int64_t> oldOrder = commonIds(before, now);
    const std::vector<std::int64_t> newOrder = commonIds(after, old);
    const auto [first, firstOld] = std::mismatch(newOrder.begin(), newOrder.end(), oldOrder.begin());
    const auto [last, lastOld] = std::mismatch(newOrder.rbegin(), newOrder.rend(), oldOrder.rbegin());
    for (auto entry = first; entry != newOrder.end() && entry < last.base(); ++entry)
        places.push_back(now.at(*entry)->extent());
    return places;
}

}  // namespace desk
