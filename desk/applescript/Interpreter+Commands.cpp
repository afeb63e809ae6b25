#include "desk/applescript/Characters.h"
#include "desk/applescript/Coercion.h"
#include "desk/applescript/Elements.h"
#include "desk/applescript/Interpreter.h"

#include <algorithm>
#include <array>

namespace desk::applescript {

namespace {

constexpr std::int64_t costOfHostCall = 20;
constexpr std::int64_t costOfDelay = 200;
constexpr std::int64_t costOfShell = 20'000;

}  // namespace

Value Interpreter::evaluate(const CommandCall& node) {
    struct Entry {
        CommandTerm command;
        Value (Interpreter::*run)(const CommandCall&);
    };
    static constexpr auto entries = std::to_array<Entry>({
        {CommandTerm::get, &Interpreter::get},
        {CommandTerm::log, &Interpreter::get},
        {CommandTerm::count, &Interpreter::count},
        {CommandTerm::exists, &Interpreter::exists},
        {CommandTerm::asciiCharacter, &Interpreter::asciiCharacter},
        {CommandTerm::asciiNumber, &Interpreter::asciiNumber},
        {CommandTerm::characterWithId, &Interpreter::characterWithId},
        {CommandTerm::posixFile, &Interpreter::posixFile},
        {CommandTerm::alias, &Interpreter::aliasTo},
        {CommandTerm::pathTo, &Interpreter::pathTo},
        {CommandTerm::delay, &Interpreter::delay},
        {CommandTerm::doShellScript, &Interpreter::doShellScript},
        {CommandTerm::activate, &Interpreter::activate},
        {CommandTerm::make, &Interpreter::makeObject},
        {CommandTerm::open, &Interpreter::open},
        {CommandTerm::close, &Interpreter::close},
        {CommandTerm::select, &Interpreter::select},
    });
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) { return entry.command == node.command; });
    return found == entries.end() ? Value() : (this->*found->run)(node);
}

Value Interpreter::activate(const CommandCall& node) {
    const Value addressed = node.direct == nullptr ? target() : evaluate(*node.direct);
    if (addressed.reference() != nullptr && addressed.reference()->kind == Reference::Kind::application) {
        budget.charge(costOfHostCall);
        finder.activate();
    }
    return Value();
}

Value Interpreter::open(const CommandCall& node) {
    budget.charge(costOfHostCall);
    finder.open(evaluate(*node.direct));
    return Value();
}

Value Interpreter::close(const CommandCall& node) {
    budget.charge(costOfHostCall);
    finder.close(evaluate(*node.direct));
    return Value();
}

Value Interpreter::select(const CommandCall& node) {
    budget.charge(costOfHostCall);
    finder.select(evaluate(*node.direct));
    return Value();
}

Value Interpreter::makeObject(const CommandCall& node) {
    budget.charge(costOfHostCall);
    const Value kind = evaluate(*node.direct);
    const ClassTerm* term = kind.as<ClassTerm>();
    if (term == nullptr || (*term != ClassTerm::finderWindow && *term != ClassTerm::window)) {
        failInFinder(ErrorNumber::classCannotBeMade, "Can’t make class " + described(kind) + ".");
    }
    std::optional<Value> shown;
    for (const std::string_view label : {"to", "at"}) {
        if (const Expression* place = node.parameter(label)) {
            shown = evaluate(*place);
        }
    }
    if (const Expression* properties = node.parameter("with properties")) {
        const Value record = evaluate(*properties);
        const Value* wanted = record.record() == nullptr ? nullptr : record.record()->find("target");
        shown = wanted == nullptr ? shown : std::optional(*wanted);
    }
    return finder.makeWindow(shown);
}

Value Interpreter::count(const CommandCall& node) {
    const Value counted = evaluate(*node.direct);
    chargeForText(counted.is<Text>() ? counted.as<Text>()->view().size() : 0);
    const std::optional<Value> length = languageProperty(PropertyTerm::length, counted);
    if (!length) {
        fail(ErrorNumber::notUnderstood, described(counted) + " doesn’t understand the “count” message.");
    }
    return *length;
}

Value Interpreter::exists(const CommandCall& node) {
    try {
        return Value::boolean(finder.exists(evaluate(*node.direct)));
    } catch (const Failure& failure) {
        constexpr std::array<std::int64_t, 3> absences{ErrorNumber::noSuchObject, ErrorNumber::noSuchIndex,
                                                       ErrorNumber::fileNotFound};
        if (std::find(absences.begin(), absences.end(), failure.error.number) == absences.end()) {
            throw;
        }
        return Value::boolean(false);
    }
}

Value Interpreter::get(const CommandCall& node) {
    return evaluate(*node.direct);
}

Value Interpreter::delay(const CommandCall& node) {
    budget.charge(costOfDelay);
    const Value value = evaluate(*node.direct);
    const std::optional<Value> seconds = numberOf(value);
    if (!seconds) {
        failCoercion(value, ClassTerm::number);
    }
    host.delay(std::max(0.0, seconds->real()));
    return Value();
}

// The shell's line feeds become returns, and the last one goes, unless the script forbids it.
Value Interpreter::doShellScript(const CommandCall& node) {
    budget.charge(costOfShell);
    const Text command = requiredText(evaluate(*node.direct));
    std::variant<std::string, ScriptError> answer =
        host.doShellScript(command.string(), node.has("with administrator privileges"));
    if (const ScriptError* error = std::get_if<ScriptError>(&answer)) {
        throw Failure{*error};
    }
    std::string output = std::move(std::get<std::string>(answer));
    if (!node.has("without altering line endings")) {
        if (output.ends_with('\n')) {
            output.pop_back();
        }
        std::replace(output.begin(), output.end(), '\n', '\r');
    }
    return Value::text(std::move(output));
}

Value Interpreter::asciiCharacter(const CommandCall& node) {
    const Value code = evaluate(*node.direct);
    const std::optional<std::int64_t> number = integerOf(code);
    const std::optional<std::string> character = number ? romanCharacter(*number) : std::nullopt;
    if (!character) {
        failCoercion(code, ClassTerm::character);
    }
    return Value::text(*character);
}

Value Interpreter::asciiNumber(const CommandCall& node) {
    constexpr std::int64_t questionMark = 63;
    const Text text = requiredText(evaluate(*node.direct));
    if (text.view().empty()) {
        return Value::number(0);
    }
    return Value::number(romanCode(charactersOf(text.view().substr(0, 4)).front()).value_or(questionMark));
}

Value Interpreter::characterWithId(const CommandCall& node) {
    const Value codes = listOf(evaluate(*node.direct));
    std::string text;
    for (const Value& code : codes.list()->items) {
        const std::optional<std::int64_t> number = integerOf(code);
        const std::optional<std::string> character = number ? characterWithCode(*number) : std::nullopt;
        if (!character) {
            fail(ErrorNumber::noSuchObject, "Can’t get character id " + described(code) + ".");
        }
        text += *character;
    }
    return Value::text(std::move(text));
}

Value Interpreter::pathTo(const CommandCall& node) {
    return finder.folderAt(requiredText(evaluate(*node.direct)).view());
}

Value Interpreter::posixFile(const CommandCall& node) {
    const Text path = requiredText(evaluate(*node.direct));
    return FinderTerms::file(Reference::Kind::posixFile, path.view(),
                             path.view().size() > 1 && path.view().ends_with('/'));
}

Value Interpreter::aliasTo(const CommandCall& node) {
    return finder.alias(evaluate(*node.direct));
}

}  // namespace desk::applescript
