// Follows a press on a copy button to its release, whatever else a story tells meanwhile, and finds a release over the button that hasn't copied the path. It looks away while
// something else could have taken the press, and while the application waits.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "play/soak/Finding.h"

namespace brindle {
class FinderOverlayWindowController;
}  // namespace brindle

namespace play {

class Session;

class CopyWatch {
public:
    explicit CopyWatch(const Session& theSession) : session(theSession) {}

    // After this line.
    std::optional<Finding> look(std::string_view line);

private:
    // Whose copy button the mouse is on; null for none.
    const brindle::FinderOverlayWindowController* barAtMouse() const;
    bool isOnTop(std::int64_t panel) const;
    bool isDistracted() const;

    const Session& session;
    bool wasDistracted = true;
    std::int64_t held = 0;  // the panel; 0 for none
    std::string path;       // of its bar, before the line
};

}  // namespace play
