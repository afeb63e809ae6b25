// What random actions choose among: the windows, bars and folders that are there now. It reads the session and changes nothing.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desk/finder/FinderWindow.h"
#include "platform/Geometry.h"
#include "play/soak/Random.h"

namespace play {

class Session;

class Chooser {
public:
    Chooser(const Session& theSession, Random& theRandom) : session(theSession), random(theRandom) {}

    const Session& session;
    Random& random;

    // The word for one of Finder's windows that the test picks; empty when there is none.
    using Test = std::function<bool(const desk::FinderWindow&)>;
    std::optional<std::string> window(const Test& test) const;
    std::optional<std::string> folderWindow() const;
    // One that has a bar on screen.
    std::optional<std::string> windowWithBar() const;
    std::size_t windowCount() const;
    std::string partOfBar() const;

    // Words for paths. The folders are those of a sample volume and the story's own; one that a story removed isn't chosen.
    std::string folder() const;
    // Another one of the same name; empty when there is none.
    std::string namesakeOf(const std::string& folder) const;
    std::string itemIn(const std::string& folder) const;
    std::string ownFolder() const;

    // Within and around the screens, often one that a window has already.
    std::string frame() const;
    std::string point() const;
    std::string crumbTitle(const std::string& window) const;
    bool finderRuns() const;
};

}  // namespace play
