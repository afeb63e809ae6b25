#include "actions/TerminalService.h"

namespace brindle {

void TerminalService::open(const std::string& path) {
    if (path.empty()) return;
    platform.workspace.openURLs({path}, "/System/Applications/Utilities/Terminal.app");
}

}  // namespace brindle
