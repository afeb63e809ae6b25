#include "play/Arguments.h"

#include <charconv>
#include <cmath>

#include "platform/FileURL.h"

namespace play {

void badCommand(const std::string& message) {
    throw Failure{2, message};
}

void missingTarget(const std::string& message) {
    throw Failure{1, message};
}

void Arguments::requireCount(std::size_t least, std::size_t most) const {
    if (count() < least) badCommand("an argument is missing");
    if (count() > most) badCommand("too many arguments: " + text(most));
}

const Word& Arguments::word(std::size_t index) const {
    if (index >= count()) badCommand("an argument is missing");
    return line->words[first + index];
}

const std::string& Arguments::text(std::size_t index) const {
    return word(index).text;
}

bool Arguments::is(std::size_t index, std::string_view bareWord) const {
    return index < count() && !word(index).quoted && word(index).text == bareWord;
}

double Arguments::number(std::size_t index) const {
    const std::string& digits = text(index);
    const char* begin = digits.data() + (digits.size() > 1 && digits[0] == '+' ? 1 : 0);
    double value = 0;
    const auto [end, error] = std::from_chars(begin, digits.data() + digits.size(), value);
    const bool isNumber = error == std::errc() && end == digits.data() + digits.size() && std::isfinite(value);
    if (!isNumber) badCommand("not a number: " + digits);
    return value;
}

std::int64_t Arguments::integer(std::size_t index) const {
    const double value = number(index);
    if (value != std::floor(value) || std::fabs(value) > 1e15) badCommand("not a whole number: " + text(index));
    return static_cast<std::int64_t>(value);
}

double Arguments::seconds(std::size_t index) const {
    const double value = number(index);
    if (value < 0 || value > 1e9) badCommand("not a length of time: " + text(index));
    return value;
}

platform::CGRect Arguments::rect(std::size_t index) const {
    // In braces, so that they are read in order and the first that can't be is told.
    const double sides[] = {number(index), number(index + 1), number(index + 2), number(index + 3)};
    const platform::CGRect rect = platform::CGRectMake(sides[0], sides[1], sides[2], sides[3]);
    if (rect.width() <= 0 || rect.height() <= 0) badCommand("a frame needs a width and a height above 0");
    return rect;
}

platform::CGPoint Arguments::point(std::size_t index) const {
    return {number(index), number(index + 1)};
}

std::string Arguments::path(std::size_t index) const {
    const std::string& path = text(index);
    if (path.empty() || path.front() != '/') badCommand("not an absolute path: " + path);
    return std::string(platform::withoutTrailingSlashes(path));
}

std::string Arguments::rest(std::size_t index) const {
    std::string joined = text(index);
    for (std::size_t i = index + 1; i < count(); ++i) joined += ' ' + text(i);
    return joined;
}

std::string_view Arguments::source(std::size_t index) const {
    if (index < count()) return std::string_view(line->source).substr(word(index).offset);
    // The reader leaves what may be JSON unread.
    const Word& last = line->words.back();
    const std::size_t begin = last.offset + last.text.size() + (last.quoted ? 2 : 0);
    return begin < line->source.size() ? std::string_view(line->source).substr(begin) : std::string_view();
}

}  // namespace play
