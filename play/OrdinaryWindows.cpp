#include "play/OrdinaryWindows.h"

#include <algorithm>

#include <QJsonObject>

#include "desk/settings/SettingsProgram.h"
#include "play/Json.h"
#include "play/Session.h"
#include "views/HostingView.h"

namespace play {

namespace {

using platform::CGRect;
using platform::NSWindow;
using views::AccessibilityElement;
using views::AccessibilityRole;

std::vector<AccessibilityElement> elementsOf(const NSWindow& window) {
    const auto* host = dynamic_cast<const views::HostingView*>(window.contentView());
    return host == nullptr ? std::vector<AccessibilityElement>() : host->elements();
}

constexpr std::pair<AccessibilityRole, const char*> controlRoles[] = {{AccessibilityRole::button, "button"},
                                                                      {AccessibilityRole::switchControl, "switch"},
                                                                      {AccessibilityRole::link, "link"}};

const char* roleOf(const AccessibilityElement& element) {
    for (const auto& [role, name] : controlRoles)
        if (role == element.role) return name;
    return nullptr;
}

// From the content's top left corner, y downward, to the screen.
CGRect onScreen(const NSWindow& window, const CGRect& rect) {
    const CGRect content = window.platform.windows.contentRectForFrameRect(window.frame(), window.settings().styleMask);
    return {{content.minX() + rect.minX(), content.maxY() - rect.maxY()}, rect.size};
}

QJsonArray listOf(const std::vector<std::string>& texts) {
    QJsonArray list;
    for (const std::string& text : texts) list.append(jsonText(std::string_view(text)));
    return list;
}

QJsonObject controlOf(const NSWindow& window, const AccessibilityElement& element, const char* role) {
    return {{"label", jsonText(std::string_view(element.label))},
            {"texts", listOf(element.texts)},
            {"symbols", listOf(element.symbols)},
            {"role", role},
            {"enabled", element.isEnabled},
            {"value", element.isOn ? QJsonValue(*element.isOn) : QJsonValue()},
            {"isDefault", element.isDefault},
            {"frame", jsonFrame(onScreen(window, element.frame))},
            {"visible", element.isVisible}};
}

// Frame, texts and controls.
QJsonObject contentsOf(const NSWindow& window) {
    QJsonArray texts;
    QJsonArray controls;
    for (const AccessibilityElement& element : elementsOf(window)) {
        for (const std::string& text : element.texts) texts.append(jsonText(std::string_view(text)));
        if (const char* role = roleOf(element)) controls.append(controlOf(window, element, role));
    }
    return {{"frame", jsonFrame(window.frame())}, {"texts", texts}, {"controls", controls}};
}

QJsonObject windowOf(const NSWindow& window) {
    QJsonObject object = contentsOf(window);
    object.insert("title", jsonText(std::string_view(window.settings().title)));
    object.insert("number", static_cast<double>(window.windowNumber()));
    object.insert("key", window.isKeyWindow());
    object.insert("style", static_cast<double>(window.settings().styleMask));
    return object;
}

// Of these processes, on screen, front to back.
std::vector<NSWindow*> ordinaryWindows(const Session& session, std::initializer_list<std::int32_t> owners) {
    std::vector<NSWindow*> windows;
    for (const desk::ServerWindow* shown : session.machine.windows.onScreen()) {
        const bool isOrdinary = shown->window != nullptr && !shown->window->settings().isPanel;
        if (isOrdinary && std::find(owners.begin(), owners.end(), shown->owner) != owners.end())
            windows.push_back(shown->window);
    }
    return windows;
}

std::int32_t applicationsProcess(const Session& session) {
    const auto* application = session.application();
    return application == nullptr ? 0 : application->processIdentifier();
}

std::vector<NSWindow*> reachableWindows(const Session& session) {
    return ordinaryWindows(session, {applicationsProcess(session), session.machine.systemSettings.processIdentifier()});
}

}  // namespace

NSWindow* ordinaryWindow(const Session& session, std::string_view title) {
    const auto windows = reachableWindows(session);
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [&](const NSWindow* each) { return each->settings().title == title; });
    return found == windows.end() ? nullptr : *found;
}

QJsonArray windowsOf(const Session& session) {
    QJsonArray list;
    for (const NSWindow* window : ordinaryWindows(session, {applicationsProcess(session)}))
        list.append(windowOf(*window));
    return list;
}

QJsonValue systemSettingsOf(const desk::Machine& machine) {
    constexpr const char* panes[] = {"accessibility", "automation", "loginItems"};
    const desk::SettingsProgram* program = machine.systemSettings.program();
    const NSWindow* window = program == nullptr ? nullptr : program->shownWindow();
    if (window == nullptr) return {};
    QJsonObject object = contentsOf(*window);
    object.insert("pane", panes[static_cast<int>(program->pane())]);
    return object;
}

std::optional<platform::CGPoint> controlLabelled(const Session& session, std::string_view label) {
    const auto windows = reachableWindows(session);
    if (windows.empty()) return std::nullopt;
    for (const AccessibilityElement& element : elementsOf(*windows.front())) {
        const bool hasText = std::find(element.texts.begin(), element.texts.end(), label) != element.texts.end();
        if (roleOf(element) == nullptr || !element.isVisible || (element.label != label && !hasText)) continue;
        const CGRect frame = onScreen(*windows.front(), element.seen);
        return platform::CGPoint{frame.midX(), frame.midY()};
    }
    return std::nullopt;
}

}  // namespace play
