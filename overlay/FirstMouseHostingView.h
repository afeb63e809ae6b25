// Hosts a bar's view in its panel, so that the first click on the bar of a window in the background acts at once
// instead of only being swallowed.
#pragma once

#include <utility>

#include "views/HostingView.h"

namespace brindle {

template <typename Root>
class FirstMouseHostingView final : public views::NSHostingView<Root> {
public:
    FirstMouseHostingView(platform::Platform& thePlatform, Root rootView)
        : views::NSHostingView<Root>(thePlatform, std::move(rootView), views::HostRole::bar) {}

    bool acceptsFirstMouse(const platform::NSEvent& /*forEvent*/) override { return true; }
};

}  // namespace brindle
