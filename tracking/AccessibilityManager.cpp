#include "tracking/AccessibilityManager.h"

namespace brindle {

AccessibilityManager::AccessibilityManager(platform::Platform& thePlatform)
    : isTrusted(*this, thePlatform.accessibility.AXIsProcessTrusted()), platform(thePlatform) {}

void AccessibilityManager::refresh() {
    isTrusted.setIfChanged(platform.accessibility.AXIsProcessTrusted());
}

}  // namespace brindle
