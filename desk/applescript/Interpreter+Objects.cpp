#include "desk/applescript/Coercion.h"
#include "desk/applescript/Elements.h"
#include "desk/applescript/Interpreter.h"

#include <algorithm>

namespace desk::applescript {

namespace {

// Several objects, of which each answers a property for itself.
bool isPlural(const Expression& expression) {
    if (const auto* element = std::get_if<ElementAccess>(&expression.node)) {
        return element->selector == Selector::every || element->selector == Selector::range;
    }
    const auto* property = std::get_if<PropertyAccess>(&expression.node);
    return property != nullptr && property->container != nullptr && isPlural(*property->container);
}

bool isOfWholeList(std::optional<PropertyTerm> term) {
    return term == PropertyTerm::length || term == PropertyTerm::reverse || term == PropertyTerm::rest;
}

}  // namespace

Value Interpreter::evaluate(const PropertyAccess& node) {
    if (node.container == nullptr) {
        return propertyOf(target(), node);
    }
    const Value owner = evaluate(*node.container);
    if (owner.list() == nullptr || !isPlural(*node.container) || isOfWholeList(node.term)) {
        return propertyOf(owner, node);
    }
    std::vector<Value> values;
    for (const Value& item : owner.list()->items) {
        budget.charge(1);
        values.push_back(propertyOf(item, node));
    }
    return Value::list(std::move(values));
}

Value Interpreter::evaluate(const Coercion& node) {
    Value value = evaluate(*node.operand);
    std::optional<Value> coerced;
    switch (node.wanted) {
    case ClassTerm::text:
        // What kind of item it is decides about the last colon.
        if (value.reference() != nullptr && value.reference()->kind == Reference::Kind::item) {
            value = finder.alias(value);
        }
        if (const std::optional<Text> text = textOf(value, delimiters.view())) {
            coerced = Value(*text);
        }
        break;
    case ClassTerm::integer:
        if (const std::optional<std::int64_t> number = integerOf(value)) {
            coerced = Value::number(*number);
        }
        break;
    case ClassTerm::real:
        coerced = numberOf(value);
        coerced = coerced ? std::optional(Value(Value::Storage(coerced->real()))) : coerced;
        break;
    case ClassTerm::number:
        coerced = numberOf(value);
        break;
    case ClassTerm::boolean:
        if (const std::optional<bool> flag = booleanOf(value)) {
            coerced = Value::boolean(*flag);
        }
        break;
    case ClassTerm::list:
        return listOf(value);
    case ClassTerm::alias:
        return finder.alias(value);
    case ClassTerm::aliasList:
        return finder.aliasList(value);
    case ClassTerm::posixFile: {
        const Value found = finder.alias(value);
        return FinderTerms::file(Reference::Kind::posixFile, found.reference()->path, found.reference()->isFolder);
    }
    default:
        coerced = value.classTerm() == node.wanted ? std::optional(value) : std::nullopt;
        break;
    }
    if (!coerced) {
        failCoercion(value, node.wanted);
    }
    return *coerced;
}

Value Interpreter::propertyOf(const Value& owner, const PropertyAccess& node) {
    chargeForText(owner.is<Text>() ? owner.as<Text>()->view().size() : 0);
    if (owner.record() != nullptr) {
        if (const Value* entry = owner.record()->find(node.name)) {
            return *entry;
        }
    }
    std::optional<Value> answer;
    const Reference* reference = owner.reference();
    if (reference != nullptr) {
        answer = scriptProperty(*reference, node);
    }
    if (!answer && reference != nullptr && node.term) {
        budget.charge(10);
        answer = finder.property(*reference, *node.term);
    }
    if (!answer && node.term) {
        answer = languageProperty(*node.term, owner);
    }
    if (answer) {
        return *answer;
    }
    // Finder's own objects are named as Finder's, all others as the language's.
    const std::string words(node.term ? std::string(propertyName(*node.term)) : node.name);
    const std::string sentence = "Can’t get " + words + " of " + described(owner) + ".";
    const bool isFinders = reference != nullptr && reference->kind != Reference::Kind::script &&
                           reference->kind != Reference::Kind::appleScript;
    if (isFinders) {
        failInFinder(ErrorNumber::noSuchObject, sentence);
    }
    fail(ErrorNumber::noSuchObject, sentence);
}

std::optional<Value> Interpreter::scriptProperty(const Reference& owner, const PropertyAccess& node) {
    if (owner.kind == Reference::Kind::appleScript && node.term == PropertyTerm::textItemDelimiters) {
        return Value(delimiters);
    }
    if (owner.kind != Reference::Kind::script) {
        return std::nullopt;
    }
    const auto& names = program.main.names;
    const auto found = std::find(names.begin(), names.end(), node.name);
    const bool isSet = found != names.end() && !globals[static_cast<std::size_t>(found - names.begin())].is<Nothing>();
    return isSet ? std::optional(globals[static_cast<std::size_t>(found - names.begin())]) : std::nullopt;
}

Value Interpreter::evaluate(const ElementAccess& node) {
    Value container = node.container == nullptr ? target() : evaluate(*node.container);
    const bool isWindow = node.elements == ClassTerm::finderWindow || node.elements == ClassTerm::window;
    if (isWindow && node.container == nullptr) {
        container = FinderTerms::application();
    }
    const bool hasKey = node.selector == Selector::byIndexOrName || node.selector == Selector::byName;
    if (hasKey && isOfFinder(node, container)) {
        const Value key = evaluate(*node.first);
        if (key.is<Text>() || node.selector == Selector::byName) {
            return namedElement(node, container, key);
        }
    }
    if (node.selector == Selector::byIdentifier) {
        const std::int64_t identifier = evaluateInteger(*node.first);
        const std::optional<Value> window = isWindow ? finder.window(identifier) : std::nullopt;
        if (!window) {
            failGetting(node, "id " + std::to_string(identifier), container);
        }
        return *window;
    }
    if (node.elements == ClassTerm::text && node.selector == Selector::range) {
        const Text text = requiredText(container);
        chargeForText(text.view().size() * 8);
        const std::int64_t first = evaluateInteger(*node.first);
        const std::int64_t last = evaluateInteger(*node.second);
        if (const std::optional<Value> part = textRange(text.view(), first, last)) {
            return *part;
        }
        failGetting(node, std::to_string(first) + " thru " + std::to_string(last), container);
    }
    Value candidates = elementsIn(node, container);
    if (node.filter != nullptr) {
        candidates = filtered(candidates, *node.filter);
    }
    return chosen(node, candidates, container);
}

bool Interpreter::isOfFinder(const ElementAccess& node, const Value& container) {
    const Reference* owner = container.reference();
    const bool isItem = node.elements == ClassTerm::item && owner != nullptr &&
                        (owner->isOnDisk() || owner->kind == Reference::Kind::application);
    return isItem || isElementOfFinder(node.elements);
}

Value Interpreter::namedElement(const ElementAccess& node, const Value& container, const Value& key) {
    const std::string name = requiredText(key).string();
    if (node.elements != ClassTerm::finderWindow && node.elements != ClassTerm::window) {
        if (const std::optional<Value> item = finder.diskItem(node.elements, container, name)) {
            return *item;
        }
        failGetting(node, described(key), container);
    }
    const Value windows = elementsIn(node, container);
    for (const Value& window : windows.list()->items) {
        budget.charge(10);
        const std::optional<Value> windowName = finder.property(*window.reference(), PropertyTerm::name);
        if (windowName && windowName->is<Text>() && windowName->as<Text>()->view() == name) {
            return window;
        }
    }
    failGetting(node, described(key), container);
}

Value Interpreter::elementsIn(const ElementAccess& node, const Value& container) {
    const Reference* owner = container.reference();
    if (node.elements == ClassTerm::finderWindow || node.elements == ClassTerm::window) {
        if (owner != nullptr && owner->kind == Reference::Kind::application) {
            Value windows = finder.windows();
            budget.charge(static_cast<std::int64_t>(windows.weight() / 4));
            return windows;
        }
    } else if (!isElementOfFinder(node.elements)) {
        if (const Text* text = container.as<Text>()) {
            chargeForText(text->view().size() * 32);
        }
        if (std::optional<ListPtr> elements = elementsOf(container, node.elements, delimiters.view())) {
            return Value(std::move(*elements));
        }
    }
    failGetting(node, node.first == nullptr ? "" : described(evaluate(*node.first)), container);
}

Value Interpreter::filtered(const Value& candidates, const Expression& filter) {
    std::vector<Value> kept;
    for (const Value& candidate : candidates.list()->items) {
        const Entered target(*this, candidate);
        if (evaluateCondition(filter)) {
            kept.push_back(candidate);
        }
    }
    return Value::list(std::move(kept));
}

Value Interpreter::chosen(const ElementAccess& node, const Value& candidates, const Value& container) {
    const List& list = *candidates.list();
    if (node.selector == Selector::every) {
        return candidates;
    }
    if (node.selector == Selector::range) {
        const std::int64_t first = evaluateInteger(*node.first);
        const std::int64_t last = evaluateInteger(*node.second);
        budget.charge(static_cast<std::int64_t>(list.weight / 16));
        if (const std::optional<Value> range = elementRange(list, first, last)) {
            return *range;
        }
        failGetting(node, std::to_string(first) + " thru " + std::to_string(last), container);
    }
    // There is no chance on this machine: any element will do for `some`.
    const bool isMiddle = node.selector == Selector::middle || node.selector == Selector::some;
    const auto middle = static_cast<std::int64_t>((list.items.size() + 1) / 2);
    const std::int64_t number = isMiddle ? middle : evaluateInteger(*node.first);
    const std::optional<std::size_t> index = elementIndex(number, list.items.size());
    if (!index) {
        failGetting(node, std::to_string(number), container);
    }
    return list.items[*index];
}

void Interpreter::failGetting(const ElementAccess& node, const std::string& which, const Value& container) {
    std::string sentence = "Can’t get " + std::string(node.selector == Selector::every ? "every " : "") +
                           std::string(className(node.elements)) + (which.empty() ? "" : " ") + which;
    const Reference* owner = container.reference();
    const bool isOfApplication = owner != nullptr && owner->kind == Reference::Kind::application;
    sentence += isOfApplication ? "." : " of " + described(container) + ".";
    if (isOfFinder(node, container)) {
        failInFinder(ErrorNumber::noSuchObject, sentence);
    }
    fail(ErrorNumber::noSuchObject, sentence);
}

}  // namespace desk::applescript
