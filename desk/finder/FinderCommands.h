// What Finder can be told by a menu of the menu bar or by the keys that go with its entries: one table for both. Commands act on the front folder window where they need one.
#pragma once

#include <vector>

namespace desk {

class Finder;

struct FinderCommand {
    const char* menu;
    const char* title;
    const char* key;  // as desk::keyStroke reads it; empty for none
    void (*act)(Finder& finder);
    bool (*isPossible)(Finder& finder);
    bool beginsGroup = false;
};

// By menus, in their order.
const std::vector<FinderCommand>& finderCommands();

}  // namespace desk
