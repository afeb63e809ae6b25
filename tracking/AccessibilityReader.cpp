#include "tracking/AccessibilityReader.h"

#include <utility>
#include <variant>

namespace brindle {

using platform::AXAttributeValue;
using platform::AXUIElement;
using platform::AXValue;

namespace {

template <typename T>
std::optional<T> takenAs(std::optional<AXAttributeValue> value) {
    T* wanted = value ? std::get_if<T>(&*value) : nullptr;
    return wanted == nullptr ? std::nullopt : std::optional<T>(std::move(*wanted));
}

}  // namespace

std::optional<std::string> AccessibilityReader::copyString(std::string_view attribute, const AXUIElement& from) const {
    return takenAs<std::string>(accessibility.AXUIElementCopyAttributeValue(from, attribute));
}

std::optional<bool> AccessibilityReader::copyBool(std::string_view attribute, const AXUIElement& from) const {
    const auto value = accessibility.AXUIElementCopyAttributeValue(from, attribute);
    if (!value) return std::nullopt;
    if (const bool* flag = std::get_if<bool>(&*value)) return *flag;
    if (const double* number = std::get_if<double>(&*value)) return *number != 0;
    return std::nullopt;
}

std::optional<platform::CGPoint> AccessibilityReader::copyPoint(std::string_view attribute,
                                                                const AXUIElement& from) const {
    const auto value = takenAs<AXValue>(accessibility.AXUIElementCopyAttributeValue(from, attribute));
    return value ? value->pointValue() : std::nullopt;
}

std::optional<platform::CGSize> AccessibilityReader::copySize(std::string_view attribute,
                                                              const AXUIElement& from) const {
    const auto value = takenAs<AXValue>(accessibility.AXUIElementCopyAttributeValue(from, attribute));
    return value ? value->sizeValue() : std::nullopt;
}

std::optional<AXUIElement> AccessibilityReader::copyElement(std::string_view attribute, const AXUIElement& from) const {
    return takenAs<AXUIElement>(accessibility.AXUIElementCopyAttributeValue(from, attribute));
}

std::optional<std::vector<AXUIElement>> AccessibilityReader::copyElements(std::string_view attribute,
                                                                          const AXUIElement& from) const {
    return takenAs<std::vector<AXUIElement>>(accessibility.AXUIElementCopyAttributeValue(from, attribute));
}

std::optional<platform::CGRect> AccessibilityReader::copyFrame(const AXUIElement& from) const {
    const auto position = copyPoint("AXPosition", from);
    const auto size = copySize("AXSize", from);
    if (!position || !size) return std::nullopt;
    return platform::CGRect{*position, *size};
}

}  // namespace brindle
