// Runs a compiled script: walks its tree, keeps its variables and the targets of its `tell` blocks. One object runs
// one script once.
#pragma once

#include "desk/applescript/AppleScript.h"
#include "desk/applescript/Budget.h"
#include "desk/applescript/FinderTerms.h"
#include "desk/applescript/Program.h"

#include <string>
#include <vector>

namespace desk::applescript {

class Interpreter {
public:
    Interpreter(const Program& compiled, ScriptHost& scriptHost, const ScriptLimits& limits);

    // The result of the script; throws Failure.
    Value run(const std::vector<std::string>& arguments);

private:
    enum class Flow { normal, exitRepeat, returned };
    struct Frame;
    class Entered;

    // Statements (Interpreter+Statements.cpp)
    Flow execute(const Block& block);
    Flow execute(const ExpressionStatement& statement);
    Flow execute(const Assignment& statement);
    Flow execute(const TellBlock& statement);
    Flow execute(const IfChain& statement);
    Flow execute(const RepeatForever& statement);
    Flow execute(const RepeatTimes& statement);
    Flow execute(const RepeatCondition& statement);
    Flow execute(const RepeatRange& statement);
    Flow execute(const RepeatList& statement);
    Flow execute(const ExitRepeat& statement);
    Flow execute(const TryBlock& statement);
    Flow execute(const RaiseError& statement);
    Flow execute(const ReturnStatement& statement);
    Flow execute(const ConsideringBlock& statement);
    void assign(const Expression& target, const Value& value);
    void assignEach(const ListLiteral& targetList, const Value& value);
    void assignProperty(const PropertyAccess& target, const Value& value);
    void assignElement(const ElementAccess& target, const Value& value);
    // Replaces the value of a variable that is changed in part.
    Value& changeable(const ExpressionPtr& container, const Value& value, const std::string& what);

    // Expressions (Interpreter.cpp)
    Value evaluate(const Expression& expression);
    Value evaluate(const Literal& node) { return node.value; }
    Value evaluate(const Variable& node);
    Value evaluate(const ListLiteral& node);
    Value evaluate(const RecordLiteral& node);
    Value evaluate(const Negation& node);
    Value evaluate(const LogicalNot& node);
    Value evaluate(const BinaryOperation& node);
    Value evaluate(const Concatenation& node);
    Value evaluate(const Coercion& node);
    Value evaluate(const ItReference&) { return target(); }
    Value evaluate(const MeReference&);
    Value evaluate(const AppleScriptReference&);
    Value evaluate(const ResultReference&);
    Value evaluate(const ApplicationReference& node);
    Value evaluate(const PropertyAccess& node);
    Value evaluate(const ElementAccess& node);
    Value evaluate(const CommandCall& node);
    Value evaluate(const HandlerCall& node);
    Value concatenated(Value left, const Value& right);
    Value call(const Handler& handler, std::vector<Value> arguments);
    std::int64_t evaluateInteger(const Expression& expression);
    bool evaluateCondition(const Expression& expression);

    // Properties and elements (Interpreter+Objects.cpp)
    Value propertyOf(const Value& owner, const PropertyAccess& node);
    std::optional<Value> scriptProperty(const Reference& owner, const PropertyAccess& node);
    Value elementsIn(const ElementAccess& node, const Value& container);
    Value namedElement(const ElementAccess& node, const Value& container, const Value& key);
    Value filtered(const Value& candidates, const Expression& filter);
    Value chosen(const ElementAccess& node, const Value& candidates, const Value& container);
    [[noreturn]] void failGetting(const ElementAccess& node, const std::string& which, const Value& container);
    static bool isOfFinder(const ElementAccess& node, const Value& container);

    // Commands (Interpreter+Commands.cpp)
    Value activate(const CommandCall& node);
    Value open(const CommandCall& node);
    Value close(const CommandCall& node);
    Value select(const CommandCall& node);
    Value makeObject(const CommandCall& node);
    Value count(const CommandCall& node);
    Value exists(const CommandCall& node);
    Value get(const CommandCall& node);
    Value delay(const CommandCall& node);
    Value doShellScript(const CommandCall& node);
    Value asciiCharacter(const CommandCall& node);
    Value asciiNumber(const CommandCall& node);
    Value characterWithId(const CommandCall& node);
    Value pathTo(const CommandCall& node);
    Value posixFile(const CommandCall& node);
    Value aliasTo(const CommandCall& node);

    const Value& target() const { return targets.back(); }
    Value& place(std::size_t slot);
    Text requiredText(const Value& value);
    void chargeForText(std::size_t bytes) { budget.charge(static_cast<std::int64_t>(bytes / 64)); }

    const Program& program;
    ScriptHost& host;
    FinderTerms finder;
    Budget budget;
    std::vector<Value> globals;
    Frame* frame = nullptr;
    std::vector<Value> targets;
    Value result;
    bool considersCase = false;
    Text delimiters;
};

struct Interpreter::Frame {
    const Handler& handler;
    std::vector<Value> slots;
};

// A target of `tell`, for as long as it lives.
class Interpreter::Entered {
public:
    Entered(Interpreter& owner, Value target) : interpreter(owner) { interpreter.targets.push_back(std::move(target)); }
    ~Entered() { interpreter.targets.pop_back(); }
    Entered(const Entered&) = delete;
    Entered& operator=(const Entered&) = delete;

private:
    Interpreter& interpreter;
};

}  // namespace desk::applescript
