#include "play/soak/TypingWatch.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "play/BarParts.h"
#include "play/Session.h"
#include "play/soak/Expectations.h"

namespace play {

namespace {

bool isOneOf(std::string_view line, std::initializer_list<std::string_view> verbs) {
    return std::any_of(verbs.begin(), verbs.end(),
                       [&](std::string_view verb) { return line.substr(0, verb.size()) == verb; });
}

const brindle::FinderOverlayCoordinator::Controllers* barsOf(const Session& session) {
    const auto* orvane = session.orvane();
    const auto* coordinator = orvane == nullptr ? nullptr : orvane->appDelegate.coordinator();
    return coordinator == nullptr ? nullptr : &coordinator->liveControllers();
}

}  // namespace

std::optional<Finding> TypingWatch::look(std::string_view line) {
    Fields now = fieldsNow();
    // What a hanging application was sent meanwhile reaches it with whatever ends its waiting.
    std::optional<Finding> finding;
    if (!now.isHanging && !before.isHanging) finding = compare(line, now);
    before = std::move(now);
    return finding;
}

TypingWatch::Fields TypingWatch::fieldsNow() const {
    Fields found;
    const auto* bars = barsOf(session);
    if (bars == nullptr) return found;
    found.isHanging = session.application()->isOnStack();
    for (const auto& [id, bar] : *bars) {
        if (bar->panel->isKeyWindow()) found.keyPanel = bar->panel->windowNumber();
        if (bar->viewModel->isEditing.get())
            found.open.emplace(bar->panel->windowNumber(), Typing{id, bar->viewModel->inputText.get()});
    }
    return found;
}

std::optional<Finding> TypingWatch::compare(std::string_view line, const Fields& now) const {
    const auto* bars = barsOf(session);
    // A press may be a click outside, and takes what it wants.
    if (bars == nullptr || isOneOf(line, {"mouse down", "click ", "drag "})) return std::nullopt;
    const bool isKey = isOneOf(line, {"key ", "type ", "mouse up"});
    for (const auto& [panel, typing] : before.open) {
        if (isKey && (panel == before.keyPanel || panel == now.keyPanel)) continue;
        const auto bar = bars->find(typing.id);
        if (bar == bars->end() || bar->second->panel->windowNumber() != panel) continue;
        const auto still = now.open.find(panel);
        if (still != now.open.end() && still->second.text == typing.text) continue;
        return Finding{"typing",
                       "\"" + std::string(line) + "\" took what was typed into the bar of " + typing.id + ": " +
                           typing.text,
                       {expectField("panels", indexOfPanel(session, panel), "inputText") + jsonOf(typing.text)}};
    }
    return std::nullopt;
}

}  // namespace play
