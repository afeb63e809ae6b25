// Pictures that lie in files: reading one, and the value that stands for it. What is in a picture is the backend's; layout needs its size and its name alone.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/Geometry.h"

namespace platform {

// The backend's side of a picture.
class ImagePixels {
public:
    ImagePixels() = default;
    ImagePixels(const ImagePixels&) = delete;
    ImagePixels& operator=(const ImagePixels&) = delete;
    virtual ~ImagePixels() = default;
};

// Copies share their pixels, and are equal when they do. One without pixels takes its room and shows nothing.
class NSImage {
public:
    NSImage() = default;
    NSImage(std::string theName, CGSize theSize, std::shared_ptr<const ImagePixels> thePixels)
        : ownName(std::move(theName)), ownSize(theSize), shared(std::move(thePixels)) {}

    // The path of the file it was read from.
    const std::string& name() const { return ownName; }
    // In points, one for each pixel of the file.
    CGSize size() const { return ownSize; }
    const ImagePixels* pixels() const { return shared.get(); }
    friend bool operator==(const NSImage&, const NSImage&) = default;

private:
    std::string ownName;
    CGSize ownSize;
    std::shared_ptr<const ImagePixels> shared;
};

class ImageSystem {
public:
    virtual ~ImageSystem() = default;
    // Empty for a file that is missing, unreadable, cut off or no picture.
    virtual std::optional<NSImage> imageWithContentsOf(const std::string& path) = 0;
};

}  // namespace platform
