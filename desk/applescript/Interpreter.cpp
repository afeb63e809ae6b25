#include "desk/applescript/Interpreter.h"

#include "desk/applescript/Coercion.h"
#include "desk/applescript/Operators.h"
#include "desk/applescript/TextCase.h"

#include <utility>

namespace desk::applescript {

namespace {

Value scriptReference() {
    return Value::reference({Reference::Kind::script, "", false, 0});
}

// Puts a variable back when its block is left, by whatever way.
template <typename T>
class Restored {
public:
    Restored(T& variable, T value) : place(variable), former(std::exchange(variable, std::move(value))) {}
    ~Restored() { place = std::move(former); }
    Restored(const Restored&) = delete;
    Restored& operator=(const Restored&) = delete;

private:
    T& place;
    T former;
};

}  // namespace

Interpreter::Interpreter(const Program& compiled, ScriptHost& scriptHost, const ScriptLimits& limits)
    : program(compiled),
      host(scriptHost),
      finder(scriptHost),
      budget(limits.steps, limits.depth),
      globals(compiled.globalCount) {
    targets.push_back(scriptReference());
}

Value Interpreter::run(const std::vector<std::string>& arguments) {
    Frame main{program.main, {}};
    frame = &main;
    execute(program.main.body);
    const Handler* runHandler = program.handler("run");
    if (runHandler == nullptr) {
        return result;
    }
    std::vector<Value> values;
    for (const std::string& argument : arguments) {
        values.push_back(Value::text(argument));
    }
    if (!runHandler->takesArgumentsSeparately) {
        values = {Value::list(std::move(values))};
    }
    values.resize(runHandler->parameters.size(), Value(MissingValue{}));
    return call(*runHandler, std::move(values));
}

Value& Interpreter::place(std::size_t slot) {
    const std::optional<std::size_t>& global = frame->handler.globals[slot];
    return global ? globals[*global] : frame->slots[slot];
}

Value Interpreter::evaluate(const Expression& expression) {
    const Budget::Level level(budget);
    budget.charge(1);
    return std::visit([this](const auto& node) { return evaluate(node); }, expression.node);
}

Value Interpreter::evaluate(const Variable& node) {
    const Value& value = place(node.slot);
    if (value.is<Nothing>()) {
        fail(ErrorNumber::undefinedVariable,
             "The variable " + frame->handler.writtenNames[node.slot] + " is not defined.");
    }
    return value;
}

Value Interpreter::evaluate(const ListLiteral& node) {
    std::vector<Value> items;
    items.reserve(node.items.size());
    for (const ExpressionPtr& item : node.items) {
        items.push_back(evaluate(*item));
    }
    return Value::list(std::move(items));
}

Value Interpreter::evaluate(const RecordLiteral& node) {
    std::vector<std::pair<std::string, Value>> entries;
    for (const auto& [key, value] : node.entries) {
        entries.emplace_back(key, evaluate(*value));
    }
    return Value::record(std::move(entries));
}

Value Interpreter::evaluate(const Negation& node) {
    return negated(evaluate(*node.operand));
}

Value Interpreter::evaluate(const LogicalNot& node) {
    return Value::boolean(!evaluateCondition(*node.operand));
}

Value Interpreter::evaluate(const BinaryOperation& node) {
    switch (node.operation) {
    case Operator::logicalAnd:
        return Value::boolean(evaluateCondition(*node.left) && evaluateCondition(*node.right));
    case Operator::logicalOr:
        return Value::boolean(evaluateCondition(*node.left) || evaluateCondition(*node.right));
    case Operator::isRunning:
    case Operator::isNotRunning: {
        const PropertyAccess running{"running", PropertyTerm::running, nullptr};
        const Value answer = propertyOf(evaluate(*node.left), running);
        return Value::boolean((answer.as<bool>() != nullptr && *answer.as<bool>()) ==
                              (node.operation == Operator::isRunning));
    }
    case Operator::add:
    case Operator::subtract:
    case Operator::multiply:
    case Operator::divide:
    case Operator::integerDivide:
    case Operator::modulo:
    case Operator::power: {
        const Value left = evaluate(*node.left);
        return arithmetic(node.operation, left, evaluate(*node.right));
    }
    default:
        break;
    }
    const Value left = evaluate(*node.left);
    const Value right = evaluate(*node.right);
    budget.charge(static_cast<std::int64_t>((left.weight() + right.weight()) / 16));
    chargeForText((left.is<Text>() ? left.as<Text>()->view().size() : 0) +
                  (right.is<Text>() ? right.as<Text>()->view().size() : 0));
    return Value::boolean(compare(node.operation, left, right, considersCase));
}

Value Interpreter::evaluate(const Concatenation& node) {
    Value joined = evaluate(*node.operands.front());
    for (std::size_t index = 1; index < node.operands.size(); ++index) {
        joined = concatenated(std::move(joined), evaluate(*node.operands[index]));
    }
    return joined;
}

// By value, so that a text that is referred to from here alone grows in place.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
Value Interpreter::concatenated(Value left, const Value& right) {
    if (const Text* text = left.as<Text>()) {
        if (const std::optional<Text> more = textOf(right, delimiters.view())) {
            chargeForText(more->view().size() + (text->growsInPlace() ? 0 : text->view().size()));
            return Value(text->appending(more->view()));
        }
    }
    budget.charge(static_cast<std::int64_t>((left.weight() + right.weight()) / 16));
    if (left.record() != nullptr && right.record() != nullptr) {
        std::vector<std::pair<std::string, Value>> entries = left.record()->entries;
        for (const auto& entry : right.record()->entries) {
            if (left.record()->find(entry.first) == nullptr) {
                entries.push_back(entry);
            }
        }
        return Value::record(std::move(entries));
    }
    std::vector<Value> items;
    for (const Value* part : {static_cast<const Value*>(&left), &right}) {
        if (part->list() != nullptr) {
            items.insert(items.end(), part->list()->items.begin(), part->list()->items.end());
        } else {
            items.push_back(*part);
        }
    }
    return Value::list(std::move(items));
}

Value Interpreter::evaluate(const MeReference&) {
    return scriptReference();
}

Value Interpreter::evaluate(const AppleScriptReference&) {
    return Value::reference({Reference::Kind::appleScript, "", false, 0});
}

Value Interpreter::evaluate(const ResultReference&) {
    if (result.is<Nothing>()) {
        fail(ErrorNumber::undefinedVariable, "The variable result is not defined.");
    }
    return result;
}

Value Interpreter::evaluate(const ApplicationReference& node) {
    const Value name = evaluate(*node.name);
    const std::string wanted = node.isByIdentifier ? "com.apple.finder" : "finder";
    if (foldedCase(requiredText(name).view()) != wanted) {
        fail(ErrorNumber::noSuchObject,
             std::string("Can’t get application ") + (node.isByIdentifier ? "id " : "") + described(name) + ".");
    }
    return FinderTerms::application();
}

Value Interpreter::evaluate(const HandlerCall& node) {
    const bool goesToScript =
        node.isToMe || (target().reference() != nullptr && target().reference()->kind == Reference::Kind::script);
    const Handler* handler = program.handler(node.name);
    if (!goesToScript) {
        failInFinder(ErrorNumber::notUnderstood, "Can’t continue " + node.name + ".");
    }
    if (handler == nullptr) {
        fail(ErrorNumber::notUnderstood, "«script» doesn’t understand the “" + node.name + "” message.");
    }
    if (node.arguments.size() != handler->parameters.size()) {
        fail(ErrorNumber::wrongParameters, "The parameters don’t match those of the handler “" + node.name + "”.");
    }
    std::vector<Value> arguments;
    for (const ExpressionPtr& argument : node.arguments) {
        arguments.push_back(evaluate(*argument));
    }
    return call(*handler, std::move(arguments));
}

Value Interpreter::call(const Handler& handler, std::vector<Value> arguments) {
    Frame called{handler, std::vector<Value>(handler.names.size())};
    for (std::size_t index = 0; index < handler.parameters.size(); ++index) {
        called.slots[handler.parameters[index]] = std::move(arguments[index]);
    }
    const Budget::Level level(budget);
    const Restored<Frame*> restoredFrame(frame, &called);
    const Entered script(*this, scriptReference());
    result = Value();
    execute(handler.body);
    return result;
}

std::int64_t Interpreter::evaluateInteger(const Expression& expression) {
    const Value value = evaluate(expression);
    const std::optional<std::int64_t> number = integerOf(value);
    if (!number) {
        failCoercion(value, ClassTerm::integer);
    }
    return *number;
}

bool Interpreter::evaluateCondition(const Expression& expression) {
    const Value value = evaluate(expression);
    const std::optional<bool> flag = booleanOf(value);
    if (!flag) {
        failCoercion(value, ClassTerm::boolean);
    }
    return *flag;
}

Text Interpreter::requiredText(const Value& value) {
    const std::optional<Text> text = textOf(value, delimiters.view());
    if (!text) {
        failCoercion(value, ClassTerm::text);
    }
    return *text;
}

}  // namespace desk::applescript
