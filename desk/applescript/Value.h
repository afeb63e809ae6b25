// The values that a script computes with. Lists and records are values too: an assignment copies them, where real
// AppleScript's `set` would share them.
#pragma once

#include "desk/applescript/Terminology.h"
#include "desk/applescript/Text.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace desk::applescript {

class Value;

// A reference to something of Finder's or of the script's surroundings.
struct Reference {
    enum class Kind { application, script, appleScript, window, virtualTarget, item, alias, posixFile };

    Kind kind = Kind::script;
    // Of an item, alias or POSIX file: without a trailing slash except for "/".
    std::string path;
    // Known to be a folder.
    bool isFolder = false;
    // Of a window or a virtual target.
    std::int64_t windowIdentifier = 0;

    bool isOnDisk() const { return kind == Kind::item || kind == Kind::alias || kind == Kind::posixFile; }
    bool operator==(const Reference& other) const {
        return isOnDisk() ? other.isOnDisk() && path == other.path
                          : kind == other.kind && windowIdentifier == other.windowIdentifier;
    }
};

struct Nothing {};
struct MissingValue {};

// Nesting and the number of values in all are kept with each list, so that no script can build one that is too deep or
// too large to walk.
struct List {
    std::vector<Value> items;
    int depth = 1;
    std::size_t weight = 1;
};

struct Record {
    std::vector<std::pair<std::string, Value>> entries;
    int depth = 1;
    std::size_t weight = 1;

    const Value* find(std::string_view key) const;
};

using ListPtr = std::shared_ptr<const List>;
using RecordPtr = std::shared_ptr<const Record>;

class Value {
public:
    using Storage = std::variant<Nothing, MissingValue, bool, std::int64_t, double, Text, ListPtr, RecordPtr, ClassTerm,
                                 std::shared_ptr<const Reference>>;

    Value() = default;
    Value(Storage value) : storage(std::move(value)) {}

    static Value text(std::string bytes) { return Value(Text(std::move(bytes))); }
    static Value number(std::int64_t number) { return Value(Storage(number)); }
    static Value boolean(bool flag) { return Value(Storage(flag)); }
    static Value reference(Reference reference) {
        return Value(std::make_shared<const Reference>(std::move(reference)));
    }
    // Throws Failure for a list beyond the limits of nesting and size.
    static Value list(std::vector<Value> items);
    static Value record(std::vector<std::pair<std::string, Value>> entries);

    template <typename T>
    const T* as() const {
        return std::get_if<T>(&storage);
    }
    template <typename T>
    bool is() const {
        return std::holds_alternative<T>(storage);
    }

    // Change a list in place, or a copy of it where others hold it too. Throw Failure as `list` does.
    void appendItem(const Value& item);
    void insertItem(const Value& item);
    void replaceItem(std::size_t index, const Value& item);

    const List* list() const { return is<ListPtr>() ? std::get<ListPtr>(storage).get() : nullptr; }
    const Record* record() const { return is<RecordPtr>() ? std::get<RecordPtr>(storage).get() : nullptr; }
    const Reference* reference() const;
    bool isNumber() const { return is<std::int64_t>() || is<double>(); }
    // Of a number.
    double real() const;

    int depth() const;
    // How many values a walk through this one meets.
    std::size_t weight() const;
    ClassTerm classTerm() const;

private:
    List& ownList();

    Storage storage;
};

// As scripts and error messages write the value: texts in quotes, lists in braces, references in words.
std::string described(const Value& value);

}  // namespace desk::applescript
