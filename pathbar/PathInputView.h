// The path field that takes the crumbs' place while a bar is edited. It has no policy about paths: it edits a text and
// reports Return and Escape.
#pragma once

#include <functional>
#include <string>

#include "views/Views.h"

namespace brindle {

class PathInputView {
public:
    views::View body() const {
        return views::Text(text.get())
            .font({.size = 14})
            .frame({.maxWidth = views::infinity, .maxHeight = views::infinity, .alignment = views::Alignment::leading})
            .accessibilityIdentifier("field");
    }

    views::Binding<std::string> text;
    std::function<void()> onCommit;
    std::function<void()> onCancel;
};

}  // namespace brindle
