// Points, sizes and rectangles as the system passes them around: 64-bit floats, in points. Every rectangle is half-open: its minimum
// edges belong to it, its maximum edges don't. Which coordinate space a value is in is said by whoever hands it over; nothing here converts.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace platform {

struct CGPoint {
    double x = 0;
    double y = 0;
    friend bool operator==(const CGPoint&, const CGPoint&) = default;
};

struct CGSize {
    double width = 0;
    double height = 0;
    friend bool operator==(const CGSize&, const CGSize&) = default;
};

struct CGRect {
    CGPoint origin;
    CGSize size;

    double minX() const { return origin.x; }
    double minY() const { return origin.y; }
    double maxX() const { return origin.x + size.width; }
    double maxY() const { return origin.y + size.height; }
    double midX() const { return origin.x + size.width / 2; }
    double midY() const { return origin.y + size.height / 2; }
    double width() const { return size.width; }
    double height() const { return size.height; }

    friend bool operator==(const CGRect&, const CGRect&) = default;
};

constexpr CGRect CGRectMake(double x, double y, double width, double height) {
    return {{x, y}, {width, height}};
}

// The answer of an intersection that doesn't exist. It isn't the same as an empty rectangle, which has a place.
inline constexpr CGRect CGRectNull{{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()},
                                   {0, 0}};

inline bool CGRectIsNull(const CGRect& rect) {
    return std::isinf(rect.origin.x) || std::isinf(rect.origin.y);
}

inline bool CGRectContainsPoint(const CGRect& rect, const CGPoint& point) {
    return point.x >= rect.minX() && point.x < rect.maxX() && point.y >= rect.minY() && point.y < rect.maxY();
}

// Rectangles that touch along an edge intersect in a rectangle without area; rectangles apart from each other in CGRectNull.
inline CGRect CGRectIntersection(const CGRect& a, const CGRect& b) {
    const double x0 = std::max(a.minX(), b.minX());
    const double y0 = std::max(a.minY(), b.minY());
    const double x1 = std::min(a.maxX(), b.maxX());
    const double y1 = std::min(a.maxY(), b.maxY());
    if (CGRectIsNull(a) || CGRectIsNull(b) || x1 < x0 || y1 < y0) return CGRectNull;
    return CGRectMake(x0, y0, x1 - x0, y1 - y0);
}

inline CGRect CGRectInset(const CGRect& rect, double dx, double dy) {
    return CGRectMake(rect.origin.x + dx, rect.origin.y + dy, rect.size.width - 2 * dx, rect.size.height - 2 * dy);
}

inline CGRect CGRectOffset(const CGRect& rect, double dx, double dy) {
    return {{rect.origin.x + dx, rect.origin.y + dy}, rect.size};
}

}  // namespace platform
