// What Finder can be told by a menu of the menu bar or by the keys that go with its entries: one table for both. Commands act on the front folder window where they need one.
#pragma once

#include <vector>

namespace desk {

class Machine;

struct FinderCommand {
    const char* menu;
    const char* title;
    const char* key;  // as desk::keyStroke reads it; empty for none
    void (*act)(Machine& machine);
    bool (*isPossible)(Machine& machine);
    bool beginsGroup = false;
};

// By menus, in their order.
const std::vector<FinderCommand>& finderCommands();

}  // namespace desk
