// The lines of a desk script as they arrive on a file descriptor, for a player in real time. A line that isn't there yet isn't waited for.
#pragma once

#include <QSocketNotifier>
#include <deque>
#include <memory>
#include <string>

#include "play/LineSource.h"

namespace play {

class ArrivingLines final : public LineSource {
public:
    // The descriptor stays open. In the main thread, with a GuiApplication.
    explicit ArrivingLines(int theDescriptor);
    ~ArrivingLines() override;

    // Empty also when the next line hasn't arrived.
    std::optional<ScriptLine> next() override;
    // More was asked for after the last line.
    bool isOver() const { return over; }

private:
    void read();
    void take(std::string_view line);

    int descriptor;
    std::unique_ptr<QSocketNotifier> arrived;
    std::string unfinished;
    std::deque<ScriptLine> lines;
    int number = 0;
    bool hasEnded = false;
    bool over = false;
};

}  // namespace play
