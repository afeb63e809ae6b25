#include "desk/windows/WindowFrame.h"

#include <algorithm>
#include <cmath>

namespace desk {

using platform::CGPoint;
using platform::CGRect;
using platform::CGSize;

namespace {

constexpr double leftmostButton = 20;
constexpr double buttonDistance = 20;
constexpr double narrowestWithButtons = 150;

constexpr double edgeThickness = 4;
// The title bar is for moving: it gives up no more of itself than this.
constexpr double topEdgeThickness = 2;
constexpr double cornerReach = 12;
constexpr double smallestWithEdges = 80;

}  // namespace

CGPoint centerOf(WindowButton button) {
    return {leftmostButton + buttonDistance * static_cast<double>(button), windowTitleBarHeight / 2};
}

std::optional<WindowButton> windowButtonAt(const CGPoint& point, CGSize size) {
    if (size.width < narrowestWithButtons || size.height < windowTitleBarHeight) return std::nullopt;
    for (const WindowButton button : windowButtons) {
        const CGPoint center = centerOf(button);
        if (std::hypot(point.x - center.x, point.y - center.y) <= windowButtonDiameter / 2 + 1) return button;
    }
    return std::nullopt;
}

WindowEdges windowEdgesAt(const CGPoint& point, CGSize size) {
    const bool isInside = containsInside({{}, size}, point);
    if (!isInside || size.width < smallestWithEdges || size.height < smallestWithEdges) return {};
    WindowEdges edges;
    edges.left = point.x < edgeThickness;
    edges.right = point.x >= size.width - edgeThickness;
    edges.top = point.y <= topEdgeThickness;
    edges.bottom = point.y > size.height - edgeThickness;
    if (edges.left || edges.right) {
        edges.top = point.y <= cornerReach;
        edges.bottom = point.y > size.height - cornerReach;
    } else if (edges.top || edges.bottom) {
        edges.left = point.x < cornerReach;
        edges.right = point.x >= size.width - cornerReach;
    }
    return edges;
}

CGRect resizedFrame(const CGRect& frame, WindowEdges edges, const CGPoint& by, CGSize least, CGSize most) {
    // A frame beyond a limit may stay as it is.
    const auto within = [](double wanted, double now, double fewest, double greatest) {
        return std::clamp(wanted, std::min(fewest, now), std::max(greatest, now));
    };
    const double wider = edges.left ? -by.x : edges.right ? by.x : 0;
    const double higher = edges.bottom ? -by.y : edges.top ? by.y : 0;
    const double width = within(frame.width() + wider, frame.width(), least.width, most.width);
    const double height = within(frame.height() + higher, frame.height(), least.height, most.height);
    return {{edges.left ? frame.maxX() - width : frame.minX(), edges.bottom ? frame.maxY() - height : frame.minY()},
            {width, height}};
}

CursorShape cursorFor(WindowEdges edges) {
    if ((edges.left && edges.top) || (edges.right && edges.bottom)) return CursorShape::resizeNorthWestSouthEast;
    if ((edges.right && edges.top) || (edges.left && edges.bottom)) return CursorShape::resizeNorthEastSouthWest;
    if (edges.left || edges.right) return CursorShape::resizeLeftRight;
    return edges.any() ? CursorShape::resizeUpDown : CursorShape::arrow;
}

}  // namespace desk
