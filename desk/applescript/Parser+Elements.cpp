#include "desk/applescript/Parser.h"

#include <algorithm>
#include <array>
#include <utility>

namespace desk::applescript {

namespace {

struct Ordinal {
    std::string_view word;
    std::int64_t index;
};

constexpr std::array<Ordinal, 13> ordinals{{{"first", 1},
                                            {"second", 2},
                                            {"third", 3},
                                            {"fourth", 4},
                                            {"fifth", 5},
                                            {"sixth", 6},
                                            {"seventh", 7},
                                            {"eighth", 8},
                                            {"ninth", 9},
                                            {"tenth", 10},
                                            {"front", 1},
                                            {"last", -1},
                                            {"back", -1}}};

bool isSelectable(ClassTerm term) {
    constexpr std::array selectable{ClassTerm::item,         ClassTerm::character, ClassTerm::word,
                                    ClassTerm::paragraph,    ClassTerm::textItem,  ClassTerm::text,
                                    ClassTerm::finderWindow, ClassTerm::window,    ClassTerm::folder,
                                    ClassTerm::file,         ClassTerm::disk,      ClassTerm::alias};
    return std::find(selectable.begin(), selectable.end(), term) != selectable.end();
}

}  // namespace

bool Parser::isAtOrdinal() const {
    const bool isNumbered =
        std::any_of(ordinals.begin(), ordinals.end(), [&](const auto& ordinal) { return isAtWord(ordinal.word); });
    return isNumbered || isAtWord("middle") || isAtWord("some");
}

ExpressionPtr Parser::parseOrdinal() {
    const Token ordinal = next();
    bool isPlural = false;
    const ClassWords* words = classAhead(isPlural);
    if (words == nullptr) {
        if (ordinal.kind == TokenKind::ordinal) {
            failExpecting("class name");
        }
        --position;
        return parseTerm();
    }
    accept(isPlural ? words->plural : words->singular);
    const auto named =
        std::find_if(ordinals.begin(), ordinals.end(), [&](const auto& o) { return o.word == ordinal.folded; });
    const bool isByIndex = ordinal.kind == TokenKind::ordinal || named != ordinals.end();
    const std::int64_t index = named == ordinals.end() ? ordinal.integer : named->index;
    const Selector selector = isByIndex                    ? Selector::byIndexOrName
                              : ordinal.folded == "middle" ? Selector::middle
                                                           : Selector::some;
    ExpressionPtr first = isByIndex ? make(Literal{Value::number(index)}) : nullptr;
    const Expression* child = first.get();
    return make(ElementAccess{words->term, selector, std::move(first), nullptr, nullptr, nullptr}, {child});
}

ExpressionPtr Parser::parseElement(const ClassWords& words, bool isPlural) {
    const bool hasPlural = accept(words.plural);
    if (!hasPlural) {
        accept(words.singular);
    }
    isPlural = isPlural || hasPlural;
    ElementAccess access{words.term, Selector::every, nullptr, nullptr, nullptr, nullptr};
    if (isSelectable(words.term) && beginsIndex(isPlural)) {
        if (!isPlural && (accept("id") || accept("named"))) {
            const bool isById = tokens[position - 1].folded == "id";
            access.selector = isById ? Selector::byIdentifier : Selector::byName;
            access.first = parsePrimary();
            const Expression* child = access.first.get();
            return make(std::move(access), {child});
        }
        accept("index");
        ExpressionPtr first = acceptSymbol("-") ? make(Negation{parsePrimary()}) : parsePrimary();
        return parseIndex(std::move(first), words.term);
    }
    return isPlural ? make(std::move(access)) : make(Literal{Value(Value::Storage(words.term))});
}

ExpressionPtr Parser::parseIndex(ExpressionPtr first, ClassTerm elements) {
    const Expression* child = first.get();
    if (elements == ClassTerm::alias) {
        return make(CommandCall{CommandTerm::alias, std::move(first), {}}, {child});
    }
    if (!accept("thru") && !accept("through")) {
        return make(ElementAccess{elements, Selector::byIndexOrName, std::move(first), nullptr, nullptr, nullptr},
                    {child});
    }
    ExpressionPtr second = acceptSymbol("-") ? make(Negation{parsePrimary()}) : parsePrimary();
    const Expression* secondChild = second.get();
    return make(ElementAccess{elements, Selector::range, std::move(first), std::move(second), nullptr, nullptr},
                {child, secondChild});
}

// A plural takes an index only where it can be nothing else.
bool Parser::beginsIndex(bool isPlural) const {
    const Token& token = peek();
    if (token.kind == TokenKind::integer || token.kind == TokenKind::real || token.kind == TokenKind::string) {
        return true;
    }
    if (token.kind == TokenKind::symbol) {
        return token.folded == "(" || (token.folded == "-" && peek(1).kind == TokenKind::integer);
    }
    const bool isName =
        token.kind == TokenKind::barredWord || (token.kind == TokenKind::word && !isReserved(token.folded));
    return isName && (!isPlural || isAtWord("thru", 1) || isAtWord("through", 1));
}

}  // namespace desk::applescript
