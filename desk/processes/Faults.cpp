#include "desk/processes/Faults.h"

namespace desk {

void Faults::setAccessibilityFault(const std::string& attribute, ReadFault fault, std::int64_t window) {
    set(accessibility, attribute, fault, window);
}

void Faults::setWindowListFault(const std::string& key, ReadFault fault, std::int64_t window) {
    set(windowList, key, fault, window);
}

ReadFault Faults::accessibilityFault(std::string_view attribute, std::int64_t window) const {
    return get(accessibility, attribute, window);
}

ReadFault Faults::windowListFault(std::string_view key, std::int64_t window) const {
    return get(windowList, key, window);
}

void Faults::set(Table& table, const std::string& name, ReadFault fault, std::int64_t window) {
    auto& faults = table[name];
    // Of a single window, "none" is an exception from what holds for all, and is kept as long as there is something to except it from.
    if (fault != ReadFault::none || (window != 0 && faults.contains(0)))
        faults[window] = fault;
    else
        faults.erase(window);
    if (faults.empty()) table.erase(name);
}

ReadFault Faults::get(const Table& table, std::string_view name, std::int64_t window) {
    const auto faults = table.find(name);
    if (faults == table.end()) return ReadFault::none;
    auto fault = faults->second.find(window);
    if (fault == faults->second.end()) fault = faults->second.find(0);
    return fault == faults->second.end() ? ReadFault::none : fault->second;
}

}  // namespace desk
