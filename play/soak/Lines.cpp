#include "play/soak/Lines.h"

#include <charconv>

namespace play {

namespace {

struct Escape {
    char character;
    std::string_view written;
};
constexpr Escape escapes[] = {{'"', "\\\""}, {'\\', "\\\\"}, {'\n', "\\n"}, {'\t', "\\t"}};

bool isControl(char character) {
    return static_cast<unsigned char>(character) < 0x20;
}

std::string controlEscape(char character) {
    char digits[4];
    const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<unsigned>(character), 16);
    return "\\u{" + std::string(digits, end.ptr) + "}";
}

std::string escaped(char character) {
    for (const Escape& escape : escapes)
        if (escape.character == character) return std::string(escape.written);
    return isControl(character) ? controlEscape(character) : std::string{character};
}

template <typename Number>
std::string shortest(Number value) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value);
    return {digits, end.ptr};
}

}  // namespace

std::string numberWord(double value) {
    return shortest(value);
}

std::string numberWord(std::int64_t value) {
    return shortest(value);
}

std::string numberWord(int value) {
    return shortest(value);
}

std::string textWord(std::string_view text) {
    const bool isPlain = !text.empty() && text.find_first_of(" \"\\#\n\t\r") == std::string_view::npos;
    std::string word;
    bool hasControl = false;
    for (const char character : text) {
        hasControl = hasControl || isControl(character);
        word += escaped(character);
    }
    return isPlain && !hasControl ? std::string(text) : '"' + word + '"';
}

std::string frameWords(const platform::CGRect& frame) {
    return numberWord(frame.origin.x) + ' ' + numberWord(frame.origin.y) + ' ' + numberWord(frame.size.width) + ' ' +
           numberWord(frame.size.height);
}

std::string joinWords(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) {
        if (word.empty()) continue;
        if (!line.empty()) line += ' ';
        line += word;
    }
    return line;
}

}  // namespace play
