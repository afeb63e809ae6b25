// The words of a desk script, by concern. Each table pairs a word with what it does.
#pragma once

#include <string_view>
#include <vector>

#include "play/Arguments.h"

namespace play {

class ScriptPlayer;

struct Command {
    std::string_view name;
    void (*run)(ScriptPlayer& player, const Arguments& arguments);
};

const std::vector<Command>& machineCommands();
const std::vector<Command>& applicationCommands();
const std::vector<Command>& finderCommands();
const std::vector<Command>& inputCommands();
const std::vector<Command>& checkCommands();

// Runs the entry of that name; false when the table has none.
bool runCommand(const std::vector<Command>& table, std::string_view name, ScriptPlayer& player,
                const Arguments& arguments);

// The value that a table pairs with a word.
template <typename Value>
struct Choice {
    std::string_view name;
    Value value;
};
template <typename Value, std::size_t Size>
Value choose(const Choice<Value> (&choices)[Size], const Arguments& arguments, std::size_t index) {
    for (const auto& choice : choices)
        if (arguments.text(index) == choice.name) return choice.value;
    badCommand("unknown word: " + arguments.text(index));
}

}  // namespace play
