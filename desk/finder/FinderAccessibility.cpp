#include "desk/finder/FinderAccessibility.h"

#include <algorithm>
#include <array>

#include "desk/finder/Finder.h"
#include "desk/processes/Activation.h"
#include "desk/processes/Faults.h"
#include "desk/time/Scheduler.h"
#include "desk/windows/Displays.h"
#include "desk/windows/WindowStack.h"

namespace desk {

using platform::AXAttributeValue;
using platform::AXError;
using platform::AXUIElement;
using platform::AXValue;

namespace {

constexpr std::uint64_t desktopIdentity = 1;

// What an attribute of a window is read from.
struct WindowSubject {
    const FinderWindow& window;
    const ServerWindow& shown;
    const Displays& displays;
    bool isMain;
};

struct WindowAttribute {
    std::string_view name;
    AXAttributeValue (*read)(const WindowSubject&);
};

constexpr std::array<WindowAttribute, 9> windowAttributes = {{
    {"AXRole", [](const WindowSubject&) -> AXAttributeValue { return std::string("AXWindow"); }},
    {"AXSubrole",
     [](const WindowSubject& subject) -> AXAttributeValue {
         return std::string(subject.window.kind == FinderWindowKind::folder ? "AXStandardWindow" : "AXDialog");
     }},
    {"AXMinimized", [](const WindowSubject& subject) -> AXAttributeValue { return subject.window.minimized; }},
    {"AXPosition",
     [](const WindowSubject& subject) -> AXAttributeValue {
         return AXValue(subject.displays.topLeftRect(subject.shown.frame).origin);
     }},
    {"AXSize", [](const WindowSubject& subject) -> AXAttributeValue { return AXValue(subject.shown.frame.size); }},
    {"AXTitle", [](const WindowSubject& subject) -> AXAttributeValue { return subject.window.name; }},
    {"AXMain", [](const WindowSubject& subject) -> AXAttributeValue { return subject.isMain; }},
    {"AXFocused", [](const WindowSubject& subject) -> AXAttributeValue { return subject.isMain; }},
    {"AXFullScreen", [](const WindowSubject& subject) -> AXAttributeValue { return subject.window.fullScreen; }},
}};

std::optional<AXAttributeValue> faulty(const std::optional<AXAttributeValue>& value, ReadFault fault) {
    if (fault == ReadFault::none || !value) return value;
    if (fault == ReadFault::missing) return std::nullopt;
    if (std::holds_alternative<std::string>(*value)) return AXAttributeValue(42.0);
    return AXAttributeValue(std::string("not what was asked for"));
}

}  // namespace

AXUIElement FinderAccessibility::applicationElement() const {
    return {finder.pid(), 0};
}

AXUIElement FinderAccessibility::windowElement(std::int64_t number) const {
    return {finder.pid(), static_cast<std::uint64_t>(number)};
}

std::optional<AXAttributeValue> FinderAccessibility::copyAttribute(const AXUIElement& element,
                                                                   std::string_view attribute) const {
    if (!finder.isRunning() || element.processIdentifier != finder.pid()) return std::nullopt;
    const bool isWindow = element.identity > desktopIdentity;
    const auto number = isWindow ? static_cast<std::int64_t>(element.identity) : 0;
    const ReadFault fault = neighbours.faults.accessibilityFault(attribute, number);
    if (isWindow) return faulty(windowAttribute(number, attribute), fault);
    if (element.identity == desktopIdentity) return faulty(desktopAttribute(attribute), fault);
    return faulty(applicationAttribute(attribute), fault);
}

std::optional<AXAttributeValue> FinderAccessibility::windowAttribute(std::int64_t number,
                                                                     std::string_view attribute) const {
    const FinderWindow* window = finder.entry(number);
    const ServerWindow* shown = neighbours.windows.find(number);
    if (window == nullptr || shown == nullptr) return std::nullopt;
    for (const WindowAttribute& each : windowAttributes)
        if (each.name == attribute)
            return each.read({*window, *shown, neighbours.displays, finder.mainWindow() == number});
    return std::nullopt;
}

std::optional<AXAttributeValue> FinderAccessibility::desktopAttribute(std::string_view attribute) const {
    const auto& screens = neighbours.displays.screens();
    const platform::CGRect frame =
        screens.empty() ? platform::CGRect{} : neighbours.displays.topLeftRect(screens.front().frame);
    const std::pair<std::string_view, AXAttributeValue> attributes[] = {{"AXRole", std::string("AXScrollArea")},
                                                                        {"AXPosition", AXValue(frame.origin)},
                                                                        {"AXSize", AXValue(frame.size)}};
    for (const auto& [name, value] : attributes)
        if (name == attribute) return value;
    return std::nullopt;
}

std::optional<AXAttributeValue> FinderAccessibility::applicationAttribute(std::string_view attribute) const {
    using Reader = std::optional<AXAttributeValue> (FinderAccessibility::*)() const;
    static constexpr std::pair<std::string_view, Reader> attributes[] = {
        {"AXWindows", &FinderAccessibility::windowElements},
        {"AXFocusedWindow", &FinderAccessibility::mainWindowElement},
        {"AXMainWindow", &FinderAccessibility::mainWindowElement},
        {"AXFrontmost", &FinderAccessibility::isFrontmost},
        {"AXRole", &FinderAccessibility::applicationRole},
        {"AXTitle", &FinderAccessibility::applicationTitle}};
    for (const auto& [name, reader] : attributes)
        if (name == attribute) return (this->*reader)();
    return std::nullopt;
}

std::optional<AXAttributeValue> FinderAccessibility::applicationRole() const {
    return std::string("AXApplication");
}

std::optional<AXAttributeValue> FinderAccessibility::applicationTitle() const {
    return std::string("Finder");
}

std::optional<AXAttributeValue> FinderAccessibility::isFrontmost() const {
    return finder.isFrontmost();
}

std::optional<AXAttributeValue> FinderAccessibility::mainWindowElement() const {
    const std::int64_t number = finder.mainWindow();
    if (number == 0) return std::nullopt;
    return windowElement(number);
}

// Windows of other spaces aren't told of; the desktop is always the last.
std::optional<AXAttributeValue> FinderAccessibility::windowElements() const {
    std::vector<AXUIElement> elements;
    std::vector<AXUIElement> minimized;
    for (const ServerWindow* shown : neighbours.windows.all()) {
        if (shown->owner != finder.pid()) continue;
        if (shown->minimized) minimized.push_back(windowElement(shown->number));
        if (neighbours.windows.isOnScreen(*shown)) elements.push_back(windowElement(shown->number));
    }
    elements.insert(elements.end(), minimized.begin(), minimized.end());
    elements.push_back({finder.pid(), desktopIdentity});
    return elements;
}

AXError FinderAccessibility::setAttribute(const AXUIElement& element, std::string_view attribute,
                                          const AXAttributeValue& value) {
    using Writer = AXError (FinderAccessibility::*)(std::int64_t, const AXAttributeValue&);
    struct Entry {
        std::string_view name;
        bool isOfApplication;
        Writer write;
    };
    static constexpr Entry entries[] = {
        {"AXPosition", false, &FinderAccessibility::setPosition},
        {"AXSize", false, &FinderAccessibility::setSize},
        {"AXMain", false, &FinderAccessibility::setMain},
        {"AXFocused", false, &FinderAccessibility::setMain},
        {"AXMinimized", false, &FinderAccessibility::setMinimized},
        {"AXFullScreen", false, &FinderAccessibility::setFullScreen},
        {"AXFocusedWindow", true, &FinderAccessibility::setFocusedWindow},
        {"AXMainWindow", true, &FinderAccessibility::setFocusedWindow},
        {"AXFrontmost", true, &FinderAccessibility::setFrontmost},
    };
    if (!isAlive(element)) return AXError::invalidUIElement;
    for (const Entry& entry : entries) {
        if (entry.name != attribute || entry.isOfApplication != (element.identity == 0)) continue;
        return (this->*entry.write)(static_cast<std::int64_t>(element.identity), value);
    }
    return AXError::failure;
}

bool FinderAccessibility::isAlive(const AXUIElement& element) const {
    if (!finder.isRunning() || element.processIdentifier != finder.pid()) return false;
    return element.identity <= desktopIdentity || finder.entry(static_cast<std::int64_t>(element.identity)) != nullptr;
}

namespace {

AXError result(bool succeeded) {
    return succeeded ? AXError::success : AXError::failure;
}

}  // namespace

AXError FinderAccessibility::setPosition(std::int64_t window, const AXAttributeValue& value) {
    const AXValue* wrapped = std::get_if<AXValue>(&value);
    const auto point = wrapped == nullptr ? std::nullopt : wrapped->pointValue();
    const ServerWindow* shown = neighbours.windows.find(window);
    if (!point || shown == nullptr) return AXError::failure;
    return result(finder.setFrame(window, neighbours.displays.appKitRect({*point, shown->frame.size})));
}

AXError FinderAccessibility::setSize(std::int64_t window, const AXAttributeValue& value) {
    const AXValue* wrapped = std::get_if<AXValue>(&value);
    const auto size = wrapped == nullptr ? std::nullopt : wrapped->sizeValue();
    const ServerWindow* shown = neighbours.windows.find(window);
    if (!size || shown == nullptr) return AXError::failure;
    const platform::CGSize kept{std::max(size->width, 0.0), std::max(size->height, 0.0)};
    const platform::CGPoint origin{shown->frame.minX(), shown->frame.maxY() - kept.height};
    return result(finder.setFrame(window, {origin, kept}));
}

// A window that is main already isn't moved in front of what covers it.
AXError FinderAccessibility::setMain(std::int64_t window, const AXAttributeValue& value) {
    const bool* wanted = std::get_if<bool>(&value);
    if (wanted == nullptr) return AXError::failure;
    if (!*wanted || finder.mainWindow() == window) return AXError::success;
    return result(finder.raise(window));
}

AXError FinderAccessibility::setMinimized(std::int64_t window, const AXAttributeValue& value) {
    const bool* wanted = std::get_if<bool>(&value);
    if (wanted == nullptr) return AXError::failure;
    return result(*wanted ? finder.minimize(window) : finder.restore(window));
}

AXError FinderAccessibility::setFullScreen(std::int64_t window, const AXAttributeValue& value) {
    const bool* wanted = std::get_if<bool>(&value);
    return result(wanted != nullptr && finder.setFullScreen(window, *wanted));
}

AXError FinderAccessibility::setFocusedWindow(std::int64_t /*application*/, const AXAttributeValue& value) {
    const AXUIElement* element = std::get_if<AXUIElement>(&value);
    if (element == nullptr || !isAlive(*element)) return AXError::failure;
    return setMain(static_cast<std::int64_t>(element->identity), true);
}

AXError FinderAccessibility::setFrontmost(std::int64_t /*application*/, const AXAttributeValue& value) {
    const bool* wanted = std::get_if<bool>(&value);
    if (wanted == nullptr) return AXError::failure;
    if (*wanted) neighbours.activation.activate(finder.pid(), true);
    return AXError::success;
}

AXError FinderAccessibility::performAction(const AXUIElement& element, std::string_view action) {
    if (!isAlive(element)) return AXError::invalidUIElement;
    if (action != "AXRaise") return AXError::failure;
    return result(finder.raise(static_cast<std::int64_t>(element.identity)));
}

void FinderAccessibility::post(std::int64_t window, const std::string& notification) {
    const Faults& faults = neighbours.faults;
    if (faults.notifications == NotificationFault::drop || told.subscriberCount() == 0) return;
    const AXUIElement element = window == 0 ? applicationElement() : windowElement(window);
    platform::Date due = neighbours.scheduler.now();
    if (faults.notifications == NotificationFault::late) {
        // A delay that is made shorter meanwhile lets none overtake those before it.
        due = std::max(due + faults.notificationDelay, lastLateDelivery);
        lastLateDelivery = due;
    }
    const int copies = faults.notifications == NotificationFault::doubled ? 2 : 1;
    for (int copy = 0; copy < copies; ++copy)
        neighbours.scheduler.at(due, [this, element, notification] {
            // Finder may have quit meanwhile.
            if (element.processIdentifier == finder.pid()) told(element, notification);
        });
}

}  // namespace desk
