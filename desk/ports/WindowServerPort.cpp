#include "desk/ports/WindowServerPort.h"

#include <utility>

#include "desk/processes/Faults.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowStack.h"

namespace desk {

namespace {

using platform::Dictionary;
using platform::Value;

// The level at which Finder shows the icons of the desktop.
constexpr int desktopIconLevel = -2147483603;
constexpr std::int64_t desktopWindowNumber = 2;

ServerWindow desktopOf(std::int32_t owner, const Displays& displays) {
    ServerWindow desktop;
    desktop.number = desktopWindowNumber;
    desktop.owner = owner;
    desktop.level = desktopIconLevel;
    for (const auto& options : displays.options()) {
        desktop.frame = options.frame;
        break;
    }
    return desktop;
}

Value ofAnotherType(const Value& value) {
    return value.as<std::string>() != nullptr ? Value(1) : Value("?");
}

void applyFaults(Dictionary& entry, const Faults& faults, std::int64_t window) {
    for (auto field = entry.begin(); field != entry.end();) {
        const ReadFault fault = faults.windowListFault(field->first, window);
        if (fault == ReadFault::wrongType) field->second = ofAnotherType(field->second);
        field = fault == ReadFault::missing ? entry.erase(field) : std::next(field);
    }
}

}  // namespace

Value WindowServerPort::CGWindowListCopyWindowInfo(std::uint32_t option, std::int64_t /*relativeToWindow*/) {
    const bool onScreenOnly = (option & platform::kCGWindowListOptionOnScreenOnly) != 0;
    const bool withDesktop = (option & platform::kCGWindowListExcludeDesktopElements) == 0;
    const auto listed = onScreenOnly ? windows.onScreen() : windows.all();
    platform::Array entries;
    entries.reserve(listed.size() + 1);
    for (const ServerWindow* window : listed) entries.emplace_back(describe(*window));
    if (withDesktop && windows.desktopOwner != 0)
        entries.emplace_back(describe(desktopOf(windows.desktopOwner, displays)));
    return entries;
}

Dictionary WindowServerPort::describe(const ServerWindow& window) const {
    Dictionary entry{{platform::kCGWindowNumber, window.number},
                     {platform::kCGWindowOwnerPID, std::int64_t{window.owner}},
                     {platform::kCGWindowLayer, std::int64_t{window.level}},
                     {platform::kCGWindowBounds,
                      platform::CGRectCreateDictionaryRepresentation(displays.topLeftRect(window.frame))}};
    if (!window.title.empty()) entry.emplace(platform::kCGWindowName, window.title);
    if (faults.hasWindowListFaults()) applyFaults(entry, faults, window.number);
    return entry;
}

}  // namespace desk
