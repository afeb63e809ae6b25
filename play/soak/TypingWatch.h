// Remembers between the lines of a story what is being typed into which bar, and finds text that was lost to something that may not take it. What Escape, Return and clicks do to
// a field isn't its concern.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "play/soak/Finding.h"

namespace play {

class Session;

class TypingWatch {
public:
    explicit TypingWatch(const Session& theSession) : session(theSession) {}

    // After this line.
    std::optional<Finding> look(std::string_view line);

private:
    struct Typing {
        std::string id;
        std::string text;
    };
    struct Fields {
        std::map<std::int64_t, Typing> open;  // by panel
        std::int64_t keyPanel = 0;
        bool isHanging = false;
    };

    Fields fieldsNow() const;
    std::optional<Finding> compare(std::string_view line, const Fields& now) const;

    const Session& session;
    Fields before;
};

}  // namespace play
