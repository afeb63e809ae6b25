// Holds the chosen style of all bars and keeps it in the user defaults. There is one for each application:
// platform.shared<PathBarDesignManager>().
#pragma once

#include "pathbar/PathBarDesign.h"
#include "platform/Platform.h"
#include "platform/Published.h"

namespace brindle {

class PathBarDesignManager final : public platform::ObservableObject {
public:
    static constexpr const char* defaultsKey = "pathBarDesign";

    // Takes what is stored, or the default style, and stores the outcome.
    explicit PathBarDesignManager(platform::Platform& thePlatform);

    // Publishes and stores the style, unless it is the chosen one already.
    void select(PathBarDesign design);

private:
    void store();

    platform::Platform& platform;

public:
    platform::Published<PathBarDesign, PathBarDesignManager> selectedDesign;
};

}  // namespace brindle
