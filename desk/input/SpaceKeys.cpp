#include "desk/input/SpaceKeys.h"

#include <algorithm>
#include <array>
#include <vector>

#include "desk/keys/KeyStroke.h"
#include "desk/windows/WindowStack.h"

namespace desk {

namespace {

constexpr int fewestDesktops = 4;

struct SpaceKey {
    const char* key;
    int desktop;    // 0: the next one in the direction
    int direction;  // 1 to the right
};
constexpr std::array spaceKeys{SpaceKey{"ctrl+left", 0, -1}, SpaceKey{"ctrl+right", 0, 1}, SpaceKey{"ctrl+1", 1, 0},
                               SpaceKey{"ctrl+2", 2, 0},     SpaceKey{"ctrl+3", 3, 0},     SpaceKey{"ctrl+4", 4, 0}};

const SpaceKey* spaceKeyOf(const KeyStroke& stroke) {
    const auto* found = std::find_if(spaceKeys.begin(), spaceKeys.end(), [&](const SpaceKey& entry) {
        const auto wanted = keyStroke(entry.key);
        return wanted && wanted->keyCode == stroke.keyCode && wanted->modifiers == stroke.modifiers;
    });
    return found == spaceKeys.end() ? nullptr : found;
}

}  // namespace

bool isSpaceKey(const KeyStroke& stroke) {
    return spaceKeyOf(stroke) != nullptr;
}

void changeSpaceBy(WindowStack& windows, const KeyStroke& stroke) {
    const SpaceKey* key = spaceKeyOf(stroke);
    if (key == nullptr) return;
    if (key->direction == 0) return windows.switchToSpace(key->desktop);
    const std::vector<int> spaces = windows.spacesFromTheLeft(fewestDesktops);
    const auto here = std::find(spaces.begin(), spaces.end(), windows.currentSpace());
    const auto next = (here - spaces.begin()) + key->direction;
    if (here != spaces.end() && next >= 0 && next < std::ssize(spaces))
        windows.switchToSpace(spaces[static_cast<std::size_t>(next)]);
}

}  // namespace desk
