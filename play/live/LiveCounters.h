// How often what happened in the last second, and how far the bars stood from their windows in the last picture painted. It reads and changes nothing.
#pragma once

#include <cstdint>
#include <deque>

#include "platform/Time.h"

namespace desk {
struct DesktopFrame;
}  // namespace desk

namespace play {

class Session;

class LiveCounters {
public:
    explicit LiveCounters(Session& theSession) : session(theSession) {}

    struct Counts {
        std::int64_t passes = 0;
        std::int64_t fetches = 0;  // of paths and of selections
        std::int64_t layouts = 0;
        std::int64_t barPaints = 0;
        std::int64_t pictures = 0;  // of the desktop
    };
    // Since the start.
    Counts total() const;
    // Since the oldest call within the last second.
    Counts lately();

    // After each picture.
    void note(const desk::DesktopFrame& frame);
    // In the last picture: the largest distance, in points, of a bar's left, right or lower edge from where its window's frame has it.
    double distance() const { return farthest; }

private:
    struct Sample {
        platform::Date when;
        Counts counts;
    };

    Session& session;
    std::deque<Sample> samples;
    double farthest = 0;
};

}  // namespace play
