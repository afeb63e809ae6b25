#include "desk/ports/AccessibilityPort.h"

#include "desk/finder/Finder.h"
#include "desk/finder/FinderAccessibility.h"
#include "desk/ports/ObserverPort.h"
#include "desk/processes/Journal.h"
#include "desk/processes/LaunchedApplication.h"
#include "desk/processes/Permissions.h"

namespace desk {

using platform::AXError;
using platform::AXUIElement;

bool AccessibilityPort::AXIsProcessTrusted() {
    return permissions.accessibility;
}

bool AccessibilityPort::AXIsProcessTrustedWithOptions(const platform::Dictionary& options) {
    const platform::Value* mayAsk = platform::find(options, platform::kAXTrustedCheckOptionPrompt);
    if (application.isDead() || mayAsk == nullptr || !mayAsk->boolean().value_or(false))
        return permissions.accessibility;
    journal.note(application.processIdentifier(), "accessibility request");
    if (!permissions.accessibility) permissions.askForAccessibility(application.bundle().name());
    return permissions.accessibility;
}

AXUIElement AccessibilityPort::AXUIElementCreateApplication(std::int32_t processIdentifier) {
    return {processIdentifier, 0};
}

std::optional<platform::AXAttributeValue> AccessibilityPort::AXUIElementCopyAttributeValue(const AXUIElement& element,
                                                                                           std::string_view attribute) {
    if (refusal(element) != AXError::success) return std::nullopt;
    return finder.accessibility().copyAttribute(element, attribute);
}

AXError AccessibilityPort::AXUIElementSetAttributeValue(const AXUIElement& element, std::string_view attribute,
                                                        const platform::AXAttributeValue& value) {
    const AXError refused = refusal(element);
    return refused != AXError::success ? refused : finder.accessibility().setAttribute(element, attribute, value);
}

AXError AccessibilityPort::AXUIElementPerformAction(const AXUIElement& element, std::string_view action) {
    const AXError refused = refusal(element);
    return refused != AXError::success ? refused : finder.accessibility().performAction(element, action);
}

std::unique_ptr<platform::AXObserver> AccessibilityPort::AXObserverCreate(std::int32_t processIdentifier,
                                                                          platform::AXObserverCallback callback) {
    if (application.isDead() || !isFinder(processIdentifier) || callback == nullptr) return nullptr;
    return std::make_unique<ObserverPort>(finder, permissions, application.loop(), processIdentifier, callback,
                                          subscriptions);
}

AXError AccessibilityPort::refusal(const AXUIElement& element) const {
    if (!permissions.accessibility || application.isDead()) return AXError::apiDisabled;
    return isFinder(element.processIdentifier) ? AXError::success : AXError::cannotComplete;
}

bool AccessibilityPort::isFinder(std::int32_t processIdentifier) const {
    return finder.isRunning() && finder.pid() == processIdentifier;
}

}  // namespace desk
