#include "desk/input/SpaceKeys.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "desk/Machine.h"

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

// From left to right: the desktops, each with the full-screen windows that came from it on its right.
std::vector<int> spacesInOrder(const Machine& machine) {
    const auto windows = machine.finder.windows();
    int desktops = fewestDesktops;
    for (const ServerWindow* shown : machine.windows.all()) {
        const FinderWindow* window = machine.finder.find(shown->number);
        desktops =
            std::max(desktops, window != nullptr && window->fullScreen ? window->spaceBeforeFullScreen : shown->space);
    }
    if (!machine.windows.isFullScreenSpace()) desktops = std::max(desktops, machine.windows.currentSpace());
    std::vector<int> spaces;
    for (int desktop = 1; desktop <= desktops; ++desktop) {
        spaces.push_back(desktop);
        const auto firstOwn = std::ssize(spaces);
        for (const FinderWindow* window : windows)
            if (window->fullScreen && window->spaceBeforeFullScreen == desktop)
                spaces.push_back(machine.windows.find(window->number)->space);
        std::sort(spaces.begin() + firstOwn, spaces.end());
    }
    return spaces;
}

}  // namespace

bool isSpaceKey(const KeyStroke& stroke) {
    return spaceKeyOf(stroke) != nullptr;
}

void changeSpaceBy(Machine& machine, const KeyStroke& stroke) {
    const SpaceKey* key = spaceKeyOf(stroke);
    if (key == nullptr) return;
    if (key->direction == 0) return machine.windows.switchToSpace(key->desktop);
    const std::vector<int> spaces = spacesInOrder(machine);
    const auto here = std::find(spaces.begin(), spaces.end(), machine.windows.currentSpace());
    const auto next = (here - spaces.begin()) + key->direction;
    if (here != spaces.end() && next >= 0 && next < std::ssize(spaces))
        machine.windows.switchToSpace(spaces[static_cast<std::size_t>(next)]);
}

}  // namespace desk
