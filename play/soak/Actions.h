// What may happen to the machine at random: each action writes the lines of a desk script that do it, as the machine stands now. No lines: it can't be done now.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "play/soak/Chooser.h"

namespace play {

using Lines = std::vector<std::string>;

struct Action {
    std::string_view name;
    double weight;  // beside the others of all tables, before a seed's own weighting
    Lines (*lines)(const Chooser& choose);
};

const std::vector<Action>& windowActions();
const std::vector<Action>& machineActions();
const std::vector<Action>& inputActions();
const std::vector<Action>& pressActions();
const std::vector<Action>& faultActions();

// What faults can strike.
const std::vector<std::string>& faultyAttributes();
const std::vector<std::string>& faultyKeys();

// Before the application starts, and its start.
Lines openingLines(const Chooser& choose);

}  // namespace play
