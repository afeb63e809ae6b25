// What goes wrong on the machine on request: Accessibility reads, entries of the window list, scripts to Finder, checks of permissions, notifications, opening of URLs. The machine's
// parts ask here; nothing in here acts.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Time.h"

namespace desk {

enum class ReadFault { none, missing, wrongType };
enum class NotificationFault { deliver, drop, doubled, late };

class Faults {
public:
    // The window number 0 stands for every window. A fault of one window goes before that of all.
    void setAccessibilityFault(const std::string& attribute, ReadFault fault, std::int64_t window = 0);
    void setWindowListFault(const std::string& key, ReadFault fault, std::int64_t window = 0);
    ReadFault accessibilityFault(std::string_view attribute, std::int64_t window) const;
    ReadFault windowListFault(std::string_view key, std::int64_t window) const;
    bool hasWindowListFaults() const { return !windowList.empty(); }

    platform::Duration scriptLatency{0};
    std::optional<std::string> scriptError;      // every script fails with this message
    std::optional<std::string> scriptAnswer;     // every script answers this text
    std::optional<std::int32_t> automationCode;  // every check of the Automation permission answers it
    platform::Duration automationLatency{0};     // of such a check, beside the user's time at the prompt
    bool urlsFail = false;                       // no URL can be opened
    NotificationFault notifications = NotificationFault::deliver;
    platform::Duration notificationDelay{0};  // of NotificationFault::late

private:
    using Table = std::map<std::string, std::map<std::int64_t, ReadFault>, std::less<>>;
    static void set(Table& table, const std::string& name, ReadFault fault, std::int64_t window);
    static ReadFault get(const Table& table, std::string_view name, std::int64_t window);

    Table accessibility;
    Table windowList;
};

}  // namespace desk
