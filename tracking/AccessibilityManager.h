// Whether the user trusts this application with Accessibility, as a value to subscribe to. The observer, the menu and the onboarding guide
// have it re-read; the guide also writes what it learns. It neither prompts nor polls.
#pragma once

#include "platform/Platform.h"

namespace brindle {

class AccessibilityManager : public platform::ObservableObject {
public:
    explicit AccessibilityManager(platform::Platform& thePlatform);

    platform::Published<bool> isTrusted;

    // Publishes only a change.
    void refresh();

private:
    platform::Platform& platform;
};

}  // namespace brindle
