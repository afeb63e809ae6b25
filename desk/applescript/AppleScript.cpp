#include "desk/applescript/AppleScript.h"

#include "desk/applescript/Coercion.h"
#include "desk/applescript/Interpreter.h"
#include "desk/applescript/Lexer.h"
#include "desk/applescript/Parser.h"

#include <utility>

namespace desk::applescript {

namespace {

constexpr std::size_t longestSource = 1 << 20;

}  // namespace

CompiledScript::CompiledScript(std::unique_ptr<const Program> compiledProgram) : compiled(std::move(compiledProgram)) {}

CompiledScript::~CompiledScript() = default;

std::unique_ptr<CompiledScript> compile(std::string_view source, ScriptError* error) {
    try {
        if (source.size() > longestSource) {
            fail(ErrorNumber::outOfMemory, "Out of memory.");
        }
        Parser parser(Lexer(source).tokenize());
        return std::make_unique<CompiledScript>(std::make_unique<const Program>(parser.parse()));
    } catch (const Failure& failure) {
        if (error != nullptr) {
            *error = failure.error;
        }
        return nullptr;
    }
}

ScriptResult run(const CompiledScript& script, ScriptHost& host, const std::vector<std::string>& arguments,
                 const ScriptLimits& limits) {
    try {
        const std::optional<ScriptText> text = textOf(Interpreter(script.program(), host, limits).run(arguments));
        return {text ? std::optional(text->string()) : std::nullopt, std::nullopt};
    } catch (const Failure& failure) {
        return {std::nullopt, failure.error};
    }
}

}  // namespace desk::applescript
