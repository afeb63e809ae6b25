#include "actions/ClipboardService.h"

namespace brindle {

void ClipboardService::copy(const std::string& text) {
    platform.pasteboard.clearContents();
    platform.pasteboard.setString(text);
}

}  // namespace brindle
