// Draws every state of the bar on one page, each with a caption: styles, schemes, widths, names, field, menus, popovers. Each is brought about on a machine of its own by a desk
// script, so that the page shows what users see. For looking at after a change of looks.
#pragma once

#include <string>

namespace play {

// A PNG at 2x. Answers the exit code; a state that can't be brought about is an error.
int drawContactSheet(const std::string& file);

}  // namespace play
