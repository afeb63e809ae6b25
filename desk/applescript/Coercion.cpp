#include "desk/applescript/Coercion.h"

#include "desk/applescript/Failure.h"
#include "desk/applescript/FilePath.h"
#include "desk/applescript/TextCase.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace desk::applescript {

namespace {

std::string integerText(std::int64_t number) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return std::string(digits.data(), end);
}

// AppleScript writes reals from ten thousand on, and very small ones, as a mantissa with an exponent.
std::string realText(double number) {
    const double magnitude = std::fabs(number);
    const bool hasExponent = magnitude >= 10'000 || (magnitude < 0.001 && magnitude > 0);
    std::array<char, 64> digits{};
    const auto format = hasExponent ? std::chars_format::scientific : std::chars_format::fixed;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, format).ptr;
    std::string text(digits.data(), end);
    if (!std::isfinite(number)) {
        return text;
    }
    const std::size_t exponentMark = text.find('e');
    std::string mantissa = text.substr(0, exponentMark);
    mantissa += mantissa.find('.') == std::string::npos ? ".0" : "";
    if (exponentMark == std::string::npos) {
        return mantissa;
    }
    int exponent = 0;
    const std::size_t first = exponentMark + (text[exponentMark + 1] == '+' ? 2 : 1);
    std::from_chars(text.data() + first, text.data() + text.size(), exponent);
    return mantissa + "E" + (exponent < 0 ? "" : "+") + std::to_string(exponent);
}

std::optional<Text> textOfList(const List& list, std::string_view delimiters) {
    Text joined;
    bool isFirst = true;
    for (const Value& item : list.items) {
        const std::optional<Text> text = textOf(item, delimiters);
        if (!text) {
            return std::nullopt;
        }
        joined = joined.appending(isFirst ? "" : delimiters).appending(text->string());
        isFirst = false;
    }
    return joined;
}

std::string_view trimmed(std::string_view text) {
    const std::size_t start = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    const std::size_t end = text.find_last_not_of(" \t\r\n");
    return text.substr(start, end == std::string_view::npos ? 0 : end + 1 - start);
}

std::optional<Value> numberInText(std::string_view text) {
    text = trimmed(text);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    const char* end = text.data() + text.size();
    std::int64_t integer = 0;
    if (const auto read = std::from_chars(text.data(), end, integer); read.ec == std::errc() && read.ptr == end) {
        return Value::number(integer);
    }
    double real = 0;
    const auto read = std::from_chars(text.data(), end, real);
    if (read.ec != std::errc() || read.ptr != end || !std::isfinite(real)) {
        return std::nullopt;
    }
    return Value(real);
}

// A list of one item stands for the item.
const Value* onlyItem(const Value& value) {
    return value.list() != nullptr && value.list()->items.size() == 1 ? &value.list()->items.front() : nullptr;
}

}  // namespace

std::optional<Text> textOf(const Value& value, std::string_view delimiters) {
    if (const Text* text = value.as<Text>()) {
        return *text;
    }
    if (const auto* number = value.as<std::int64_t>()) {
        return Text(integerText(*number));
    }
    if (const double* number = value.as<double>()) {
        return Text(realText(*number));
    }
    if (const bool* flag = value.as<bool>()) {
        return Text(*flag ? "true" : "false");
    }
    if (const ClassTerm* term = value.as<ClassTerm>()) {
        return Text(std::string(className(*term)));
    }
    if (value.is<MissingValue>()) {
        return Text("missing value");
    }
    if (value.list() != nullptr) {
        return textOfList(*value.list(), delimiters);
    }
    if (const Reference* object = value.reference(); object != nullptr && object->isOnDisk()) {
        return Text(colonPath(object->path, object->isFolder));
    }
    return std::nullopt;
}

std::optional<Value> numberOf(const Value& value) {
    if (value.isNumber()) {
        return value;
    }
    if (const bool* flag = value.as<bool>()) {
        return Value::number(*flag ? 1 : 0);
    }
    if (const Text* text = value.as<Text>()) {
        return numberInText(text->view());
    }
    const Value* item = onlyItem(value);
    return item == nullptr ? std::nullopt : numberOf(*item);
}

std::optional<std::int64_t> integerOf(const Value& value) {
    const std::optional<Value> number = numberOf(value);
    if (!number || number->is<std::int64_t>()) {
        return number ? std::optional(*number->as<std::int64_t>()) : std::nullopt;
    }
    const double rounded = std::nearbyint(number->real());
    constexpr double beyond = 9.2e18;
    return std::fabs(rounded) < beyond ? std::optional(static_cast<std::int64_t>(rounded)) : std::nullopt;
}

std::optional<bool> booleanOf(const Value& value) {
    if (const bool* flag = value.as<bool>()) {
        return *flag;
    }
    if (const auto* number = value.as<std::int64_t>()) {
        return *number == 0 || *number == 1 ? std::optional(*number == 1) : std::nullopt;
    }
    if (const Text* text = value.as<Text>()) {
        const std::string folded = foldedCase(text->view());
        return folded == "true" || folded == "false" ? std::optional(folded == "true") : std::nullopt;
    }
    const Value* item = onlyItem(value);
    return item == nullptr ? std::nullopt : booleanOf(*item);
}

Value listOf(const Value& value) {
    if (value.list() != nullptr) {
        return value;
    }
    std::vector<Value> items;
    if (const Record* record = value.record()) {
        for (const auto& entry : record->entries) {
            items.push_back(entry.second);
        }
    } else {
        items.push_back(value);
    }
    return Value::list(std::move(items));
}

void failCoercion(const Value& value, ClassTerm wanted) {
    fail(ErrorNumber::badCoercion,
         "Can’t make " + described(value) + " into type " + std::string(className(wanted)) + ".");
}

}  // namespace desk::applescript
