#include "pathbar/PathBarDesignManager.h"

#include <string>

namespace brindle {

namespace {

PathBarDesign storedDesign(platform::NSUserDefaults& defaults) {
    const auto stored = defaults.stringForKey(PathBarDesignManager::defaultsKey);
    return stored ? pathBarDesign(*stored).value_or(PathBarDesign::finderSimple) : PathBarDesign::finderSimple;
}

}  // namespace

PathBarDesignManager::PathBarDesignManager(platform::Platform& thePlatform)
    : platform(thePlatform), selectedDesign(*this, storedDesign(thePlatform.defaults)) {
    store();
}

void PathBarDesignManager::select(PathBarDesign design) {
    if (selectedDesign.setIfChanged(design)) store();
}

void PathBarDesignManager::store() {
    platform.defaults.setObject(defaultsKey, std::string(rawValue(selectedDesign.get())));
}

}  // namespace brindle
