#include "tracking/FinderPathProvider.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string>
#include <utility>

namespace brindle {

namespace {

// Flat text with separators, as reading nested lists back out of a script's result costs far more. Each read that Finder may refuse has a
// `try` of its own, so that one odd window doesn't cost the others their paths.
constexpr std::string_view windowListSource = R"script(tell application "Finder"
    set fieldSeparator to ASCII character 31
    set recordSeparator to ASCII character 30
    set output to ""
    set finderWindows to every Finder window
    repeat with windowIndex from 1 to count of finderWindows
        set finderWindow to item windowIndex of finderWindows
        set windowID to id of finderWindow
        set windowPath to ""
        set windowName to ""
        set selectedPath to ""
        set selectionQueried to "0"
        try
            set windowPath to POSIX path of (target of finderWindow as alias)
        end try
        try
            set windowName to name of finderWindow
        end try
        if windowIndex is 1 then
            set selectionQueried to "1"
            try
                set selectedItems to selection
                if (count of selectedItems) is 1 then
                    set selectedPath to POSIX path of (item 1 of selectedItems as alias)
                end if
            end try
        end if
        set output to output & windowID & fieldSeparator & windowPath & fieldSeparator & windowName & fieldSeparator & selectedPath & fieldSeparator & selectionQueried & recordSeparator
    end repeat
    return output
end tell)script";
static_assert(windowListSource.size() == 1223);

constexpr std::string_view selectionSource = R"script(tell application "Finder"
    set fieldSeparator to ASCII character 31
    set finderWindow to front Finder window
    set windowID to id of finderWindow
    set selectedPath to ""
    try
        set selectedItems to selection
        if (count of selectedItems) is 1 then
            set selectedPath to POSIX path of (item 1 of selectedItems as alias)
        end if
    end try
    return (windowID as text) & fieldSeparator & selectedPath
end tell)script";
static_assert(selectionSource.size() == 452);

// Fills `parts` from the front and answers how many there are; the last one keeps what separators are left.
template <std::size_t Count>
std::size_t split(std::string_view text, char separator, std::array<std::string_view, Count>& parts) {
    std::size_t count = 0;
    while (count + 1 < Count) {
        const std::size_t end = text.find(separator);
        if (end == std::string_view::npos) break;
        parts[count++] = text.substr(0, end);
        text.remove_prefix(end + 1);
    }
    parts[count++] = text;
    return count;
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') return std::nullopt;
    }
    std::int64_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number;
}

std::optional<std::string> unlessEmpty(std::string_view text) {
    return text.empty() ? std::nullopt : std::optional<std::string>(text);
}

}  // namespace

std::vector<FinderPathSnapshot> FinderPathProvider::fetchWindowPaths() {
    std::vector<FinderPathSnapshot> snapshots;
    const auto answer = run(script, windowListSource);
    if (!answer) return snapshots;
    std::string_view rest = *answer;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(recordSeparator), rest.size());
        if (auto snapshot = parseRecord(rest.substr(0, end))) snapshots.push_back(std::move(*snapshot));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return snapshots;
}

std::optional<FinderSelectionSnapshot> FinderPathProvider::fetchFrontWindowSelection() {
    const auto answer = run(selectionScript, selectionSource);
    if (!answer) return std::nullopt;
    std::array<std::string_view, 2> fields;
    if (split(*answer, fieldSeparator, fields) != fields.size()) return std::nullopt;
    const auto number = wholeNumber(fields[0]);
    if (!number) return std::nullopt;
    return FinderSelectionSnapshot{*number, unlessEmpty(fields[1])};
}

std::optional<std::string> FinderPathProvider::run(LazyScript& held, std::string_view source) {
    if (!held) held = platform.appleEvents.makeAppleScript(std::string(source));
    if (*held == nullptr) return std::nullopt;
    auto result = (*held)->executeAndReturnError();
    if (result.error) return std::nullopt;
    return std::move(result.stringValue);
}

std::optional<FinderPathSnapshot> FinderPathProvider::parseRecord(std::string_view record) {
    std::array<std::string_view, 5> fields;
    if (split(record, fieldSeparator, fields) != fields.size()) return std::nullopt;
    const auto number = wholeNumber(fields[0]);
    if (!number) return std::nullopt;
    return FinderPathSnapshot{"snapshot-" + std::to_string(*number),
                              *number,
                              std::string(fields[1]),
                              std::string(fields[2]),
                              unlessEmpty(fields[3]),
                              fields[4] == "1"};
}

}  // namespace brindle
