// Text, symbols and the two together.
#pragma once

#include <string>
#include <utility>

#include "views/Stacks.h"

namespace views {

// Broken into as many lines as it needs, unless lineLimit() says otherwise.
inline View Text(std::string text) {
    return View(ViewKind::text, TextContent{std::move(text)});
}

// A symbol of the system's set, as large as the font in force.
inline View Image(std::string systemName) {
    return View(ViewKind::image, ImageContent{std::move(systemName), {}});
}

// A picture of a file, as large as it is, or stretched to the size it is offered.
class FileImage {
public:
    explicit FileImage(platform::NSImage picture) { content.picture = std::move(picture); }

    FileImage&& resizable() && {
        content.isResizable = true;
        return std::move(*this);
    }
    FileImage&& interpolation(platform::ImageInterpolation value) && {
        content.interpolation = value;
        return std::move(*this);
    }
    operator View() && { return View(ViewKind::picture, std::move(content)); }  // NOLINT(google-explicit-constructor)
    View frame(const FrameArguments& arguments) && { return View(std::move(*this)).frame(arguments); }

private:
    ImageContent content;
};

inline FileImage Image(platform::NSImage picture) {
    return FileImage(std::move(picture));
}

inline View Label(std::string title, std::string systemImage) {
    return HStack({.spacing = 6}, Image(std::move(systemImage)), Text(std::move(title)));
}

}  // namespace views
