// Tells the journal when ordinary windows of launched applications come on screen and when they go. Panels aren't told of.
#pragma once

#include <cstdint>
#include <set>

#include "platform/Token.h"

namespace desk {

class Journal;
struct ServerWindow;
class WindowStack;

class WindowJournal {
public:
    WindowJournal(WindowStack& windows, Journal& theJournal);

private:
    void note(const ServerWindow& window);

    Journal& journal;
    std::set<std::int64_t> shown;
    platform::Token subscription;
};

}  // namespace desk
