// Pictures for one application, read from the machine's disk. It keeps none.
#pragma once

#include <optional>
#include <string>

#include "platform/Images.h"

namespace desk {

class Disk;

class ImagesPort final : public platform::ImageSystem {
public:
    explicit ImagesPort(Disk& theDisk) : disk(theDisk) {}
    std::optional<platform::NSImage> imageWithContentsOf(const std::string& path) override;

private:
    Disk& disk;
};

}  // namespace desk
