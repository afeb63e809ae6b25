#include "play/soak/WindowNumbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>

#include "desk/windows/WindowStack.h"
#include "play/ScriptReader.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

constexpr std::string_view verbsOnWindows[] = {"close",  "minimize", "restore",     "raise", "go",
                                               "select", "frame",    "full-screen", "space"};

bool isOneOfThem(std::string_view verb) {
    return std::find(std::begin(verbsOnWindows), std::end(verbsOnWindows), verb) != std::end(verbsOnWindows);
}

// Where the line names a window; 0 when it names none.
std::size_t placeOfNumber(const std::vector<Word>& words) {
    constexpr std::size_t afterVerb = 2;
    constexpr std::size_t afterFault = 4;
    if (words.front().text == "finder" && words.size() > afterVerb) {
        if (isOneOfThem(words[1].text)) return afterVerb;
        const bool isFault = words[1].text == "ax-fault" || words[1].text == "list-fault";
        return isFault && words.size() > afterFault ? afterFault : 0;
    }
    for (std::size_t i = 1; i + 1 < words.size(); ++i)
        if (!words[i].quoted && (words[i].text == "bar" || words[i].text == "window")) return i + 1;
    return 0;
}

std::int64_t numberIn(const std::string& text) {
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

using NewNumbers = std::map<std::int64_t, std::int64_t>;

std::optional<std::string> renumberedLine(const std::string& line, const NewNumbers& numbers) {
    std::string message;
    auto words = splitWords(line, message);
    const std::size_t place = words && !words->empty() ? placeOfNumber(*words) : 0;
    if (place == 0) return line;
    const std::int64_t number = numberIn((*words)[place].text);
    if (number < desk::firstFinderWindowNumber) return line;
    const auto found = numbers.find(number);
    if (found == numbers.end()) return std::nullopt;
    std::vector<std::string> written;
    for (const Word& word : *words) written.push_back(word.quoted ? textWord(word.text) : word.text);
    written[place] = numberWord(found->second);
    return joinWords(written);
}

}  // namespace

std::vector<std::string> renumbered(const std::vector<PlayedLine>& lines, const std::vector<bool>& isKept) {
    std::vector<std::string> kept;
    NewNumbers numbers;
    std::int64_t next = desk::firstFinderWindowNumber;
    std::int64_t before = desk::firstFinderWindowNumber - 1;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::int64_t opened = std::exchange(before, lines[i].lastWindow) + 1;
        if (!isKept[i]) continue;
        if (auto line = renumberedLine(lines[i].text, numbers))
            kept.push_back(std::move(*line));
        else
            continue;
        for (std::int64_t number = opened; number <= lines[i].lastWindow; ++number) numbers.emplace(number, next++);
    }
    return kept;
}

}  // namespace play
