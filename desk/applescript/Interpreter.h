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
    enum class Flow { normal, returned };
    class Entered;

    // Statements (Interpreter+Statements.cpp)
    Flow execute(const Block& block);
    Flow execute(const ExpressionStatement& statement);
    Flow execute(const Assignment& statement);
    Flow execute(const TellBlock& statement);
    Flow execute(const IfChain& statement);
    Flow execute(const RepeatRange& statement);
    Flow execute(const TryBlock& statement);
    Flow execute(const RaiseError& statement);
    Flow execute(const ReturnStatement& statement);

    // Expressions (Interpreter.cpp)
    Value evaluate(const Expression& expression);
    Value evaluate(const Literal& node) { return node.value; }
    Value evaluate(const Variable& node);
    Value evaluate(const Comparison& node);
    Value evaluate(const Concatenation& node);
    Value evaluate(const Coercion& node);
    Value evaluate(const ApplicationReference& node);
    Value evaluate(const PropertyAccess& node);
    Value evaluate(const ElementAccess& node);
    Value evaluate(const CommandCall& node);
    Value window(const ElementAccess& node);
    Value doShellScript(const CommandCall& node);
    Value containerOf(const ExpressionPtr& container);

    const Program& program;
    ScriptHost& host;
    FinderTerms finder;
    Budget budget;
    std::vector<Value> variables;
    // Of the `tell` blocks around; without one, nothing.
    std::vector<Value> targets;
    Value result;
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
