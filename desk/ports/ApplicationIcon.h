// The picture that the system shows of an application: the icon that its Info dictionary names, or else a plain one. It keeps nothing.
#pragma once

#include "platform/Images.h"

namespace desk {

struct Bundle;

platform::NSImage applicationIcon(const Bundle& bundle, platform::ImageSystem& images);

}  // namespace desk
