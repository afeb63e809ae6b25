#include "desk/applescript/Interpreter.h"

#include "desk/applescript/Coercion.h"
#include "desk/applescript/FilePath.h"
#include "desk/applescript/TextCase.h"

#include <algorithm>
#include <utility>

namespace desk::applescript {

namespace {

constexpr std::int64_t costOfHostCall = 20;
constexpr std::int64_t costOfDelay = 200;
constexpr std::int64_t costOfShell = 20'000;

// Finder's own references have no path of this kind; they become an alias first.
std::optional<Value> languageProperty(PropertyTerm term, const Value& owner) {
    const ScriptText* text = owner.as<ScriptText>();
    if (term == PropertyTerm::quotedForm && text != nullptr) {
        return Value::text(quotedForShell(text->view()));
    }
    const Reference* file = owner.reference();
    const bool hasPath = file != nullptr && file->isOnDisk() && file->kind != Reference::Kind::item;
    if (term != PropertyTerm::posixPath || !hasPath) {
        return std::nullopt;
    }
    return Value::text(file->path + (file->isFolder && file->path != "/" ? "/" : ""));
}

[[noreturn]] void failGetting(const std::string& what, const Value& owner) {
    const Reference* reference = owner.reference();
    const bool isApplication = reference != nullptr && reference->kind == Reference::Kind::application;
    const std::string sentence = "Can’t get " + what + (isApplication ? "." : " of " + described(owner) + ".");
    if (reference != nullptr) {
        failInFinder(ErrorNumber::noSuchObject, sentence);
    }
    fail(ErrorNumber::noSuchObject, sentence);
}

}  // namespace

Interpreter::Interpreter(const Program& compiled, ScriptHost& scriptHost, const ScriptLimits& limits)
    : program(compiled),
      host(scriptHost),
      finder(scriptHost),
      budget(limits.steps),
      variables(compiled.names.size()),
      targets(1) {}

Value Interpreter::run(const std::vector<std::string>& arguments) {
    if (execute(program.main) == Flow::returned) {
        return result;
    }
    if (program.argumentsSlot) {
        Value::List texts;
        for (const std::string& argument : arguments) {
            texts.push_back(Value::text(argument));
        }
        variables[*program.argumentsSlot] = Value::list(std::move(texts));
    }
    execute(program.runHandler);
    return result;
}

Value Interpreter::evaluate(const Expression& expression) {
    budget.charge(1);
    return std::visit([this](const auto& node) { return evaluate(node); }, expression.node);
}

Value Interpreter::evaluate(const Variable& node) {
    const Value& value = variables[node.slot];
    if (value.is<Nothing>()) {
        fail(ErrorNumber::undefinedVariable, "The variable " + program.writtenNames[node.slot] + " is not defined.");
    }
    return value;
}

Value Interpreter::evaluate(const Comparison& node) {
    const Value left = evaluate(*node.left);
    return Value::boolean(areEqual(left, evaluate(*node.right)) == node.wantsEqual);
}

Value Interpreter::evaluate(const Concatenation& node) {
    ScriptText joined = requiredText(evaluate(*node.operands.front()));
    for (std::size_t index = 1; index < node.operands.size(); ++index) {
        const ScriptText more = requiredText(evaluate(*node.operands[index]));
        const std::size_t copied = joined.growsInPlace() ? 0 : joined.view().size();
        budget.charge(static_cast<std::int64_t>((more.view().size() + copied) / 64));
        joined = joined.appending(more.view());
    }
    return Value(joined);
}

Value Interpreter::evaluate(const Coercion& node) {
    const Value value = evaluate(*node.operand);
    if (node.wanted == CoercionTerm::text) {
        return Value(requiredText(value));
    }
    budget.charge(costOfHostCall);
    return finder.alias(value);
}

Value Interpreter::evaluate(const ApplicationReference& node) {
    const Value name = evaluate(*node.name);
    if (foldedCase(requiredText(name).view()) != "finder") {
        fail(ErrorNumber::noSuchObject, "Can’t get application " + described(name) + ".");
    }
    return FinderTerms::application();
}

Value Interpreter::containerOf(const ExpressionPtr& container) {
    return container == nullptr ? targets.back() : evaluate(*container);
}

Value Interpreter::evaluate(const PropertyAccess& node) {
    const Value owner = containerOf(node.container);
    std::optional<Value> answer;
    if (owner.reference() != nullptr) {
        budget.charge(costOfHostCall);
        answer = finder.property(*owner.reference(), node.term);
    }
    if (!answer) {
        answer = languageProperty(node.term, owner);
    }
    if (!answer) {
        failGetting(std::string(nameOf(node.term)), owner);
    }
    return *answer;
}

Value Interpreter::evaluate(const ElementAccess& node) {
    if (node.elements == ElementTerm::finderWindow) {
        return window(node);
    }
    const Value container = containerOf(node.container);
    const std::int64_t number = requiredInteger(evaluate(*node.which));
    const Value::List* list = container.list();
    if (list == nullptr || number < 1 || static_cast<std::size_t>(number) > list->size()) {
        failGetting("item " + std::to_string(number), container);
    }
    return (*list)[static_cast<std::size_t>(number) - 1];
}

// Only Finder has any.
Value Interpreter::window(const ElementAccess& node) {
    if (node.selector == Selector::byIdentifier) {
        const std::int64_t identifier = requiredInteger(evaluate(*node.which));
        const std::optional<Value> found = finder.window(identifier);
        if (!found) {
            failGetting("Finder window id " + std::to_string(identifier), FinderTerms::application());
        }
        return *found;
    }
    Value windows = finder.windows();
    const Value::List& list = *windows.list();
    budget.charge(static_cast<std::int64_t>(list.size() / 4));
    if (node.selector == Selector::every) {
        return windows;
    }
    const std::int64_t number = requiredInteger(evaluate(*node.which));
    if (number < 1 || static_cast<std::size_t>(number) > list.size()) {
        failGetting("Finder window " + std::to_string(number), FinderTerms::application());
    }
    return list[static_cast<std::size_t>(number) - 1];
}

Value Interpreter::evaluate(const CommandCall& node) {
    budget.charge(costOfHostCall);
    if (node.command == CommandTerm::doShellScript) {
        return doShellScript(node);
    }
    const Value direct = node.direct == nullptr ? Value() : evaluate(*node.direct);
    switch (node.command) {
    case CommandTerm::activate:
        finder.activate();
        return Value();
    case CommandTerm::make:
        return finder.makeWindow(node.direct == nullptr ? std::nullopt : std::optional(direct));
    case CommandTerm::select:
        finder.select(direct);
        return Value();
    case CommandTerm::count:
        if (direct.list() == nullptr) {
            fail(ErrorNumber::notUnderstood, described(direct) + " doesn’t understand the “count” message.");
        }
        return Value::number(static_cast<std::int64_t>(direct.list()->size()));
    case CommandTerm::delay:
        budget.charge(costOfDelay);
        host.delay(requiredNumber(direct));
        return Value();
    case CommandTerm::asciiCharacter: {
        const std::int64_t code = requiredInteger(direct);
        if (code < 0 || code > 127) {
            failCoercion(direct, "character");
        }
        return Value::text(std::string(1, static_cast<char>(code)));
    }
    default: {
        const ScriptText path = requiredText(direct);
        const bool isFolder = path.view().size() > 1 && path.view().ends_with('/');
        return FinderTerms::file(Reference::Kind::posixFile, path.view(), isFolder);
    }
    }
}

// The shell's line feeds become returns, and the last one goes.
Value Interpreter::doShellScript(const CommandCall& node) {
    budget.charge(costOfShell);
    const ScriptText command = requiredText(evaluate(*node.direct));
    std::variant<std::string, ScriptError> answer = host.doShellScript(command.string(), node.asAdministrator);
    if (const ScriptError* error = std::get_if<ScriptError>(&answer)) {
        throw Failure{*error};
    }
    std::string output = std::move(std::get<std::string>(answer));
    if (output.ends_with('\n')) {
        output.pop_back();
    }
    std::replace(output.begin(), output.end(), '\n', '\r');
    return Value::text(std::move(output));
}

}  // namespace desk::applescript
