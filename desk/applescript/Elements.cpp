#include "desk/applescript/Elements.h"

#include "desk/applescript/Characters.h"
#include "desk/applescript/FilePath.h"

#include <algorithm>
#include <array>
#include <functional>

namespace desk::applescript {

namespace {

ListPtr listOfTexts(const std::vector<std::string_view>& parts) {
    auto list = std::make_shared<List>();
    list->items.reserve(parts.size());
    for (const std::string_view part : parts) {
        list->items.push_back(Value::text(std::string(part)));
    }
    list->weight = parts.size() + 1;
    return list;
}

std::vector<std::string_view> splitAt(std::string_view text, std::string_view delimiter) {
    if (delimiter.empty()) {
        return charactersOf(text);
    }
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    for (std::size_t found = text.find(delimiter); found != std::string_view::npos;
         found = text.find(delimiter, start)) {
        parts.push_back(text.substr(start, found - start));
        start = found + delimiter.size();
    }
    parts.push_back(text.substr(start));
    return parts;
}

std::vector<std::string_view> paragraphsOf(std::string_view text) {
    std::vector<std::string_view> paragraphs;
    while (true) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        paragraphs.push_back(text.substr(0, end));
        if (end == text.size()) {
            return paragraphs;
        }
        text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
    }
}

bool isInWord(std::string_view character) {
    constexpr std::string_view separators = " \t\r\n.,;:!?()[]{}<>\"/\\|@#%&*+=~^`$-";
    return character.size() > 1 || separators.find(character) == std::string_view::npos;
}

std::vector<std::string_view> wordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    const char* start = nullptr;
    const auto finish = [&](const char* end) {
        if (start != nullptr) {
            words.emplace_back(start, static_cast<std::size_t>(end - start));
            start = nullptr;
        }
    };
    for (const std::string_view character : charactersOf(text)) {
        if (!isInWord(character)) {
            finish(character.data());
        } else if (start == nullptr) {
            start = character.data();
        }
    }
    finish(text.data() + text.size());
    return words;
}

std::optional<ListPtr> elementsOfText(std::string_view text, ClassTerm elements, std::string_view delimiters) {
    switch (elements) {
    case ClassTerm::item:
    case ClassTerm::character:
        return listOfTexts(charactersOf(text));
    case ClassTerm::word:
        return listOfTexts(wordsOf(text));
    case ClassTerm::paragraph:
        return listOfTexts(paragraphsOf(text));
    case ClassTerm::textItem:
        return text.empty() ? std::make_shared<List>() : listOfTexts(splitAt(text, delimiters));
    default:
        return std::nullopt;
    }
}

std::optional<Value> lengthOf(const Value& owner) {
    if (const Text* text = owner.as<Text>()) {
        return Value::number(static_cast<std::int64_t>(characterCount(text->view())));
    }
    if (owner.list() != nullptr) {
        return Value::number(static_cast<std::int64_t>(owner.list()->items.size()));
    }
    if (owner.record() != nullptr) {
        return Value::number(static_cast<std::int64_t>(owner.record()->entries.size()));
    }
    return std::nullopt;
}

std::optional<Value> reverseOf(const Value& owner) {
    if (owner.list() == nullptr) {
        return std::nullopt;
    }
    std::vector<Value> items = owner.list()->items;
    std::reverse(items.begin(), items.end());
    return Value::list(std::move(items));
}

std::optional<Value> restOf(const Value& owner) {
    if (owner.list() == nullptr || owner.list()->items.empty()) {
        return std::nullopt;
    }
    return Value::list({owner.list()->items.begin() + 1, owner.list()->items.end()});
}

// Finder's own references have none; they become an alias first.
std::optional<Value> posixPathOf(const Value& owner) {
    if (const Text* text = owner.as<Text>()) {
        const std::string_view path = text->view();
        const bool isPosix = path.starts_with('/') || path.find(':') == std::string_view::npos;
        const std::string converted = isPosix ? std::string(path) : posixPathFromColons(path);
        return Value::text(converted + (!isPosix && path.ends_with(':') && converted != "/" ? "/" : ""));
    }
    const Reference* file = owner.reference();
    if (file == nullptr || !file->isOnDisk() || file->kind == Reference::Kind::item) {
        return std::nullopt;
    }
    return Value::text(file->path + (file->isFolder && file->path != "/" ? "/" : ""));
}

std::optional<Value> quotedFormOf(const Value& owner) {
    const Text* text = owner.as<Text>();
    return text == nullptr ? std::nullopt : std::optional(Value::text(quotedForShell(text->view())));
}

std::optional<Value> codesOf(const Value& owner) {
    const Text* text = owner.as<Text>();
    if (text == nullptr || text->view().empty()) {
        return std::nullopt;
    }
    std::vector<Value> codes;
    for (const std::string_view character : charactersOf(text->view())) {
        codes.push_back(Value::number(codeOfCharacter(character)));
    }
    return codes.size() == 1 ? codes.front() : Value::list(std::move(codes));
}

std::optional<Value> endOf(const Value& owner, bool isFirst) {
    if (owner.list() == nullptr || owner.list()->items.empty()) {
        return std::nullopt;
    }
    return isFirst ? owner.list()->items.front() : owner.list()->items.back();
}

}  // namespace

std::optional<ListPtr> elementsOf(const Value& container, ClassTerm elements, std::string_view delimiters) {
    if (const Text* text = container.as<Text>()) {
        return elementsOfText(text->view(), elements, delimiters);
    }
    const bool isList = elements == ClassTerm::item && container.list() != nullptr;
    return isList ? std::optional(*container.as<ListPtr>()) : std::nullopt;
}

std::optional<std::size_t> elementIndex(std::int64_t number, std::size_t count) {
    const auto total = static_cast<std::int64_t>(count);
    if (number == 0 || number > total || number < -total) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(number > 0 ? number - 1 : total + number);
}

std::optional<Value> elementRange(const List& list, std::int64_t first, std::int64_t last) {
    const auto start = elementIndex(first, list.items.size());
    const auto end = elementIndex(last, list.items.size());
    if (!start || !end) {
        return std::nullopt;
    }
    const auto [low, high] = std::minmax(*start, *end);
    return Value::list({list.items.begin() + static_cast<std::ptrdiff_t>(low),
                        list.items.begin() + static_cast<std::ptrdiff_t>(high + 1)});
}

std::optional<Value> textRange(std::string_view text, std::int64_t first, std::int64_t last) {
    const std::vector<std::string_view> characters = charactersOf(text);
    const auto start = elementIndex(first, characters.size());
    const auto end = elementIndex(last, characters.size());
    if (!start || !end) {
        return std::nullopt;
    }
    const std::string_view low = characters[std::min(*start, *end)];
    const std::string_view high = characters[std::max(*start, *end)];
    return Value::text(std::string(low.data(), high.data() + high.size()));
}

std::optional<Value> languageProperty(PropertyTerm property, const Value& owner) {
    struct Entry {
        PropertyTerm term;
        std::optional<Value> (*get)(const Value&);
    };
    static constexpr auto entries = std::to_array<Entry>({
        {PropertyTerm::length, lengthOf},
        {PropertyTerm::classOf, [](const Value& value) { return std::optional(Value(value.classTerm())); }},
        {PropertyTerm::reverse, reverseOf},
        {PropertyTerm::rest, restOf},
        {PropertyTerm::contents, [](const Value& value) { return std::optional(value); }},
        {PropertyTerm::posixPath, posixPathOf},
        {PropertyTerm::quotedForm, quotedFormOf},
        {PropertyTerm::identifier, codesOf},
        {PropertyTerm::beginning, [](const Value& value) { return endOf(value, true); }},
        {PropertyTerm::end, [](const Value& value) { return endOf(value, false); }},
    });
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) { return entry.term == property; });
    return found == entries.end() ? std::nullopt : found->get(owner);
}

}  // namespace desk::applescript
