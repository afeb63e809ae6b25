// What goes wrong: slow, failing and garbled scripts, failing reads, lost, late and doubled notifications.
#include "play/soak/Actions.h"
#include "play/soak/Lines.h"

namespace play {

namespace {

Lines scriptLatency(const Chooser& choose) {
    static constexpr const char* seconds[] = {"0", "0", "0.01", "0.05", "0.3", "1", "3"};
    return {std::string("finder script-latency ") + choose.random.pick(seconds)};
}

Lines scriptError(const Chooser& choose) {
    return {choose.random.oneIn(2) ? "finder script-error off" : "finder script-error \"Finder got an error.\""};
}

Lines scriptAnswer(const Chooser& choose) {
    static constexpr const char* answers[] = {"off",
                                              "off",
                                              "\"\"",
                                              "nonsense",
                                              "\"101\\u{1F}/elsewhere/\\u{1F}elsewhere\\u{1F}\\u{1F}1\\u{1E}\"",
                                              "\"102\\u{1F}\\u{1F}\\u{1F}\\u{1F}0\\u{1E}103\\u{1F}\"",
                                              "\"104\\u{1F}/Users/ana/nothing\""};
    return {std::string("finder script-answer ") + choose.random.pick(answers)};
}

std::string readFault(const Chooser& choose, const std::vector<std::string>& names, const char* command) {
    static constexpr const char* failures[] = {"missing", "wrong-type", "off"};
    const auto window = choose.random.oneIn(2) ? choose.window([](const auto&) { return true; }) : std::nullopt;
    return joinWords({command, choose.random.pick(names), choose.random.pick(failures), window.value_or("")});
}

Lines accessibilityFault(const Chooser& choose) {
    return {readFault(choose, faultyAttributes(), "finder ax-fault")};
}

Lines windowListFault(const Chooser& choose) {
    return {readFault(choose, faultyKeys(), "finder list-fault")};
}

Lines notifications(const Chooser& choose) {
    static constexpr const char* lines[] = {"finder notifications deliver",  "finder notifications drop",
                                            "finder notifications double",   "finder notifications late 0.02",
                                            "finder notifications late 0.4", "finder notifications late 2"};
    return {choose.random.pick(lines)};
}

}  // namespace

const std::vector<std::string>& faultyAttributes() {
    static const std::vector<std::string> names{"AXRole",    "AXSubrole",      "AXMinimized", "AXPosition",
                                                "AXSize",    "AXTitle",        "AXMain",      "AXFullScreen",
                                                "AXWindows", "AXFocusedWindow"};
    return names;
}

const std::vector<std::string>& faultyKeys() {
    static const std::vector<std::string> names{"kCGWindowOwnerPID", "kCGWindowLayer", "kCGWindowNumber",
                                                "kCGWindowBounds", "kCGWindowName"};
    return names;
}

const std::vector<Action>& faultActions() {
    static const std::vector<Action> table{{"script-latency", 1, scriptLatency}, {"script-error", 1, scriptError},
                                           {"script-answer", 1, scriptAnswer},   {"ax-fault", 2, accessibilityFault},
                                           {"list-fault", 1.5, windowListFault}, {"notifications", 1.5, notifications}};
    return table;
}

}  // namespace play
