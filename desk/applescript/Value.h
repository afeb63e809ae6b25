// The values that a script computes with.
#pragma once

#include "desk/applescript/ScriptText.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace desk::applescript {

// A reference to Finder or something of Finder's.
struct Reference {
    enum class Kind { application, window, virtualTarget, item, alias, posixFile };

    Kind kind = Kind::application;
    // Of an item, alias or POSIX file: without a trailing slash except for "/".
    std::string path;
    // Known to be a folder.
    bool isFolder = false;
    // Of a window or a virtual target.
    std::int64_t windowIdentifier = 0;

    bool isOnDisk() const { return kind == Kind::item || kind == Kind::alias || kind == Kind::posixFile; }
};

struct Nothing {};

class Value {
public:
    using List = std::vector<Value>;
    using Storage = std::variant<Nothing, bool, std::int64_t, double, ScriptText, std::shared_ptr<const List>,
                                 std::shared_ptr<const Reference>>;

    Value() = default;
    Value(Storage value) : storage(std::move(value)) {}

    static Value text(std::string bytes) { return Value(ScriptText(std::move(bytes))); }
    static Value number(std::int64_t number) { return Value(Storage(number)); }
    static Value boolean(bool flag) { return Value(Storage(flag)); }
    static Value reference(Reference reference) {
        return Value(std::make_shared<const Reference>(std::move(reference)));
    }
    static Value list(List items) { return Value(std::make_shared<const List>(std::move(items))); }

    template <typename T>
    const T* as() const {
        return std::get_if<T>(&storage);
    }
    template <typename T>
    bool is() const {
        return std::holds_alternative<T>(storage);
    }

    const List* list() const { return pointee<List>(); }
    const Reference* reference() const { return pointee<Reference>(); }

private:
    template <typename T>
    const T* pointee() const {
        const auto* pointer = as<std::shared_ptr<const T>>();
        return pointer == nullptr ? nullptr : pointer->get();
    }

    Storage storage;
};

// As error messages write the value: texts in quotes, lists in braces, references in words.
std::string described(const Value& value);

// Case doesn't count in texts, accents do.
bool areEqual(const Value& left, const Value& right);

}  // namespace desk::applescript
