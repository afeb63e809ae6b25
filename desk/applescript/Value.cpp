#include "desk/applescript/Value.h"

#include "desk/applescript/Coercion.h"
#include "desk/applescript/Failure.h"
#include "desk/applescript/FilePath.h"

#include <algorithm>

namespace desk::applescript {

namespace {

constexpr int greatestDepth = 100;
constexpr std::size_t greatestWeight = 2'000'000;
constexpr std::size_t longestDescription = 2000;

void accountFor(const Value& value, int& depth, std::size_t& weight) {
    depth = std::max(depth, value.depth() + 1);
    weight += value.weight();
    if (depth > greatestDepth || weight > greatestWeight) {
        fail(ErrorNumber::outOfMemory, "Out of memory.");
    }
}

std::string describedItem(const Reference& item) {
    std::string text;
    std::string path = item.path;
    std::string kind = item.isFolder ? "folder" : "item";
    for (; path != "/" && !path.empty(); path = parentPath(path), kind = "folder") {
        text += kind + " \"" + finderName(lastComponent(path)) + "\" of ";
    }
    return text + "startup disk";
}

std::string described(const Reference& reference) {
    switch (reference.kind) {
    case Reference::Kind::application:
        return "application \"Finder\"";
    case Reference::Kind::script:
        return "«script»";
    case Reference::Kind::appleScript:
        return "AppleScript";
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

std::string describedList(const List& list) {
    std::string text = "{";
    for (const Value& item : list.items) {
        text += (text.size() == 1 ? "" : ", ") + described(item);
        if (text.size() > longestDescription) {
            return text + "…";
        }
    }
    return text + "}";
}

std::string describedRecord(const Record& record) {
    std::string text = "{";
    for (const auto& [key, value] : record.entries) {
        text += (text.size() == 1 ? "" : ", ") + key + ":" + described(value);
        if (text.size() > longestDescription) {
            return text + "…";
        }
    }
    return text + "}";
}

}  // namespace

const Value* Record::find(std::string_view key) const {
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const auto& entry) { return entry.first == key; });
    return found == entries.end() ? nullptr : &found->second;
}

Value Value::list(std::vector<Value> items) {
    auto list = std::make_shared<List>();
    for (const Value& item : items) {
        accountFor(item, list->depth, list->weight);
    }
    list->items = std::move(items);
    return Value(ListPtr(std::move(list)));
}

Value Value::record(std::vector<std::pair<std::string, Value>> entries) {
    auto record = std::make_shared<Record>();
    for (const auto& entry : entries) {
        accountFor(entry.second, record->depth, record->weight);
    }
    record->entries = std::move(entries);
    return Value(RecordPtr(std::move(record)));
}

List& Value::ownList() {
    ListPtr& shared = std::get<ListPtr>(storage);
    if (shared.use_count() > 1) {
        shared = std::make_shared<List>(*shared);
    }
    // Every list is made as a changeable one.
    return const_cast<List&>(*shared);
}

void Value::appendItem(const Value& item) {
    List& own = ownList();
    accountFor(item, own.depth, own.weight);
    own.items.push_back(item);
}

void Value::insertItem(const Value& item) {
    List& own = ownList();
    accountFor(item, own.depth, own.weight);
    own.items.insert(own.items.begin(), item);
}

void Value::replaceItem(std::size_t index, const Value& item) {
    List& own = ownList();
    own.weight -= own.items[index].weight();
    accountFor(item, own.depth, own.weight);
    own.items[index] = item;
}

const Reference* Value::reference() const {
    const auto* pointer = as<std::shared_ptr<const Reference>>();
    return pointer == nullptr ? nullptr : pointer->get();
}

double Value::real() const {
    return is<double>() ? *as<double>() : static_cast<double>(*as<std::int64_t>());
}

int Value::depth() const {
    return list() != nullptr ? list()->depth : record() != nullptr ? record()->depth : 0;
}

std::size_t Value::weight() const {
    return list() != nullptr ? list()->weight : record() != nullptr ? record()->weight : 1;
}

ClassTerm Value::classTerm() const {
    constexpr std::array byAlternative{ClassTerm::missingValue, ClassTerm::classOfClasses, ClassTerm::boolean,
                                       ClassTerm::integer,      ClassTerm::real,           ClassTerm::text,
                                       ClassTerm::list,         ClassTerm::record,         ClassTerm::classOfClasses};
    const Reference* object = reference();
    if (object == nullptr) {
        return byAlternative[storage.index()];
    }
    switch (object->kind) {
    case Reference::Kind::application:
        return ClassTerm::application;
    case Reference::Kind::script:
    case Reference::Kind::appleScript:
        return ClassTerm::script;
    case Reference::Kind::window:
        return ClassTerm::finderWindow;
    case Reference::Kind::virtualTarget:
        return ClassTerm::folder;
    case Reference::Kind::item:
        return object->isFolder ? ClassTerm::folder : ClassTerm::file;
    case Reference::Kind::alias:
        return ClassTerm::alias;
    case Reference::Kind::posixFile:
        return ClassTerm::posixFile;
    }
    return ClassTerm::item;
}

std::string described(const Value& value) {
    if (value.list() != nullptr) {
        return describedList(*value.list());
    }
    if (value.record() != nullptr) {
        return describedRecord(*value.record());
    }
    if (value.reference() != nullptr) {
        return described(*value.reference());
    }
    if (value.is<Text>()) {
        return inQuotes(value.as<Text>()->view());
    }
    const std::optional<Text> text = textOf(value, "");
    return text ? text->string() : "«script»";
}

}  // namespace desk::applescript
