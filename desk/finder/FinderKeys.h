// A person's keyboard while Finder has it: the keys of its menus, those that walk along the list, and typing a name. It takes no key that means nothing to it, and tells nobody else of any.
#pragma once

#include "platform/Events.h"

namespace desk {

class Finder;

class FinderKeys {
public:
    explicit FinderKeys(Finder& theFinder) : finder(theFinder) {}

    void keyDown(const platform::NSEvent& event);

private:
    bool takeCommand(const platform::NSEvent& event);
    bool takeListKey(const platform::NSEvent& event);
    void takeTyping(const platform::NSEvent& event);

    Finder& finder;
};

}  // namespace desk
