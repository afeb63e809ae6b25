#include "play/live/ArrivingLines.h"

#include <unistd.h>

#include <utility>

namespace play {

ArrivingLines::ArrivingLines(int theDescriptor)
    : descriptor(theDescriptor), arrived(std::make_unique<QSocketNotifier>(theDescriptor, QSocketNotifier::Read)) {
    QObject::connect(arrived.get(), &QSocketNotifier::activated, arrived.get(), [this] { read(); });
}

ArrivingLines::~ArrivingLines() = default;

std::optional<ScriptLine> ArrivingLines::next() {
    if (lines.empty()) {
        over = hasEnded;
        return std::nullopt;
    }
    ScriptLine line = std::move(lines.front());
    lines.pop_front();
    return line;
}

void ArrivingLines::read() {
    char block[4096];
    const ssize_t length = ::read(descriptor, block, sizeof block);
    if (length <= 0) {
        hasEnded = true;
        arrived->setEnabled(false);
        if (!unfinished.empty()) take(std::exchange(unfinished, {}));
        return;
    }
    unfinished.append(block, static_cast<std::size_t>(length));
    for (std::size_t end = unfinished.find('\n'); end != std::string::npos; end = unfinished.find('\n')) {
        take(std::string_view(unfinished).substr(0, end));
        unfinished.erase(0, end + 1);
    }
}

void ArrivingLines::take(std::string_view line) {
    ++number;
    Script read = readScript(line);
    for (ScriptLine& each : read.lines) {
        each.number = number;
        lines.push_back(std::move(each));
    }
    if (read.error) lines.push_back({number, read.error->message, {}});
}

}  // namespace play
