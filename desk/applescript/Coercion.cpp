#include "desk/applescript/Coercion.h"

#include "desk/applescript/Failure.h"

namespace desk::applescript {

std::optional<ScriptText> textOf(const Value& value) {
    if (const ScriptText* text = value.as<ScriptText>()) {
        return *text;
    }
    if (const auto* number = value.as<std::int64_t>()) {
        return ScriptText(std::to_string(*number));
    }
    if (const double* number = value.as<double>()) {
        return ScriptText(std::to_string(*number));
    }
    if (const bool* flag = value.as<bool>()) {
        return ScriptText(*flag ? "true" : "false");
    }
    return std::nullopt;
}

ScriptText requiredText(const Value& value) {
    const std::optional<ScriptText> text = textOf(value);
    if (!text) {
        failCoercion(value, "text");
    }
    return *text;
}

std::int64_t requiredInteger(const Value& value) {
    if (!value.is<std::int64_t>()) {
        failCoercion(value, "integer");
    }
    return *value.as<std::int64_t>();
}

double requiredNumber(const Value& value) {
    const double* real = value.as<double>();
    return real != nullptr ? *real : static_cast<double>(requiredInteger(value));
}

bool requiredBoolean(const Value& value) {
    if (!value.is<bool>()) {
        failCoercion(value, "boolean");
    }
    return *value.as<bool>();
}

void failCoercion(const Value& value, std::string_view wanted) {
    fail(ErrorNumber::badCoercion, "Can’t make " + described(value) + " into type " + std::string(wanted) + ".");
}

}  // namespace desk::applescript
