#include "desk/applescript/Terminology.h"

#include <algorithm>
#include <array>

namespace desk::applescript {

namespace {

// The first entry of a class is the one that names it.
constexpr std::array classes{
    ClassWords{"item", "items", ClassTerm::item},
    ClassWords{"character", "characters", ClassTerm::character},
    ClassWords{"word", "words", ClassTerm::word},
    ClassWords{"paragraph", "paragraphs", ClassTerm::paragraph},
    ClassWords{"text item", "text items", ClassTerm::textItem},
    ClassWords{"text", "", ClassTerm::text},
    ClassWords{"string", "", ClassTerm::text},
    ClassWords{"Unicode text", "", ClassTerm::text},
    ClassWords{"integer", "integers", ClassTerm::integer},
    ClassWords{"real", "reals", ClassTerm::real},
    ClassWords{"number", "numbers", ClassTerm::number},
    ClassWords{"boolean", "booleans", ClassTerm::boolean},
    ClassWords{"list", "lists", ClassTerm::list},
    ClassWords{"record", "records", ClassTerm::record},
    ClassWords{"alias", "", ClassTerm::alias},
    ClassWords{"alias list", "", ClassTerm::aliasList},
    ClassWords{"POSIX file", "", ClassTerm::posixFile},
    ClassWords{"class", "", ClassTerm::classOfClasses},
    ClassWords{"Finder window", "Finder windows", ClassTerm::finderWindow, true},
    ClassWords{"window", "windows", ClassTerm::window, true},
    ClassWords{"folder", "folders", ClassTerm::folder, true},
    ClassWords{"file", "files", ClassTerm::file, true},
    ClassWords{"document file", "document files", ClassTerm::file, true},
    ClassWords{"application file", "application files", ClassTerm::file, true},
    ClassWords{"disk", "disks", ClassTerm::disk, true},
    ClassWords{"application", "applications", ClassTerm::application},
    ClassWords{"script", "scripts", ClassTerm::script},
    ClassWords{"property", "properties", ClassTerm::property},
    ClassWords{"missing value", "", ClassTerm::missingValue},
};

constexpr std::array properties{
    PropertyWords{"length", PropertyTerm::length},
    PropertyWords{"class", PropertyTerm::classOf},
    PropertyWords{"reverse", PropertyTerm::reverse},
    PropertyWords{"rest", PropertyTerm::rest},
    PropertyWords{"contents", PropertyTerm::contents},
    PropertyWords{"POSIX path", PropertyTerm::posixPath},
    PropertyWords{"quoted form", PropertyTerm::quotedForm},
    PropertyWords{"text item delimiters", PropertyTerm::textItemDelimiters},
    PropertyWords{"beginning", PropertyTerm::beginning},
    PropertyWords{"end", PropertyTerm::end},
    PropertyWords{"id", PropertyTerm::identifier, true},
    PropertyWords{"name", PropertyTerm::name, true},
    PropertyWords{"displayed name", PropertyTerm::displayedName, true, true},
    PropertyWords{"version", PropertyTerm::version, true},
    PropertyWords{"running", PropertyTerm::running, true},
    PropertyWords{"frontmost", PropertyTerm::frontmost, true},
    PropertyWords{"target", PropertyTerm::target, true, true},
    PropertyWords{"selection", PropertyTerm::selection, true, true},
    PropertyWords{"index", PropertyTerm::index, true, true},
    PropertyWords{"bounds", PropertyTerm::bounds, true, true},
    PropertyWords{"container", PropertyTerm::container, true, true},
    PropertyWords{"home", PropertyTerm::home, true, true},
    PropertyWords{"desktop", PropertyTerm::desktop, true, true},
    PropertyWords{"startup disk", PropertyTerm::startupDisk, true, true},
};

constexpr std::array commands{
    CommandWords{"activate", CommandTerm::activate, Operand::optional},
    CommandWords{"open", CommandTerm::open, Operand::greedy, true},
    CommandWords{"close", CommandTerm::close, Operand::greedy, true},
    CommandWords{"select", CommandTerm::select, Operand::greedy, true},
    CommandWords{"reveal", CommandTerm::select, Operand::greedy, true},
    CommandWords{"make", CommandTerm::make, Operand::none, true},
    CommandWords{"count", CommandTerm::count, Operand::tight},
    CommandWords{"number of", CommandTerm::count, Operand::tight},
    CommandWords{"exists", CommandTerm::exists, Operand::tight},
    CommandWords{"get", CommandTerm::get, Operand::greedy},
    CommandWords{"log", CommandTerm::log, Operand::greedy},
    CommandWords{"delay", CommandTerm::delay, Operand::greedy},
    CommandWords{"do shell script", CommandTerm::doShellScript, Operand::greedy},
    CommandWords{"ASCII character", CommandTerm::asciiCharacter, Operand::greedy},
    CommandWords{"ASCII number", CommandTerm::asciiNumber, Operand::greedy},
    CommandWords{"character id", CommandTerm::characterWithId, Operand::tight},
    CommandWords{"string id", CommandTerm::characterWithId, Operand::tight},
    CommandWords{"path to", CommandTerm::pathTo, Operand::none},
    CommandWords{"POSIX file", CommandTerm::posixFile, Operand::tight},
};

constexpr std::array reservedWords{
    "and",     "as",       "begins", "by",     "comes",  "considering", "contains", "copy",  "div",    "does",
    "else",    "ends",     "equal",  "equals", "error",  "every",       "exit",     "from",  "global", "greater",
    "if",      "ignoring", "in",     "into",   "is",     "isn't",       "less",     "local", "mod",    "not",
    "of",      "on",       "or",     "repeat", "return", "set",         "starts",   "tell",  "than",   "then",
    "through", "thru",     "times",  "to",     "try",    "until",       "where",    "while", "whose",  "with",
    "without", "doesn't",  "using",  "saving", "given",  "end",
};

}  // namespace

std::span<const ClassWords> classWords() {
    return classes;
}

std::span<const PropertyWords> propertyWords() {
    return properties;
}

std::span<const CommandWords> commandWords() {
    return commands;
}

std::string_view className(ClassTerm term) {
    return std::find_if(classes.begin(), classes.end(), [&](const auto& entry) { return entry.term == term; })
        ->singular;
}

std::string_view propertyName(PropertyTerm term) {
    const auto found =
        std::find_if(properties.begin(), properties.end(), [&](const auto& entry) { return entry.term == term; });
    return found->words;
}

bool isElementOfFinder(ClassTerm term) {
    return std::any_of(classes.begin(), classes.end(),
                       [&](const auto& entry) { return entry.term == term && entry.isFinders; });
}

bool isReserved(std::string_view folded) {
    return std::find(reservedWords.begin(), reservedWords.end(), folded) != reservedWords.end();
}

}  // namespace desk::applescript
