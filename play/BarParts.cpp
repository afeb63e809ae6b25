#include "play/BarParts.h"

#include <algorithm>
#include <vector>

#include <QJsonObject>

#include "pathbar/BreadcrumbModel.h"
#include "pathbar/PathBarDesignManager.h"
#include "play/Json.h"
#include "play/Session.h"
#include "views/HostingView.h"
#include "views/NSTextField.h"

namespace play {

namespace {

using brindle::FinderOverlayWindowController;
using views::AccessibilityElement;

struct Bar {
    const std::string* id;
    const FinderOverlayWindowController* controller;
};

const brindle::FinderOverlayCoordinator::Controllers* controllersOf(const brindle::OrvaneApp* orvane) {
    const auto* coordinator = orvane == nullptr ? nullptr : orvane->appDelegate.coordinator();
    return coordinator == nullptr ? nullptr : &coordinator->liveControllers();
}

std::optional<Bar> barIn(const brindle::OrvaneApp* orvane, std::int64_t panel) {
    const auto* controllers = controllersOf(orvane);
    if (controllers == nullptr) return std::nullopt;
    for (const auto& [id, controller] : *controllers)
        if (controller->panel->windowNumber() == panel) return Bar{&id, controller.get()};
    return std::nullopt;
}

std::optional<Bar> barWithPanel(const Session& session, std::int64_t panel) {
    return barIn(session.orvane(), panel);
}

// The path field of a bar in edit mode; null in others.
const views::NSTextField* fieldOf(const FinderOverlayWindowController& controller) {
    const auto* host = dynamic_cast<const views::HostingView*>(controller.panel->contentView());
    return host == nullptr ? nullptr : dynamic_cast<const views::NSTextField*>(host->wrappedView("field"));
}

// Null unless the field has its panel's keyboard.
QJsonValue selectedRange(const views::FieldEditor* editor) {
    if (editor == nullptr) return {};
    const views::NSRange range = editor->selectedRange();
    return QJsonArray{static_cast<qint64>(range.location), static_cast<qint64>(range.length)};
}

std::vector<AccessibilityElement> elementsOf(const FinderOverlayWindowController& controller) {
    const auto* host = dynamic_cast<const views::HostingView*>(controller.panel->contentView());
    return host == nullptr ? std::vector<AccessibilityElement>() : host->elements();
}

// How a part is told among the elements that a bar shows.
struct Part {
    std::string_view name;
    std::string_view identifier;
    bool hasTitle;
};
constexpr Part parts[] = {{"crumb", "crumb", true},  {"chevron", "chevron", true}, {"ellipsis", "ellipsis", false},
                          {"copy", "copy", false},   {"brand", "brand", false},    {"empty", "row", false},
                          {"field", "field", false}, {"plate", "plate", false}};

const Part* partNamed(std::string_view name) {
    const auto* part =
        std::find_if(std::begin(parts), std::end(parts), [&](const Part& each) { return each.name == name; });
    return part == std::end(parts) ? nullptr : part;
}

// The crumb's item, to which its chevron belongs too.
std::string_view keyOfCrumb(const std::vector<AccessibilityElement>& elements, std::string_view title) {
    for (const auto& element : elements)
        if (element.identifier == "crumb" && element.label == title) return element.key;
    return {};
}

// On the row's empty space: behind the last crumb, or on a full row before the first.
platform::CGPoint emptyPoint(const std::vector<AccessibilityElement>& elements, const platform::CGRect& row) {
    constexpr double inset = 5;
    double end = row.minX();
    for (const auto& element : elements)
        if (element.identifier == "crumb") end = std::max(end, element.frame.maxX());
    const bool isFull = end + inset > row.maxX();
    return {isFull ? row.minX() + inset : (end + row.maxX()) / 2, row.midY()};
}

// A point of the plate that none of its parts covers.
platform::CGPoint platePoint(const platform::CGRect& plate) {
    return {plate.maxX() - 1.5, plate.midY()};
}

QJsonObject itemOf(const brindle::BreadcrumbItem& item) {
    return {{"id", jsonText(std::string_view(item.id))},
            {"title", jsonText(std::string_view(item.title))},
            {"path", jsonText(std::string_view(item.path))},
            {"isLast", item.isLast}};
}

struct DrawnCrumbs {
    QJsonArray crumbs;
    QJsonArray hidden;
};

// What the bar shows is told by its elements; the items behind them by the window's state.
DrawnCrumbs drawnCrumbs(const FinderOverlayWindowController& controller,
                        const std::vector<AccessibilityElement>& elements) {
    DrawnCrumbs drawn;
    const auto& state = controller.viewModel->windowState.get();
    if (!state || controller.viewModel->isEditing.get()) return drawn;
    const auto items = brindle::breadcrumbItems(*state);
    const auto isDrawn = [&](const brindle::BreadcrumbItem& item) {
        return std::any_of(elements.begin(), elements.end(), [&](const AccessibilityElement& element) {
            return element.identifier == "crumb" && element.key == item.id;
        });
    };
    for (const auto& item : items) (isDrawn(item) ? drawn.crumbs : drawn.hidden).append(itemOf(item));
    return drawn;
}

QJsonObject panelOf(const Bar& bar, Session& session) {
    const FinderOverlayWindowController& controller = *bar.controller;
    const auto elements = elementsOf(controller);
    const DrawnCrumbs drawn = drawnCrumbs(controller, elements);
    // What is on screen, whatever the application takes it for.
    const auto* shown = session.machine.windows.find(controller.panel->windowNumber());
    const platform::CGRect frame = shown == nullptr ? controller.panel->frame() : shown->frame;
    const bool isConfirmed = std::any_of(elements.begin(), elements.end(), [](const AccessibilityElement& element) {
        return element.identifier == "copy" && element.value == "checkmark";
    });
    const auto* field = fieldOf(controller);
    const auto* editor = field == nullptr ? nullptr : field->currentEditor();
    auto& designs = session.application()->platform().shared<brindle::PathBarDesignManager>();
    const auto& model = *controller.viewModel;
    return {{"id", jsonText(std::string_view(*bar.id))},
            {"frame", QJsonArray{frame.origin.x, frame.origin.y, frame.size.width, frame.size.height}},
            {"level", shown == nullptr ? controller.panel->level() : shown->level},
            {"visible", controller.panel->isVisible()},
            {"key", controller.panel->isKeyWindow()},
            {"isActive", model.isActive.get()},
            {"isDragging", controller.isDragging},
            {"isEditing", model.isEditing.get()},
            {"inputText", jsonText(std::string_view(model.inputText.get()))},
            {"errorMessage", jsonText(model.errorMessage.get())},
            {"crumbs", drawn.crumbs},
            {"hidden", drawn.hidden},
            {"fieldFocused", editor != nullptr},
            {"selectedRange", selectedRange(editor)},
            {"showsCopyConfirmation", isConfirmed},
            {"design", jsonText(brindle::rawValue(designs.selectedDesign.get()))}};
}

}  // namespace

std::int64_t panelNumber(const Session& session, std::int64_t finderWindow) {
    const auto* controllers = controllersOf(session.orvane());
    if (controllers == nullptr) return 0;
    const auto found = controllers->find("finder-" + std::to_string(finderWindow));
    return found == controllers->end() ? 0 : found->second->panel->windowNumber();
}

std::optional<std::string> barOfPanel(const Session& session, std::int64_t panel) {
    for (const auto& copy : session.machine.applications.all())
        if (const auto bar = barIn(Session::orvane(*copy), panel)) return *bar->id;
    return std::nullopt;
}

bool isBarPart(std::string_view part) {
    return partNamed(part) != nullptr;
}

bool barPartHasTitle(std::string_view part) {
    const Part* found = partNamed(part);
    return found != nullptr && found->hasTitle;
}

std::optional<platform::CGPoint> barPartPoint(const Session& session, std::int64_t panel, std::string_view part,
                                              std::string_view title) {
    const auto bar = barWithPanel(session, panel);
    const Part* wanted = partNamed(part);
    if (!bar || wanted == nullptr) return std::nullopt;
    const auto elements = elementsOf(*bar->controller);
    const std::string_view key = wanted->hasTitle ? keyOfCrumb(elements, title) : std::string_view();
    if (wanted->hasTitle && key.empty()) return std::nullopt;
    for (const auto& element : elements) {
        if (element.identifier != wanted->identifier || (wanted->hasTitle && element.key != key)) continue;
        if (part == "empty") return emptyPoint(elements, element.frame);
        if (part == "plate") return platePoint(element.frame);
        return platform::CGPoint{element.frame.midX(), element.frame.midY()};
    }
    return std::nullopt;
}

bool showsPathField(const Session& session, std::int64_t panel) {
    const auto bar = barWithPanel(session, panel);
    return bar && fieldOf(*bar->controller) != nullptr;
}

std::vector<std::string> drawnCrumbIds(const Session& session, std::int64_t panel) {
    std::vector<std::string> ids;
    if (const auto bar = barWithPanel(session, panel))
        for (const auto& element : elementsOf(*bar->controller))
            if (element.identifier == "crumb") ids.push_back(element.key);
    return ids;
}

QJsonArray panelsOf(Session& session) {
    QJsonArray panels;
    for (const auto* window : session.machine.windows.all())
        if (const auto bar = barWithPanel(session, window->number)) panels.append(panelOf(*bar, session));
    return panels;
}

std::int64_t barLayouts(const Session& session) {
    auto* application = session.application();
    return application == nullptr ? 0 : application->platform().shared<views::RenderCounts>().barLayouts();
}

}  // namespace play
