// Text, symbols and the two together.
#pragma once

#include <string>
#include <utility>

#include "views/Stacks.h"

namespace views {

// One line; when it is offered less than it needs, its middle is cut out.
inline View Text(std::string text) {
    return View(ViewKind::text, TextContent{std::move(text)});
}

// A symbol of the system's set, as large as the font in force.
inline View Image(std::string systemName) {
    return View(ViewKind::image, ImageContent{std::move(systemName)});
}

inline View Label(std::string title, std::string systemImage) {
    return HStack({.spacing = 6}, Image(std::move(systemImage)), Text(std::move(title)));
}

}  // namespace views
