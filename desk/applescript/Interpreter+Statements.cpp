#include "desk/applescript/Coercion.h"
#include "desk/applescript/Elements.h"
#include "desk/applescript/Interpreter.h"

#include <utility>

namespace desk::applescript {

Interpreter::Flow Interpreter::execute(const Block& block) {
    const Budget::Level level(budget);
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
    // The former result would keep a second hold on a list that is changed in place.
    result = Value();
    assign(*statement.target, value);
    result = std::move(value);
    return Flow::normal;
}

Interpreter::Flow Interpreter::execute(const TellBlock& statement) {
    const Entered target(*this, evaluate(*statement.target));
    return execute(statement.body);
}

Interpreter::Flow Interpreter::execute(const IfChain& statement) {
    for (const auto& [condition, body] : statement.branches) {
        if (evaluateCondition(*condition)) {
            return execute(body);
        }
    }
    return execute(statement.otherwise);
}

Interpreter::Flow Interpreter::execute(const RepeatForever& statement) {
    while (true) {
        budget.charge(1);
        const Flow flow = execute(statement.body);
        if (flow != Flow::normal) {
            return flow == Flow::exitRepeat ? Flow::normal : flow;
        }
    }
}

Interpreter::Flow Interpreter::execute(const RepeatTimes& statement) {
    const std::int64_t times = evaluateInteger(*statement.times);
    for (std::int64_t count = 0; count < times; ++count) {
        budget.charge(1);
        const Flow flow = execute(statement.body);
        if (flow != Flow::normal) {
            return flow == Flow::exitRepeat ? Flow::normal : flow;
        }
    }
    return Flow::normal;
}

Interpreter::Flow Interpreter::execute(const RepeatCondition& statement) {
    while (evaluateCondition(*statement.condition) != statement.stopsWhen) {
        const Flow flow = execute(statement.body);
        if (flow != Flow::normal) {
            return flow == Flow::exitRepeat ? Flow::normal : flow;
        }
    }
    return Flow::normal;
}

Interpreter::Flow Interpreter::execute(const RepeatRange& statement) {
    const std::int64_t from = evaluateInteger(*statement.from);
    const std::int64_t to = evaluateInteger(*statement.to);
    const std::int64_t by = statement.by == nullptr ? 1 : evaluateInteger(*statement.by);
    if (by == 0) {
        fail(ErrorNumber::badCoercion, "Can’t repeat by 0.");
    }
    std::int64_t index = from;
    while (by > 0 ? index <= to : index >= to) {
        budget.charge(1);
        place(statement.slot) = Value::number(index);
        const Flow flow = execute(statement.body);
        if (flow != Flow::normal) {
            return flow == Flow::exitRepeat ? Flow::normal : flow;
        }
        if (__builtin_add_overflow(index, by, &index)) {
            break;
        }
    }
    return Flow::normal;
}

Interpreter::Flow Interpreter::execute(const RepeatList& statement) {
    Value value = evaluate(*statement.list);
    if (const std::optional<ListPtr> characters = elementsOf(value, ClassTerm::item, "")) {
        value = Value(*characters);
    }
    const Value list = listOf(value);
    for (const Value& item : list.list()->items) {
        budget.charge(1);
        place(statement.slot) = item;
        const Flow flow = execute(statement.body);
        if (flow != Flow::normal) {
            return flow == Flow::exitRepeat ? Flow::normal : flow;
        }
    }
    return Flow::normal;
}

Interpreter::Flow Interpreter::execute(const ExitRepeat&) {
    return Flow::exitRepeat;
}

Interpreter::Flow Interpreter::execute(const TryBlock& statement) {
    try {
        return execute(statement.body);
    } catch (const Failure& failure) {
        if (failure.isFinal) {
            throw;
        }
        if (statement.messageSlot) {
            place(*statement.messageSlot) = Value::text(failure.error.message.value_or(""));
        }
        if (statement.numberSlot) {
            place(*statement.numberSlot) = Value::number(failure.error.number);
        }
    }
    return execute(statement.onError);
}

Interpreter::Flow Interpreter::execute(const RaiseError& statement) {
    const std::int64_t number =
        statement.number == nullptr ? ErrorNumber::unspecified : evaluateInteger(*statement.number);
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

Interpreter::Flow Interpreter::execute(const ConsideringBlock& statement) {
    const bool former = std::exchange(considersCase, statement.considersCase.value_or(considersCase));
    Flow flow = Flow::normal;
    try {
        flow = execute(statement.body);
    } catch (...) {
        considersCase = former;
        throw;
    }
    considersCase = former;
    return flow;
}

void Interpreter::assign(const Expression& target, const Value& value) {
    const Budget::Level level(budget);
    if (const auto* variable = std::get_if<Variable>(&target.node)) {
        place(variable->slot) = value;
    } else if (const auto* targetList = std::get_if<ListLiteral>(&target.node)) {
        assignEach(*targetList, value);
    } else if (const auto* property = std::get_if<PropertyAccess>(&target.node)) {
        assignProperty(*property, value);
    } else if (const auto* element = std::get_if<ElementAccess>(&target.node)) {
        assignElement(*element, value);
    }
}

void Interpreter::assignEach(const ListLiteral& targetList, const Value& value) {
    for (std::size_t index = 0; index < targetList.items.size(); ++index) {
        if (value.list() == nullptr || index >= value.list()->items.size()) {
            fail(ErrorNumber::noSuchObject,
                 "Can’t get item " + std::to_string(index + 1) + " of " + described(value) + ".");
        }
        assign(*targetList.items[index], value.list()->items[index]);
    }
}

void Interpreter::assignProperty(const PropertyAccess& target, const Value& value) {
    const bool isEnd = target.term == PropertyTerm::end;
    if (isEnd || target.term == PropertyTerm::beginning) {
        Value& list = changeable(target.container, value, target.name);
        if (list.list() != nullptr) {
            isEnd ? list.appendItem(value) : list.insertItem(value);
            return;
        }
    }
    const Value owner = target.container == nullptr ? this->target() : evaluate(*target.container);
    if (owner.record() != nullptr) {
        std::vector<std::pair<std::string, Value>> entries = owner.record()->entries;
        for (auto& entry : entries) {
            if (entry.first == target.name) {
                entry.second = value;
                changeable(target.container, value, target.name) = Value::record(std::move(entries));
                return;
            }
        }
    }
    const Reference* reference = owner.reference();
    if (reference != nullptr && reference->kind == Reference::Kind::appleScript &&
        target.term == PropertyTerm::textItemDelimiters) {
        const bool isList = value.list() != nullptr && !value.list()->items.empty();
        delimiters = requiredText(isList ? value.list()->items.front() : value);
        return;
    }
    if (reference == nullptr || !target.term || !finder.setProperty(*reference, *target.term, value)) {
        fail(ErrorNumber::writeDenied,
             "Can’t set " + target.name + " of " + described(owner) + " to " + described(value) + ".");
    }
}

void Interpreter::assignElement(const ElementAccess& target, const Value& value) {
    const std::string what = std::string(className(target.elements));
    if (target.elements != ClassTerm::item || target.selector != Selector::byIndexOrName) {
        fail(ErrorNumber::writeDenied, "Can’t set " + what + " to " + described(value) + ".");
    }
    const std::int64_t number = evaluateInteger(*target.first);
    Value& list = changeable(target.container, value, what);
    const auto index = list.list() == nullptr ? std::nullopt : elementIndex(number, list.list()->items.size());
    if (!index) {
        fail(ErrorNumber::noSuchObject, "Can’t get item " + std::to_string(number) + " of " + described(list) + ".");
    }
    list.replaceItem(*index, value);
}

Value& Interpreter::changeable(const ExpressionPtr& container, const Value& value, const std::string& what) {
    const Variable* variable = container == nullptr ? nullptr : std::get_if<Variable>(&container->node);
    if (variable == nullptr) {
        fail(ErrorNumber::writeDenied, "Can’t set " + what + " to " + described(value) + ".");
    }
    return place(variable->slot);
}

}  // namespace desk::applescript
