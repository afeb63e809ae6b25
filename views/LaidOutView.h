// A view laid out once, for one size: what it draws, and which of its parts lies where. It follows no state and evaluates no body(): what changes, and views of
// types of one's own, want a HostingView.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Drawing.h"
#include "platform/Text.h"
#include "views/Layout.h"
#include "views/View.h"

namespace views {

class LaidOutView {
public:
    LaidOutView(View theRoot, CGSize size, platform::TextSystem& theText);

    platform::Drawing drawing() const;
    // The id of the frontmost view there that has one; null beside all of them.
    const std::string* idAt(CGPoint point) const;
    std::optional<CGRect> frameOf(std::string_view id) const;

private:
    platform::TextSystem& text;
    std::unique_ptr<View> root;
    Layout layout;
};

// What the view takes when nothing limits it.
CGSize idealSize(View root, platform::TextSystem& text);

}  // namespace views
