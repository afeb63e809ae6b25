// Builds the tree of a script from its tokens, by recursive descent. Finder's words count as such inside a `tell`;
// elsewhere they are ordinary identifiers.
#pragma once

#include "desk/applescript/Program.h"
#include "desk/applescript/ScriptToken.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace desk::applescript {

class Parser {
public:
    explicit Parser(std::vector<ScriptToken> scriptTokens) : tokens(std::move(scriptTokens)) {}

    // Throws Failure with ErrorNumber::syntaxError or a neighbour of it.
    Program parse();

private:
    class Nesting;

    // Statements (Parser+Statements.cpp)
    void parseRunHandler();
    Block parseBlock();
    Block parseBlockAndEnd(std::string_view name);
    void expectEnd(std::string_view name);
    Statement parseStatement();
    Statement parseSet();
    Statement parseTell();
    Statement parseIf();
    Statement parseRepeat();
    Statement parseTry();
    Statement parseError();
    Statement parseReturn();
    std::size_t expectVariable();

    // Expressions (Parser+Expressions.cpp)
    ExpressionPtr parseExpression();
    ExpressionPtr parseJoined();
    ExpressionPtr joined(ExpressionPtr left, ExpressionPtr right) const;
    ExpressionPtr parseReference();
    void attach(Expression& head, ExpressionPtr container) const;
    ExpressionPtr parsePrimary();
    ExpressionPtr parseWord();
    ExpressionPtr parseProperty();
    ExpressionPtr parseElement();
    ExpressionPtr parseCommand();
    CoercionTerm parseCoercion();

    // Tokens (Parser.cpp)
    const ScriptToken& peek(std::size_t ahead = 0) const;
    ScriptToken next();
    bool isAtEndOfLine() const;
    // How many tokens the words or the symbol take if they stand here, else none.
    std::size_t wordsAhead(std::string_view words) const;
    bool isAt(std::string_view words) const { return wordsAhead(words) > 0; }
    bool accept(std::string_view words);
    void expect(std::string_view words);
    void expectEndOfLine();
    [[noreturn]] void failExpecting(const std::string& expected) const;
    std::string foundHere() const;

    static ExpressionPtr make(Expression::Node node, std::initializer_list<const Expression*> children = {});
    static void checkDepth(const Expression& expression);

    std::vector<ScriptToken> tokens;
    std::size_t position = 0;
    int nesting = 0;
    bool isInFinder = false;
    Program program;
};

// Counts levels of recursion, against sources that nest too deeply to be walked.
class Parser::Nesting {
public:
    explicit Nesting(Parser& owner);
    ~Nesting() { --parser.nesting; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

private:
    Parser& parser;
};

}  // namespace desk::applescript
