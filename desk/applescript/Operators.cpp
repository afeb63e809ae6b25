#include "desk/applescript/Operators.h"

#include "desk/applescript/Coercion.h"
#include "desk/applescript/Failure.h"
#include "desk/applescript/TextCase.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace desk::applescript {

namespace {

Value requiredNumber(const Value& value) {
    const std::optional<Value> number = numberOf(value);
    if (!number) {
        failCoercion(value, ClassTerm::number);
    }
    return *number;
}

[[noreturn]] void failDivision(const Value& dividend) {
    fail(ErrorNumber::divisionByZero, "Can’t divide " + described(dividend) + " by zero.");
}

std::optional<std::int64_t> integerResult(Operator operation, std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    const bool isTooNarrow = left == std::numeric_limits<std::int64_t>::min() && right == -1;
    switch (operation) {
    case Operator::add:
        return __builtin_add_overflow(left, right, &result) ? std::nullopt : std::optional(result);
    case Operator::subtract:
        return __builtin_sub_overflow(left, right, &result) ? std::nullopt : std::optional(result);
    case Operator::multiply:
        return __builtin_mul_overflow(left, right, &result) ? std::nullopt : std::optional(result);
    case Operator::integerDivide:
        return right == 0 || isTooNarrow ? std::nullopt : std::optional(left / right);
    case Operator::modulo:
        return right == 0 || isTooNarrow ? std::nullopt : std::optional(left % right);
    default:
        return std::nullopt;
    }
}

double realResult(Operator operation, double left, double right) {
    switch (operation) {
    case Operator::add:
        return left + right;
    case Operator::subtract:
        return left - right;
    case Operator::multiply:
        return left * right;
    case Operator::modulo:
        return std::fmod(left, right);
    case Operator::power:
        return std::pow(left, right);
    default:
        return left / right;
    }
}

Value wholeOrReal(double number) {
    constexpr double beyond = 9.2e18;
    const double whole = std::trunc(number);
    return std::fabs(whole) < beyond ? Value::number(static_cast<std::int64_t>(whole)) : Value(Value::Storage(whole));
}

// Below, at or above zero as in memcmp.
int textOrder(std::string_view left, std::string_view right, bool considersCase) {
    if (considersCase) {
        return left.compare(right);
    }
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t index = 0; index < common; ++index) {
        const auto first = static_cast<unsigned char>(foldedCase(left[index]));
        const auto second = static_cast<unsigned char>(foldedCase(right[index]));
        if (first != second) {
            return first < second ? -1 : 1;
        }
    }
    return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

// The right operand follows the class of the left.
int order(const Value& left, const Value& right, bool considersCase) {
    if (left.isNumber()) {
        const Value number = requiredNumber(right);
        if (left.is<std::int64_t>() && number.is<std::int64_t>()) {
            const std::int64_t first = *left.as<std::int64_t>();
            const std::int64_t second = *number.as<std::int64_t>();
            return first == second ? 0 : first < second ? -1 : 1;
        }
        return left.real() == number.real() ? 0 : left.real() < number.real() ? -1 : 1;
    }
    if (!left.is<Text>()) {
        failCoercion(left, ClassTerm::number);
    }
    const std::optional<Text> text = textOf(right, "");
    if (!text) {
        failCoercion(right, ClassTerm::text);
    }
    return textOrder(left.as<Text>()->view(), text->view(), considersCase);
}

bool areListsEqual(const List& left, const List& right, bool considersCase) {
    return std::equal(left.items.begin(), left.items.end(), right.items.begin(), right.items.end(),
                      [&](const Value& first, const Value& second) { return areEqual(first, second, considersCase); });
}

bool areRecordsEqual(const Record& left, const Record& right, bool considersCase) {
    return left.entries.size() == right.entries.size() &&
           std::all_of(left.entries.begin(), left.entries.end(), [&](const auto& entry) {
               const Value* other = right.find(entry.first);
               return other != nullptr && areEqual(entry.second, *other, considersCase);
           });
}

enum class Place { start, end, anywhere };

bool isWithinText(std::string_view whole, std::string_view part, Place place, bool considersCase) {
    const std::string foldedWhole = considersCase ? std::string(whole) : foldedCase(whole);
    const std::string foldedPart = considersCase ? std::string(part) : foldedCase(part);
    switch (place) {
    case Place::start:
        return foldedWhole.starts_with(foldedPart);
    case Place::end:
        return foldedWhole.ends_with(foldedPart);
    case Place::anywhere:
        return foldedWhole.find(foldedPart) != std::string::npos;
    }
    return false;
}

bool isWithin(const Value& whole, const Value& part, Place place, bool considersCase) {
    if (whole.list() == nullptr) {
        const std::optional<Text> wholeText = textOf(whole, "");
        const std::optional<Text> partText = textOf(part, "");
        if (!wholeText || !partText) {
            failCoercion(wholeText ? part : whole, ClassTerm::text);
        }
        return isWithinText(wholeText->view(), partText->view(), place, considersCase);
    }
    const Value parts = listOf(part);
    const auto& items = whole.list()->items;
    const auto& wanted = parts.list()->items;
    const auto same = [&](const Value& left, const Value& right) { return areEqual(left, right, considersCase); };
    if (wanted.size() > items.size()) {
        return false;
    }
    if (place == Place::anywhere) {
        return wanted.empty() ||
               std::search(items.begin(), items.end(), wanted.begin(), wanted.end(), same) != items.end();
    }
    const auto offset = static_cast<std::ptrdiff_t>(place == Place::start ? 0 : items.size() - wanted.size());
    return std::equal(wanted.begin(), wanted.end(), items.begin() + offset, same);
}

}  // namespace

Value arithmetic(Operator operation, const Value& left, const Value& right) {
    const Value first = requiredNumber(left);
    const Value second = requiredNumber(right);
    const bool divides =
        operation == Operator::divide || operation == Operator::integerDivide || operation == Operator::modulo;
    if (divides && second.real() == 0) {
        failDivision(first);
    }
    if (first.is<std::int64_t>() && second.is<std::int64_t>()) {
        if (const auto whole = integerResult(operation, *first.as<std::int64_t>(), *second.as<std::int64_t>())) {
            return Value::number(*whole);
        }
    }
    const double result = realResult(operation, first.real(), second.real());
    if (!std::isfinite(result)) {
        fail(ErrorNumber::numberTooLarge, "The result of a numeric operation was too large.");
    }
    return operation == Operator::integerDivide ? wholeOrReal(result) : Value(Value::Storage(result));
}

Value negated(const Value& operand) {
    return arithmetic(Operator::subtract, Value::number(0), operand);
}

bool areEqual(const Value& left, const Value& right, bool considersCase) {
    if (left.isNumber() && right.isNumber()) {
        return order(left, right, considersCase) == 0;
    }
    if (left.is<Text>() && right.is<Text>()) {
        return textOrder(left.as<Text>()->view(), right.as<Text>()->view(), considersCase) == 0;
    }
    if (left.list() != nullptr && right.list() != nullptr) {
        return areListsEqual(*left.list(), *right.list(), considersCase);
    }
    if (left.record() != nullptr && right.record() != nullptr) {
        return areRecordsEqual(*left.record(), *right.record(), considersCase);
    }
    if (left.reference() != nullptr && right.reference() != nullptr) {
        return *left.reference() == *right.reference();
    }
    if (left.is<bool>() && right.is<bool>()) {
        return *left.as<bool>() == *right.as<bool>();
    }
    if (left.is<ClassTerm>() && right.is<ClassTerm>()) {
        return *left.as<ClassTerm>() == *right.as<ClassTerm>();
    }
    return left.is<MissingValue>() && right.is<MissingValue>();
}

bool compare(Operator operation, const Value& left, const Value& right, bool considersCase) {
    switch (operation) {
    case Operator::equal:
        return areEqual(left, right, considersCase);
    case Operator::notEqual:
        return !areEqual(left, right, considersCase);
    case Operator::less:
        return order(left, right, considersCase) < 0;
    case Operator::lessOrEqual:
        return order(left, right, considersCase) <= 0;
    case Operator::greater:
        return order(left, right, considersCase) > 0;
    case Operator::greaterOrEqual:
        return order(left, right, considersCase) >= 0;
    case Operator::contains:
        return isWithin(left, right, Place::anywhere, considersCase);
    case Operator::doesNotContain:
        return !isWithin(left, right, Place::anywhere, considersCase);
    case Operator::isIn:
        return isWithin(right, left, Place::anywhere, considersCase);
    case Operator::isNotIn:
        return !isWithin(right, left, Place::anywhere, considersCase);
    case Operator::startsWith:
        return isWithin(left, right, Place::start, considersCase);
    case Operator::endsWith:
        return isWithin(left, right, Place::end, considersCase);
    default:
        return false;
    }
}

}  // namespace desk::applescript
