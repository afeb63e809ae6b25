#include "desk/applescript/Value.h"

#include "desk/applescript/Coercion.h"
#include "desk/applescript/FilePath.h"
#include "desk/applescript/TextCase.h"
#include "platform/FileURL.h"

namespace desk::applescript {

namespace {

constexpr std::size_t longestDescription = 2000;

std::string describedItem(const Reference& item) {
    std::string text;
    std::string path = item.path;
    std::string kind = item.isFolder ? "folder" : "item";
    for (; path != "/" && !path.empty(); path = platform::deletingLastPathComponent(path), kind = "folder") {
        text += kind + " \"" + finderName(lastComponent(path)) + "\" of ";
    }
    return text + "startup disk";
}

std::string described(const Reference& reference) {
    switch (reference.kind) {
    case Reference::Kind::application:
        return "application \"Finder\"";
    case Reference::Kind::window:
        return "Finder window id " + std::to_string(reference.windowIdentifier);
    case Reference::Kind::virtualTarget:
        return "target of Finder window id " + std::to_string(reference.windowIdentifier);
    case Reference::Kind::item:
        return describedItem(reference);
    case Reference::Kind::alias:
        return "alias \"" + colonPath(reference.path, reference.isFolder) + "\"";
    case Reference::Kind::posixFile:
        return "file \"" + colonPath(reference.path, reference.isFolder) + "\"";
    }
    return {};
}

std::string inQuotes(std::string_view text) {
    std::string quoted = "\"";
    for (const char character : text.substr(0, longestDescription)) {
        if (character == '"' || character == '\\') {
            quoted += '\\';
        }
        quoted += character;
    }
    return quoted + "\"";
}

std::string describedList(const Value::List& list) {
    std::string text = "{";
    for (const Value& item : list) {
        text += (text.size() == 1 ? "" : ", ") + described(item);
        if (text.size() > longestDescription) {
            return text + "…";
        }
    }
    return text + "}";
}

}  // namespace

std::string described(const Value& value) {
    if (value.list() != nullptr) {
        return describedList(*value.list());
    }
    if (value.reference() != nullptr) {
        return described(*value.reference());
    }
    const std::optional<ScriptText> text = textOf(value);
    if (!text) {
        return "«script»";
    }
    return value.is<ScriptText>() ? inQuotes(text->view()) : text->string();
}

bool areEqual(const Value& left, const Value& right) {
    const auto* leftNumber = left.as<std::int64_t>();
    const auto* rightNumber = right.as<std::int64_t>();
    if (leftNumber != nullptr && rightNumber != nullptr) {
        return *leftNumber == *rightNumber;
    }
    const ScriptText* leftText = left.as<ScriptText>();
    const ScriptText* rightText = right.as<ScriptText>();
    if (leftText != nullptr && rightText != nullptr) {
        return foldedCase(leftText->view()) == foldedCase(rightText->view());
    }
    return false;
}

}  // namespace desk::applescript
