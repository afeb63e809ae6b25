#include "play/soak/Leeway.h"

#include <algorithm>
#include <utility>

#include "play/BarParts.h"
#include "play/Session.h"
#include "tracking/FinderObserver.h"
#include "tracking/RectangleMatching.h"

namespace play {

namespace {

// As near as this a bar finds the window that it raises.
constexpr double nearEnough = 40;

const brindle::FinderOverlayCoordinator* coordinatorOf(const Session& session) {
    const auto* orvane = session.orvane();
    return orvane == nullptr ? nullptr : orvane->appDelegate.coordinator();
}

std::size_t placeOf(const std::vector<const desk::ServerWindow*>& shown, std::int64_t number) {
    const auto found =
        std::find_if(shown.begin(), shown.end(), [&](const auto* window) { return window->number == number; });
    return static_cast<std::size_t>(found - shown.begin());
}

}  // namespace

std::vector<std::string> barsOutOfOrder(const Session& session) {
    std::vector<std::string> wrong;
    const auto* coordinator = coordinatorOf(session);
    if (coordinator == nullptr) return wrong;
    const auto shown = session.machine.windows.onScreen();
    for (const auto& [id, controller] : coordinator->liveControllers()) {
        if (controller->panel->level() != 0 || !controller->parentWindowNumber) continue;
        const std::size_t bar = placeOf(shown, controller->panel->windowNumber());
        const std::size_t window = placeOf(shown, *controller->parentWindowNumber);
        if (bar < shown.size() && window < shown.size() && bar + 1 != window) wrong.push_back(id);
    }
    return wrong;
}

Leeway::Leeway(Session& theSession) : session(theSession) {
    subscriptions.push_back(session.machine.windows.changed.subscribe([this] { stackChanged(); }));
}

void Leeway::look() {
    const bool wasPressed = std::exchange(isPressed, session.machine.pointer.isPressed(desk::MouseButton::left));
    if (isPressed && !wasPressed) frontAtPress = frontWindow();
    if (!isPressed) missedByPress.clear();
    if (coordinatorOf(session) == nullptr || listenedTo == coordinatorOf(session)) return;
    listenedTo = coordinatorOf(session);
    const auto& application = *session.orvane();
    auto& observer = const_cast<brindle::FinderObserver&>(application.appDelegate.finderObserver());
    const auto listen = [this](auto& value) {
        subscriptions.push_back(value.subscribe([this](const auto&) { published(); }));
    };
    listen(observer.windows);
    listen(observer.activeWindow);
    listen(observer.finderIsFrontmost);
    listen(observer.frontmostApplicationBundleIdentifier);
}

bool Leeway::mayStandOutOfOrder(const std::string& id) const {
    const auto fall = falls.find(id);
    return fall != falls.end() && fall->second.isInnocent;
}

// The coordinator has had its turn with what is published: it places and orders every bar that isn't being dragged.
void Leeway::published() {
    const auto* coordinator = coordinatorOf(session);
    if (coordinator == nullptr) return;
    const auto& bars = coordinator->liveControllers();
    const auto isDragged = [&](const std::string& id) {
        const auto bar = bars.find(id);
        return bar != bars.end() && bar->second->isDragging;
    };
    std::erase_if(dragged, [&](const std::string& id) { return !isDragged(id); });
    followed.clear();
    leftBehind.clear();
    for (auto& [id, fall] : falls) {
        auto triggers = triggersOf(id);
        if (fall.triggers == triggers) continue;
        fall.triggers = std::move(triggers);
        if (!isDragged(id)) fall.isInnocent = false;
    }
}

void Leeway::stackChanged() {
    notePress();
    noteMoves();
    noteFalls();
}

// A bar that takes another window for its own brings that one forward, and a pass may move it before the release, so that it is no longer where the bar looked.
void Leeway::notePress() {
    const auto* coordinator = coordinatorOf(session);
    if (coordinator == nullptr || !session.machine.pointer.isPressed(desk::MouseButton::left)) return;
    const platform::CGPoint mouse = session.machine.pointer.location;
    for (const auto& [id, bar] : coordinator->liveControllers())
        if (platform::CGRectContainsPoint(bar->panel->frame(), mouse) && clickMissesWindow(*bar))
            missedByPress.insert(id);
}

void Leeway::noteMoves() {
    const auto* coordinator = coordinatorOf(session);
    if (coordinator == nullptr) return;
    for (const auto& [id, controller] : coordinator->liveControllers()) {
        if (controller->isDragging) dragged.insert(id);
        const auto* bar = session.machine.windows.find(controller->panel->windowNumber());
        const auto* window = session.machine.windows.find(controller->parentWindowNumber.value_or(0));
        if (bar != nullptr && window != nullptr && bar->space != window->space) leftBehind.insert(id);
    }
    const auto& observer = session.orvane()->appDelegate.finderObserver();
    if (observer.liveGeometryState() != brindle::FinderObserver::LiveGeometryState::idle && observer.activeWindow.get())
        followed.insert(observer.activeWindow.get()->id);
}

void Leeway::noteFalls() {
    std::vector<std::int64_t> others;
    for (const auto* window : session.machine.windows.onScreen())
        if (window->window == nullptr) others.push_back(window->number);
    otherWindowsMoved = std::exchange(otherWindows, others) != others;
    const auto wrong = barsOutOfOrder(session);
    std::erase_if(falls,
                  [&](const auto& entry) { return std::find(wrong.begin(), wrong.end(), entry.first) == wrong.end(); });
    for (const std::string& id : wrong)
        if (!falls.contains(id)) falls.emplace(id, Fall{triggersOf(id), isInnocent(id)});
}

bool Leeway::isInnocent(const std::string& id) const {
    const auto& bar = *coordinatorOf(session)->liveControllers().at(id);
    // A field that has not had the keyboard yet asks for it, even while it closes. If its bar has lost the keyboard by then, the bar comes forward.
    const bool fieldAsks = bar.panel->firstResponder() == nullptr && showsPathField(session, bar.panel->windowNumber());
    return otherWindowsMoved || fieldAsks || hasComeForward(*bar.parentWindowNumber) || bar.isDragging ||
           (bar.viewModel->isEditing.get() &&
            (missedByPress.contains(id) || clickMissesWindow(bar) || wasOvertakenSincePress(*bar.parentWindowNumber)));
}

// The press brings the window forward, the release opens the field and brings the bar forward.
bool Leeway::wasOvertakenSincePress(std::int64_t window) const {
    return frontAtPress == window && frontWindow() != window;
}

std::int64_t Leeway::frontWindow() const {
    for (const auto* shown : session.machine.windows.onScreen())
        if (shown->level == 0 && shown->window == nullptr) return shown->number;
    return 0;
}

// A window that was in front of all others but its bar, and is raised all the same.
bool Leeway::hasComeForward(std::int64_t window) const {
    const auto shown = session.machine.windows.onScreen();
    const auto front = std::find_if(shown.begin(), shown.end(), [](const auto* each) { return each->level == 0; });
    const auto behind =
        std::find_if(front, shown.end(), [&](const auto* each) { return each->owner != session.machine.finder.pid(); });
    return std::any_of(front, behind, [&](const auto* each) { return each->number == window; });
}

// Opening the path field brings the bar forward, and the window with it where the bar finds it: by the frame that it had when something shown last changed.
bool Leeway::clickMissesWindow(const brindle::FinderOverlayWindowController& bar) const {
    const desk::Machine& machine = session.machine;
    const auto* own = machine.windows.find(bar.parentWindowNumber.value_or(0));
    const auto& state = bar.viewModel->windowState.get();
    if (own == nullptr || !state) return false;
    // Without a screen there are no coordinates to compare, and without trust nothing can be read.
    if (machine.displays.options().empty() || !machine.permissions.accessibility) return true;
    for (const char* attribute : {"AXWindows", "AXRole", "AXMinimized", "AXPosition", "AXSize"})
        if (machine.faults.accessibilityFault(attribute, own->number) != desk::ReadFault::none) return true;
    const double distance = brindle::frameDistance(own->frame, state->frame);
    const auto fitsAsWell = [&](const desk::FinderWindow* window) {
        const auto* other = machine.windows.find(window->number);
        return other != own && brindle::frameDistance(other->frame, state->frame) <= distance;
    };
    const auto windows = machine.finder.windows();
    return distance >= nearEnough || std::any_of(windows.begin(), windows.end(), fitsAsWell);
}

Leeway::OrderingTriggers Leeway::triggersOf(const std::string& id) const {
    OrderingTriggers triggers;
    const auto* orvane = session.orvane();
    if (orvane == nullptr) return triggers;
    const auto& observer = orvane->appDelegate.finderObserver();
    for (const auto& state : observer.windows.get())
        if (state.id == id) triggers.zIndex = state.zIndex;
    if (observer.activeWindow.get()) triggers.activeWindow = observer.activeWindow.get()->id;
    triggers.frontmost = observer.frontmostApplicationBundleIdentifier.get();
    return triggers;
}

}  // namespace play
