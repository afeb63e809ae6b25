// Builds the tree of a script from its tokens, by recursive descent. Finder's words count as such inside a `tell` to
// Finder and in statements that name it; elsewhere they are ordinary identifiers.
#pragma once

#include "desk/applescript/Program.h"
#include "desk/applescript/Token.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace desk::applescript {

class Parser {
public:
    explicit Parser(std::vector<Token> scriptTokens) : tokens(std::move(scriptTokens)) {}

    // Throws Failure with ErrorNumber::syntaxError or a neighbour of it.
    Program parse();

private:
    class Nesting;
    struct OperatorWords;

    // Statements (Parser.cpp, Parser+Statements.cpp)
    void parseTopLevel();
    void parseHandler();
    void parsePropertyDeclaration();
    void parseGlobalDeclaration();
    void parseLocalDeclaration();
    Block parseBlock();
    Statement parseStatement();
    Statement parseSet();
    Statement parseCopy();
    Statement parseTell();
    Statement parseIf();
    Statement parseRepeat();
    Statement parseRepeatWith();
    Statement parseExit();
    Statement parseTry();
    Statement parseError();
    Statement parseReturn();
    Statement parseConsidering(bool considers);
    Statement parseWithTimeout();
    Block parseBlockAndEnd(std::string_view name);
    void expectEnd(std::string_view name);
    std::size_t expectVariable();
    ExpressionPtr checkedTarget(ExpressionPtr target);
    void resolveGlobals();

    // Expressions (Parser+Expressions.cpp)
    ExpressionPtr parseExpression() { return parseOperation(1); }
    ExpressionPtr parseOperation(int lowestLevel);
    ExpressionPtr parseOperand();
    ExpressionPtr parseReference();
    ExpressionPtr parseFilter(ExpressionPtr element);
    void attach(Expression& head, ExpressionPtr container);
    const OperatorWords* operatorAhead() const;
    ExpressionPtr combined(Operator operation, ExpressionPtr left, ExpressionPtr right);
    ClassTerm parseClass();

    // Operands (Parser+Terms.cpp, Parser+Commands.cpp)
    ExpressionPtr parsePrimary();
    ExpressionPtr parseBraces();
    ExpressionPtr parseRecord();
    ExpressionPtr parseWord();
    ExpressionPtr parseConstant();
    ExpressionPtr parseApplication();
    ExpressionPtr parseTerm();
    const CommandWords* commandAhead() const;
    const ClassWords* classAhead(bool& isPlural) const;
    const PropertyWords* propertyAhead() const;
    ExpressionPtr parseCommand(const CommandWords& words);
    ExpressionPtr parseMake();
    ExpressionPtr parsePathTo();
    ExpressionPtr withParameters(CommandCall call);
    ExpressionPtr parseHandlerCall(bool isToMe);
    ExpressionPtr parseVariable();

    // Elements (Parser+Elements.cpp)
    bool isAtOrdinal() const;
    ExpressionPtr parseOrdinal();
    ExpressionPtr parseElement(const ClassWords& words, bool isPlural);
    ExpressionPtr parseIndex(ExpressionPtr first, ClassTerm elements);
    bool beginsIndex(bool isPlural) const;

    // Tokens
    const Token& peek(std::size_t ahead = 0) const;
    Token next();
    bool isAtSymbol(std::string_view symbol) const;
    bool isAtWord(std::string_view word, std::size_t ahead = 0) const;
    bool isAtEndOfLine() const;
    // How many words the term has if it stands here, else none.
    std::size_t wordsAhead(std::string_view term, std::size_t ahead = 0) const;
    bool accept(std::string_view term);
    bool acceptSymbol(std::string_view symbol);
    void expect(std::string_view word);
    void expectSymbol(std::string_view symbol);
    void expectEndOfLine();
    bool lineNamesFinder() const;
    [[noreturn]] void failExpecting(const std::string& expected) const;
    std::string foundHere() const;

    ExpressionPtr make(Expression::Node node, std::initializer_list<const Expression*> children = {}) const;
    static void checkDepth(const Expression& expression);

    std::vector<Token> tokens;
    std::size_t position = 0;
    int nesting = 0;
    bool isInFinder = false;
    // After `whose`, where properties are those of the candidate.
    bool isInFilter = false;
    Program program;
    Handler* handler = &program.main;
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
