// The containers: stacks, groups, repeated content, and the reader of the size on offer.
#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <utility>

#include "views/View.h"

namespace views {

inline constexpr double defaultSpacing = 8;

struct HStackArguments {
    VerticalAlignment alignment = VerticalAlignment::center;
    double spacing = defaultSpacing;
};
struct VStackArguments {
    HorizontalAlignment alignment = HorizontalAlignment::center;
    double spacing = defaultSpacing;
};
struct ZStackArguments {
    Alignment alignment = Alignment::center;
};

template <typename... Children>
View container(ViewKind kind, ViewContent content, Children&&... children) {
    View view(kind, std::move(content));
    view.addChildren(std::forward<Children>(children)...);
    return view;
}

template <typename... Children>
View HStack(HStackArguments arguments, Children&&... children) {
    return container(ViewKind::hStack,
                     StackContent{{HorizontalAlignment::center, arguments.alignment}, arguments.spacing},
                     std::forward<Children>(children)...);
}

template <typename... Children>
View VStack(VStackArguments arguments, Children&&... children) {
    return container(ViewKind::vStack,
                     StackContent{{arguments.alignment, VerticalAlignment::center}, arguments.spacing},
                     std::forward<Children>(children)...);
}

// The first child stands at the back.
template <typename... Children>
View ZStack(ZStackArguments arguments, Children&&... children) {
    return container(ViewKind::zStack, StackContent{arguments.alignment, 0}, std::forward<Children>(children)...);
}

// Its children count as children of the container around it, unless it has modifiers: then they are layered within
// those.
template <typename... Children>
View Group(Children&&... children) {
    return container(ViewKind::group, {}, std::forward<Children>(children)...);
}

inline View EmptyView() {
    return View();
}

// One view for each item, keyed by `id`, so that what belongs to an item stays with it when others come and go. `build`
// gets the offset and the item.
template <typename Items, typename Id, typename Build>
View ForEach(const Items& items, Id id, Build build) {
    View group(ViewKind::group);
    group.children.reserve(items.size());
    std::size_t offset = 0;
    for (const auto& item : items) group.children.emplace_back(build(offset++, item)).key = std::invoke(id, item);
    return group;
}

// Takes all it is offered, tells the builder how much that is, and shows the answer from the top left. The builder is
// called during layout, and again only when the size or the declaration has changed.
inline View GeometryReader(std::function<View(CGSize)> content) {
    return View(ViewKind::geometryReader, ReaderContent{std::move(content), {}});
}

}  // namespace views
