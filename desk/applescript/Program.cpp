#include "desk/applescript/Program.h"

#include <algorithm>

namespace desk::applescript {

const Expression* CommandCall::parameter(std::string_view label) const {
    const auto found =
        std::find_if(parameters.begin(), parameters.end(), [&](const auto& p) { return p.first == label; });
    return found == parameters.end() ? nullptr : found->second.get();
}

bool CommandCall::has(std::string_view label) const {
    return std::any_of(parameters.begin(), parameters.end(), [&](const auto& p) { return p.first == label; });
}

std::size_t Handler::slot(const std::string& folded, const std::string& written) {
    const auto found = std::find(names.begin(), names.end(), folded);
    if (found != names.end()) {
        return static_cast<std::size_t>(found - names.begin());
    }
    names.push_back(folded);
    writtenNames.push_back(written);
    return names.size() - 1;
}

const Handler* Program::handler(std::string_view name) const {
    const auto found = std::find_if(handlers.begin(), handlers.end(), [&](const auto& h) { return h.name == name; });
    return found == handlers.end() ? nullptr : &*found;
}

}  // namespace desk::applescript
