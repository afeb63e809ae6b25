// Reading and steering other applications' windows through Accessibility, and being told of their changes. Positions are in top-left
// space. Without the user's trust every read fails and no notification comes. Main thread only.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/Dictionary.h"
#include "platform/Geometry.h"

namespace platform {

// Of AXIsProcessTrustedWithOptions: a boolean.
inline constexpr const char* kAXTrustedCheckOptionPrompt = "AXTrustedCheckOptionPrompt";

enum class AXError { success, failure, invalidUIElement, cannotComplete, apiDisabled };

// A reference to an element of another process; copying it copies the reference. It may outlive what it refers to: reads then fail. Two references to the same element are equal.
struct AXUIElement {
    std::int32_t processIdentifier = 0;
    std::uint64_t identity = 0;  // 0 is the application itself
    // The backend's own: its deleter runs when the last copy of this reference goes. Empty where there is nothing to release.
    std::shared_ptr<const void> held = nullptr;

    friend bool operator==(const AXUIElement& a, const AXUIElement& b) {
        return a.processIdentifier == b.processIdentifier && a.identity == b.identity;
    }
};

// A point or a size wrapped for transport; reading it as the other type fails.
class AXValue {
public:
    explicit AXValue(CGPoint point) : wrapped(point) {}
    explicit AXValue(CGSize size) : wrapped(size) {}
    std::optional<CGPoint> pointValue() const { return valueOf<CGPoint>(); }
    std::optional<CGSize> sizeValue() const { return valueOf<CGSize>(); }
    friend bool operator==(const AXValue&, const AXValue&) = default;

private:
    template <typename T>
    std::optional<T> valueOf() const {
        const T* value = std::get_if<T>(&wrapped);
        return value == nullptr ? std::nullopt : std::optional<T>(*value);
    }
    std::variant<CGPoint, CGSize> wrapped;
};

// Empty when the platform can't make the value.
std::optional<AXValue> AXValueCreate(CGPoint point);
std::optional<AXValue> AXValueCreate(CGSize size);

using AXAttributeValue = std::variant<bool, double, std::string, AXValue, AXUIElement, std::vector<AXUIElement>>;

class AXObserver;
// Called on the main run loop. `notification` is valid during the call.
using AXObserverCallback = void (*)(AXObserver& observer, const AXUIElement& element, const std::string& notification,
                                    void* context);

// Destroying it ends all its subscriptions. The context is a reference that doesn't own.
class AXObserver {
public:
    virtual ~AXObserver() = default;
    virtual AXError AXObserverAddNotification(const AXUIElement& element, std::string_view notification,
                                              void* context) = 0;
    virtual AXError AXObserverRemoveNotification(const AXUIElement& element, std::string_view notification) = 0;
    // Puts the observer's source on the main run loop in the common modes, or takes it off; only while it is on, callbacks come.
    virtual void addSourceToMainRunLoop() = 0;
    virtual void removeSourceFromMainRunLoop() = 0;
};

class Accessibility {
public:
    virtual ~Accessibility() = default;

    virtual bool AXIsProcessTrusted() = 0;
    // The same answer, that of this moment. Without trust, and with kAXTrustedCheckOptionPrompt true, the system also asks the user, for whom nobody waits.
    virtual bool AXIsProcessTrustedWithOptions(const Dictionary& options) = 0;

    virtual AXUIElement AXUIElementCreateApplication(std::int32_t processIdentifier) = 0;
    // Empty on any error and for a missing value. A synchronous call into the other process.
    virtual std::optional<AXAttributeValue> AXUIElementCopyAttributeValue(const AXUIElement& element,
                                                                          std::string_view attribute) = 0;
    virtual AXError AXUIElementSetAttributeValue(const AXUIElement& element, std::string_view attribute,
                                                 const AXAttributeValue& value) = 0;
    virtual AXError AXUIElementPerformAction(const AXUIElement& element, std::string_view action) = 0;

    // Null on an error, such as a process that isn't there.
    virtual std::unique_ptr<AXObserver> AXObserverCreate(std::int32_t processIdentifier,
                                                         AXObserverCallback callback) = 0;
};

}  // namespace platform
