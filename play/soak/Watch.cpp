#include "play/soak/Watch.h"

#include <algorithm>
#include <utility>

#include "play/BarParts.h"
#include "play/Json.h"
#include "play/Session.h"
#include "play/soak/Lines.h"
#include "tracking/FinderObserver.h"

namespace play {

namespace {

const brindle::FinderOverlayCoordinator* coordinatorOf(const Session& session) {
    const auto* orvane = session.orvane();
    return orvane == nullptr ? nullptr : orvane->appDelegate.coordinator();
}

bool isInput(std::string_view line) {
    constexpr std::string_view verbs[] = {"mouse ", "click ", "drag ", "key ", "type "};
    return std::any_of(std::begin(verbs), std::end(verbs),
                       [&](std::string_view verb) { return line.substr(0, verb.size()) == verb; });
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

Watch::Watch(Session& theSession)
    : session(theSession), subscription(theSession.machine.windows.changed.subscribe([this] { stackChanged(); })) {}

std::optional<Finding> Watch::look(std::string_view line) {
    ++lines;
    notePublished();
    noteHands();
    noteTriggers();
    auto now = typingNow();
    const auto* application = session.application();
    const bool isOnStack = application != nullptr && application->isOnStack();
    // What a hanging application was sent meanwhile reaches it with whatever ends its waiting.
    std::optional<Finding> finding;
    if (!isInput(line) && !isOnStack && !wasOnStack) finding = lookAtTyping(line, now);
    typing = std::move(now);
    wasOnStack = isOnStack;
    return finding;
}

Watch::TypingByPanel Watch::typingNow() const {
    TypingByPanel now;
    if (const auto* coordinator = coordinatorOf(session))
        for (const auto& [id, controller] : coordinator->liveControllers())
            if (controller->viewModel->isEditing.get())
                now.emplace(controller->panel->windowNumber(), Typing{id, controller->viewModel->inputText.get()});
    return now;
}

std::optional<Finding> Watch::lookAtTyping(std::string_view line, const TypingByPanel& now) const {
    const auto* coordinator = coordinatorOf(session);
    for (const auto& [panel, before] : typing) {
        if (coordinator == nullptr || !coordinator->liveControllers().contains(before.id)) continue;
        if (panelNumber(session, std::stoll(before.id.substr(before.id.find('-') + 1))) != panel) continue;
        const auto still = now.find(panel);
        if (still != now.end() && still->second.text == before.text) continue;
        return Finding{"typing",
                       "\"" + std::string(line) + "\" took what was typed into the bar of " + before.id + ": " +
                           before.text,
                       {}};
    }
    return std::nullopt;
}

void Watch::noteHands() {
    const auto* coordinator = coordinatorOf(session);
    if (coordinator == nullptr) return;
    const auto& observer = session.orvane()->appDelegate.finderObserver();
    for (const auto& [id, controller] : coordinator->liveControllers())
        if (controller->isDragging) lastByHand[id] = lines;
    if (observer.liveGeometryState() != brindle::FinderObserver::LiveGeometryState::idle && observer.activeWindow.get())
        lastByHand[observer.activeWindow.get()->id] = lines;
}

void Watch::notePublished() {
    const auto* orvane = session.orvane();
    if (orvane == nullptr) return;
    const auto& now = orvane->appDelegate.finderObserver().windows.get();
    if (now == published) return;
    published = now;
    lastPublication = lines;
}

bool Watch::mayStandApart(const std::string& id) const {
    const auto found = lastByHand.find(id);
    return found != lastByHand.end() && found->second + 1 >= lastPublication;
}

bool Watch::mayStandOutOfOrder(const std::string& id) const {
    const auto found = fallen.find(id);
    return found != fallen.end() && found->second.byOtherWindows && found->second.triggers == triggersOf(id);
}

Watch::OrderingTriggers Watch::triggersOf(const std::string& id) const {
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

void Watch::noteTriggers() {
    for (auto& [id, fall] : fallen)
        if (!(fall.triggers == triggersOf(id))) fall.byOtherWindows = false;
}

// All of its windows in front of everything else at their level: a bar of an inactive window stands between them otherwise.
bool Watch::finderStandsInFront() const {
    const auto shown = session.machine.windows.onScreen();
    const auto isFinders = [&](const auto* window) { return window->owner == session.machine.finder.pid(); };
    const auto begin = std::find_if(shown.begin(), shown.end(), [](const auto* window) { return window->level == 0; });
    const auto end = std::find_if_not(begin, shown.end(), isFinders);
    return end - begin > 1 && std::none_of(end, shown.end(), isFinders);
}

void Watch::stackChanged() {
    std::vector<std::int64_t> others;
    for (const auto* window : session.machine.windows.onScreen())
        if (window->window == nullptr) others.push_back(window->number);
    const bool othersMoved = std::exchange(otherWindows, others) != others || finderStandsInFront();
    const auto wrong = barsOutOfOrder(session);
    std::erase_if(fallen,
                  [&](const auto& entry) { return std::find(wrong.begin(), wrong.end(), entry.first) == wrong.end(); });
    for (const std::string& id : wrong)
        if (!fallen.contains(id)) fallen.emplace(id, Fallen{triggersOf(id), othersMoved});
}

}  // namespace play
