// The words of the language and of Finder's dictionary that name classes, properties and commands. The parser looks
// them up; what they do is told where they are evaluated.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace desk::applescript {

enum class ClassTerm {
    item,
    character,
    word,
    paragraph,
    textItem,
    text,
    integer,
    real,
    number,
    boolean,
    list,
    record,
    alias,
    aliasList,
    posixFile,
    classOfClasses,
    finderWindow,
    window,
    folder,
    file,
    disk,
    application,
    script,
    property,
    missingValue,
};

enum class PropertyTerm {
    length,
    classOf,
    reverse,
    rest,
    contents,
    posixPath,
    quotedForm,
    textItemDelimiters,
    beginning,
    end,
    identifier,
    name,
    displayedName,
    version,
    running,
    frontmost,
    target,
    selection,
    index,
    bounds,
    container,
    home,
    desktop,
    startupDisk,
};

enum class CommandTerm {
    activate,
    open,
    close,
    select,
    make,
    count,
    exists,
    get,
    log,
    delay,
    doShellScript,
    asciiCharacter,
    asciiNumber,
    characterWithId,
    pathTo,
    posixFile,
    alias,
};

enum class Operand { none, optional, tight, greedy };

struct ClassWords {
    std::string_view singular;
    std::string_view plural;
    ClassTerm term;
    bool isFinders = false;
};

struct PropertyWords {
    std::string_view words;
    PropertyTerm term;
    // Known to Finder: within its `tell` the words need no `of`.
    bool isFinders = false;
    // Unknown outside Finder's `tell`, where the words are ordinary identifiers.
    bool isFindersOnly = false;
};

struct CommandWords {
    std::string_view words;
    CommandTerm term;
    // How much of what follows is the direct parameter: a reference, or a whole expression.
    Operand operand;
    bool isFinders = false;
};

std::span<const ClassWords> classWords();
std::span<const PropertyWords> propertyWords();
std::span<const CommandWords> commandWords();

// As messages and coercions to text name a class.
std::string_view className(ClassTerm term);
std::string_view propertyName(PropertyTerm term);

bool isElementOfFinder(ClassTerm term);

// Words that can't be the name of a variable.
bool isReserved(std::string_view folded);

}  // namespace desk::applescript
