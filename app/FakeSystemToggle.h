// A picture of a System Settings switch that is on, so that the user knows what to look for. It reacts to nothing, and assistive tools pass over it.
#pragma once

#include "views/Views.h"

namespace brindle {

struct FakeSystemToggle {
    views::View body() const;
};

}  // namespace brindle
