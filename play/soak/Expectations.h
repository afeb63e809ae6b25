// Lines of a script that fail while a fault is there: what the state shows at a pointer, beside what it should show.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/Geometry.h"

namespace play {

class Session;

std::string jsonOf(const platform::CGRect& frame);
std::string jsonOf(const std::string& text);
std::string jsonOf(bool flag);

// `expect` of a field of an element of a list, up to its value.
std::string expectField(const char* list, std::size_t index, const char* field);
// Where the state lists that panel.
std::size_t indexOfPanel(const Session& session, std::int64_t number);

}  // namespace play
