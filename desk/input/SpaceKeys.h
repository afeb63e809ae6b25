// The keys by which a person changes spaces: Control with an arrow, or with a number. The system takes them before any window or application sees them.
#pragma once

namespace desk {

class WindowStack;
struct KeyStroke;

bool isSpaceKey(const KeyStroke& stroke);
// Nothing happens at the last space in that direction, or for a number that no space has.
void changeSpaceBy(WindowStack& windows, const KeyStroke& stroke);

}  // namespace desk
