// Pictures: read from a file, or drawn by a handler. What is in a file's picture is the backend's, a drawn one is its strokes; layout needs a picture's size alone.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/Geometry.h"

namespace platform {

class NSGraphicsContext;
struct Drawing;

// The backend's side of a picture.
class ImagePixels {
public:
    ImagePixels() = default;
    ImagePixels(const ImagePixels&) = delete;
    ImagePixels& operator=(const ImagePixels&) = delete;
    virtual ~ImagePixels() = default;
};

// Copies share what is in them, and are equal when they do. One with nothing in it takes its room and shows nothing.
class NSImage {
public:
    // Draws into the bounds, from (0, 0); false: there is nothing to show.
    using DrawingHandler = std::function<bool(NSGraphicsContext& context, const CGRect& bounds)>;

    NSImage() = default;
    NSImage(std::string theName, CGSize theSize, std::shared_ptr<const ImagePixels> thePixels)
        : ownName(std::move(theName)), ownSize(theSize), shared(std::move(thePixels)) {}
    // In points. The handler runs once, here; its y goes upward unless the picture is flipped.
    NSImage(CGSize theSize, bool flipped, const DrawingHandler& handler);

    // The path of the file it was read from; empty for one that was drawn.
    const std::string& name() const { return ownName; }
    // In points, one for each pixel of the file.
    CGSize size() const { return ownSize; }
    const ImagePixels* pixels() const { return shared.get(); }
    // Its strokes, in its own coordinates; null for a file's.
    const Drawing* drawing() const { return drawn.get(); }
    bool isFlipped() const { return flipped; }
    // Whoever shows a template gives it its colour; its own counts by its opacity alone.
    bool isTemplate() const { return templateFlag; }
    void setTemplate(bool value) { templateFlag = value; }
    friend bool operator==(const NSImage&, const NSImage&) = default;

private:
    std::string ownName;
    CGSize ownSize;
    std::shared_ptr<const ImagePixels> shared;
    std::shared_ptr<const Drawing> drawn;
    bool flipped = false;
    bool templateFlag = false;
};

class ImageSystem {
public:
    virtual ~ImageSystem() = default;
    // Empty for a file that is missing, unreadable, cut off or no picture.
    virtual std::optional<NSImage> imageWithContentsOf(const std::string& path) = 0;
};

}  // namespace platform
