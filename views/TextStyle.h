// How the lines of a text are made, as the views around it have it. Font and colour aren't part of it.
#pragma once

#include <cstdint>

#include "platform/Text.h"
#include "views/Alignment.h"

namespace views {

struct TextStyle {
    std::uint32_t lineLimit = 0;  // 0: none
    platform::TextTruncation truncation = platform::TextTruncation::tail;
    HorizontalAlignment alignment = HorizontalAlignment::leading;
};

}  // namespace views
