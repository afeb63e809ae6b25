// What applications asked of the system, in order, since the machine was made: one list for everything whose order matters. It remembers and does nothing.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "desk/time/Scheduler.h"

namespace desk {

struct JournalEntry {
    platform::Date time;
    std::int32_t process = 0;
    std::string what;
};

class Journal {
public:
    explicit Journal(const Scheduler& theScheduler) : scheduler(theScheduler) {}

    void note(std::int32_t process, std::string what) { list.push_back({scheduler.now(), process, std::move(what)}); }
    const std::vector<JournalEntry>& entries() const { return list; }

private:
    const Scheduler& scheduler;
    std::vector<JournalEntry> list;
};

}  // namespace desk
