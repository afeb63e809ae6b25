#include "desk/applescript/Coercion.h"
#include "desk/applescript/Interpreter.h"

#include <utility>

namespace desk::applescript {

Interpreter::Flow Interpreter::execute(const Block& block) {
    for (const Statement& statement : block) {
        budget.charge(1);
        const Flow flow = std::visit([this](const auto& node) { return execute(node); }, statement.node);
        if (flow != Flow::normal) {
            return flow;
        }
    }
    return Flow::normal;
}

Interpreter::Flow Interpreter::execute(const ExpressionStatement& statement) {
    result = evaluate(*statement.expression);
    return Flow::normal;
}

Interpreter::Flow Interpreter::execute(const Assignment& statement) {
    Value value = evaluate(*statement.value);
    if (value.is<Nothing>()) {
        fail(ErrorNumber::noResult, "No result was returned from some part of this expression.");
    }
    result = value;
    if (const auto* variable = std::get_if<Variable>(&statement.target->node)) {
        variables[variable->slot] = std::move(value);
        return Flow::normal;
    }
    const auto& property = std::get<PropertyAccess>(statement.target->node);
    const Value owner = containerOf(property.container);
    if (owner.reference() == nullptr || !finder.setProperty(*owner.reference(), property.term, value)) {
        fail(ErrorNumber::writeDenied, "Can’t set " + std::string(nameOf(property.term)) + " of " + described(owner) +
                                           " to " + described(value) + ".");
    }
    return Flow::normal;
}

Interpreter::Flow Interpreter::execute(const TellBlock& statement) {
    const Entered target(*this, evaluate(*statement.target));
    return execute(statement.body);
}

Interpreter::Flow Interpreter::execute(const IfChain& statement) {
    for (const auto& [condition, body] : statement.branches) {
        if (requiredBoolean(evaluate(*condition))) {
            return execute(body);
        }
    }
    return execute(statement.otherwise);
}

Interpreter::Flow Interpreter::execute(const RepeatRange& statement) {
    const std::int64_t from = requiredInteger(evaluate(*statement.from));
    const std::int64_t to = requiredInteger(evaluate(*statement.to));
    for (std::int64_t index = from; index <= to; ++index) {
        budget.charge(1);
        variables[statement.slot] = Value::number(index);
        const Flow flow = execute(statement.body);
        if (flow != Flow::normal) {
            return flow;
        }
    }
    return Flow::normal;
}

Interpreter::Flow Interpreter::execute(const TryBlock& statement) {
    try {
        return execute(statement.body);
    } catch (const Failure& failure) {
        if (failure.isFinal) {
            throw;
        }
        if (statement.messageSlot) {
            variables[*statement.messageSlot] = Value::text(failure.error.message.value_or(""));
        }
        if (statement.numberSlot) {
            variables[*statement.numberSlot] = Value::number(failure.error.number);
        }
    }
    return execute(statement.onError);
}

Interpreter::Flow Interpreter::execute(const RaiseError& statement) {
    const std::int64_t number =
        statement.number == nullptr ? ErrorNumber::unspecified : requiredInteger(evaluate(*statement.number));
    std::string message = "An error of type " + std::to_string(number) + " has occurred.";
    if (statement.message != nullptr) {
        message = requiredText(evaluate(*statement.message)).string();
    }
    fail(number, std::move(message));
}

Interpreter::Flow Interpreter::execute(const ReturnStatement& statement) {
    result = statement.value == nullptr ? Value() : evaluate(*statement.value);
    return Flow::returned;
}

}  // namespace desk::applescript
