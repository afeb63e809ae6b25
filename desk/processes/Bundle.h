// An application's bundle as it is launched: the path it was named by, links and all, and its Info dictionary as it was then. Nothing of it is looked at again later.
#pragma once

#include <optional>
#include <string>

#include "platform/Dictionary.h"

namespace desk {

class Disk;

struct Bundle {
    std::string path;
    platform::Dictionary info;

    // A bundle can be without an identifier, and the Info dictionary can hold anything.
    std::optional<std::string> identifier() const;
    // What the Info dictionary calls it, or else its folder, without ".app".
    std::string name() const;
    // Where its user defaults lie: the identifier, or the path.
    std::string defaultsDomain() const;
};

// What its Contents/Info.plist says and, over that, what is given; a null value there takes a key away. An Info.plist that can't be read says nothing.
Bundle bundleAt(const Disk& disk, const std::string& path, const platform::Dictionary& over = {});

}  // namespace desk
