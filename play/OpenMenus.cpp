#include "play/OpenMenus.h"

#include <string>
#include <vector>

#include <QJsonArray>
#include <QJsonObject>

#include "desk/Machine.h"
#include "play/Json.h"
#include "views/HostingView.h"

namespace play {

namespace {

using views::AccessibilityElement;
using views::AccessibilityRole;

struct FrontPopover {
    platform::CGRect body;
    std::vector<AccessibilityElement> elements;
};

std::optional<FrontPopover> frontPopover(const desk::Machine& machine) {
    const auto shown = machine.menus.popovers();
    if (shown.empty()) return std::nullopt;
    const auto* host = dynamic_cast<const views::HostingView*>(shown.back().popover->content.get());
    if (host == nullptr) return std::nullopt;
    return FrontPopover{shown.back().place.body, host->elements()};
}

// What a popover is for is told by the identifier of its content.
struct Kind {
    std::string_view identifier;
    const char* name;
};
constexpr Kind kinds[] = {{"copy-confirmation", "copy"}, {"error-message", "error"}};

QJsonValue kindOf(const std::vector<AccessibilityElement>& elements) {
    for (const Kind& kind : kinds)
        for (const AccessibilityElement& element : elements)
            if (element.identifier == kind.identifier) return kind.name;
    return {};
}

QJsonObject itemOf(const platform::MenuItem& item) {
    const auto symbol = item.symbol.empty() ? std::nullopt : std::optional<std::string>(item.symbol);
    return {{"title", jsonText(std::string_view(item.title))},
            {"enabled", item.enabled && !item.isSeparator},
            {"separator", item.isSeparator},
            {"symbol", jsonText(symbol)}};
}

}  // namespace

QJsonValue menuOf(const desk::Machine& machine) {
    const desk::OpenMenu* menu = machine.menus.menu();
    if (menu == nullptr) return {};
    QJsonArray items;
    for (const platform::MenuItem& item : menu->items()) items.append(itemOf(item));
    return QJsonObject{{"items", items}};
}

QJsonValue popoverOf(const desk::Machine& machine) {
    const auto popover = frontPopover(machine);
    if (!popover) return {};
    std::string text;
    for (const AccessibilityElement& element : popover->elements) {
        if (element.role != AccessibilityRole::staticText) continue;
        if (!text.empty()) text += ' ';
        text += element.value;
    }
    return QJsonObject{{"kind", kindOf(popover->elements)}, {"text", jsonText(std::string_view(text))}};
}

std::optional<platform::CGPoint> popoverControl(const desk::Machine& machine, std::string_view label) {
    const auto popover = frontPopover(machine);
    if (!popover) return std::nullopt;
    for (const AccessibilityElement& element : popover->elements)
        if (element.role == AccessibilityRole::button && element.label == label)
            return platform::CGPoint{popover->body.minX() + element.frame.midX(),
                                     popover->body.maxY() - element.frame.midY()};
    return std::nullopt;
}

}  // namespace play
