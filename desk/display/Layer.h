// One thing on the desktop as it looks at one moment: a window, the Dock, a menu. The desktop is a list of them, back to front; equal layers look the same, so
// comparing two lists tells what has to be painted anew.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "desk/display/WindowShadow.h"
#include "desk/look/PopoverPlace.h"
#include "platform/ContentView.h"
#include "platform/Drawing.h"
#include "platform/Geometry.h"

namespace desk {

using SharedDrawing = std::shared_ptr<const platform::Drawing>;

struct Layer {
    std::int64_t id = 0;       // the window's number; below 0 for what is no window
    platform::CGRect frame;    // AppKit space
    SharedDrawing background;  // none when there is nothing to draw
    // The content of an application's window: as wide as the frame, at its bottom. Only the latest layers may be asked for what the view draws.
    struct Content {
        std::int64_t window;
        platform::ContentView* view;
        std::uint64_t version;
        platform::CGSize size;
        platform::Color background;
        bool isPanel;
        friend bool operator==(const Content&, const Content&) = default;
    };
    std::optional<Content> content;
    SharedDrawing foreground;
    double cornerRadius = 0;
    std::optional<WindowShadow::Depth> shadow;
    std::optional<PopoverPlace> popover;  // drawn as one shape with its arrow; the frame is the body's
    bool isOpaque = false;                // but for its corners

    // With shadow and arrow.
    platform::CGRect extent() const;
    bool looksLike(const Layer& other) const;
};

// What must be painted anew, in AppKit space, when the one list takes the place of the other.
std::vector<platform::CGRect> differences(const std::vector<Layer>& before, const std::vector<Layer>& after);

}  // namespace desk
