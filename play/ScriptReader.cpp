#include "play/ScriptReader.h"

#include <charconv>
#include <cstdint>

namespace play {

namespace {

bool isBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r';
}

// Empty for what is no Unicode scalar value.
std::optional<std::string> encodeUtf8(std::uint32_t scalar) {
    const bool isSurrogate = scalar >= 0xD800 && scalar < 0xE000;
    if (scalar == 0 || scalar > 0x10FFFF || isSurrogate) return std::nullopt;
    const auto continuation = [&](int shift) { return static_cast<char>(0x80 | ((scalar >> shift) & 0x3F)); };
    if (scalar < 0x80) return std::string{static_cast<char>(scalar)};
    if (scalar < 0x800) return std::string{static_cast<char>(0xC0 | (scalar >> 6)), continuation(0)};
    if (scalar < 0x10000)
        return std::string{static_cast<char>(0xE0 | (scalar >> 12)), continuation(6), continuation(0)};
    return std::string{static_cast<char>(0xF0 | (scalar >> 18)), continuation(12), continuation(6), continuation(0)};
}

// One line's text and the place in it.
class WordReader {
public:
    explicit WordReader(std::string_view theLine) : line(theLine) {}

    bool skipBlanks() {
        while (position < line.size() && isBlank(line[position])) ++position;
        return position < line.size() && line[position] != '#';
    }

    std::optional<Word> read(std::string& message) {
        Word word;
        word.offset = position;
        word.quoted = line[position] == '"';
        if (word.quoted) return readQuoted(std::move(word), message);
        while (position < line.size() && !isBlank(line[position])) word.text += line[position++];
        return word;
    }

private:
    std::optional<Word> readQuoted(Word word, std::string& message) {
        ++position;
        while (position < line.size() && line[position] != '"') {
            if (line[position] != '\\') {
                word.text += line[position++];
            } else if (!readEscape(word.text)) {
                message = "unknown escape in a quotation";
                return std::nullopt;
            }
        }
        if (position == line.size()) {
            message = "a quotation isn't closed";
            return std::nullopt;
        }
        ++position;
        if (position < line.size() && !isBlank(line[position])) {
            message = "a blank is missing after a quotation";
            return std::nullopt;
        }
        return word;
    }

    bool readEscape(std::string& text) {
        const std::string_view rest = line.substr(position + 1);
        if (rest.empty()) return false;
        constexpr std::string_view names = "\"\\nt";
        constexpr std::string_view values = "\"\\\n\t";
        if (const auto simple = names.find(rest[0]); simple != std::string_view::npos) {
            text += values[simple];
            position += 2;
            return true;
        }
        const std::size_t close = rest.find('}');
        if (rest.substr(0, 2) != "u{" || close == std::string_view::npos) return false;
        const std::string_view digits = rest.substr(2, close - 2);
        std::uint32_t scalar = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), scalar, 16);
        if (error != std::errc() || end != digits.data() + digits.size()) return false;
        const auto encoded = encodeUtf8(scalar);
        if (!encoded) return false;
        text += *encoded;
        position += close + 2;
        return true;
    }

    std::string_view line;
    std::size_t position = 0;
};

}  // namespace

std::optional<std::vector<Word>> splitWords(std::string_view line, std::string& message) {
    std::vector<Word> words;
    WordReader reader(line);
    while (reader.skipBlanks()) {
        auto word = reader.read(message);
        if (!word) return std::nullopt;
        words.push_back(std::move(*word));
    }
    return words;
}

namespace {

// What follows the pointer of an `expect` is JSON, whose escapes aren't a script's: it is left for the command to read.
bool takesJson(std::string_view line) {
    constexpr std::string_view command = "expect";
    const std::size_t begin = line.find_first_not_of(" \t");
    if (begin == std::string_view::npos || line.substr(begin, command.size()) != command) return false;
    const std::size_t end = begin + command.size();
    return end < line.size() && isBlank(line[end]);
}

}  // namespace

Script readScript(std::string_view text) {
    Script script;
    int number = 0;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view source = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        ++number;

        std::string message;
        auto words = splitWords(source, message);
        if (!words && takesJson(source)) {
            WordReader reader(source);
            words.emplace();
            for (int i = 0; i < 2 && reader.skipBlanks(); ++i)
                if (auto word = reader.read(message)) words->push_back(std::move(*word));
        }
        if (!words) {
            script.error = ScriptError{number, message};
            return script;
        }
        if (!words->empty()) script.lines.push_back({number, std::string(source), std::move(*words)});
    }
    return script;
}

}  // namespace play
