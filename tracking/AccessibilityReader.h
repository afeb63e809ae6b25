// Reads Accessibility attributes as the type that is wanted. The tracker and the event monitor use it. An error, a missing value and a value
// of another type are all the same empty answer; nothing is retried. Each read is a synchronous call into the other process. Main thread only.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Accessibility.h"

namespace brindle {

class AccessibilityReader {
public:
    explicit AccessibilityReader(platform::Accessibility& source) : accessibility(source) {}

    std::optional<std::string> copyString(std::string_view attribute, const platform::AXUIElement& from) const;
    // Numbers count as booleans, as they do on the platform.
    std::optional<bool> copyBool(std::string_view attribute, const platform::AXUIElement& from) const;
    std::optional<platform::CGPoint> copyPoint(std::string_view attribute, const platform::AXUIElement& from) const;
    std::optional<platform::CGSize> copySize(std::string_view attribute, const platform::AXUIElement& from) const;
    std::optional<platform::AXUIElement> copyElement(std::string_view attribute,
                                                     const platform::AXUIElement& from) const;
    std::optional<std::vector<platform::AXUIElement>> copyElements(std::string_view attribute,
                                                                   const platform::AXUIElement& from) const;
    // Position and size together, top-left space. Allocates nothing.
    std::optional<platform::CGRect> copyFrame(const platform::AXUIElement& from) const;

private:
    platform::Accessibility& accessibility;
};

}  // namespace brindle
