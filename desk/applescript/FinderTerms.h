// What Finder's dictionary means: its windows, files and commands, asked of the host and worded as Finder words its
// errors. The interpreter calls it for everything that a script says to Finder.
#pragma once

#include "desk/applescript/ScriptHost.h"
#include "desk/applescript/Terminology.h"
#include "desk/applescript/Value.h"

#include <optional>
#include <string>

namespace desk::applescript {

// Throws Failure with "Finder got an error: " before the sentence.
[[noreturn]] void failInFinder(std::int64_t number, const std::string& sentence);

// Every operation throws Failure when Finder can't be spoken to or refuses.
class FinderTerms {
public:
    explicit FinderTerms(ScriptHost& scriptHost) : host(scriptHost) {}

    static Value application();
    static Value file(Reference::Kind kind, std::string_view posixPath, bool isFolder = false);

    Value windows();
    // Empty if there is no such window.
    std::optional<Value> window(std::int64_t identifier);

    // Empty for a property that such things don't have.
    std::optional<Value> property(const Reference& owner, PropertyTerm term);
    // False for a property that can't be set.
    bool setProperty(const Reference& owner, PropertyTerm term, const Value& value);

    void activate();
    Value makeWindow(const std::optional<Value>& target);
    void select(const Value& item);

    // `as alias`: something that exists on disk.
    Value alias(const Value& value);

private:
    void requireFinder();
    ScriptWindow requiredWindow(const Reference& reference);
    std::string existingPath(const Value& value);
    void requireSuccess(const std::optional<ScriptError>& error);
    std::optional<Value> windowProperty(const Reference& owner, PropertyTerm term);

    ScriptHost& host;
};

}  // namespace desk::applescript
