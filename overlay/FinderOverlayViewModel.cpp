#include "overlay/FinderOverlayViewModel.h"

namespace brindle {

namespace {

std::string editText(const std::optional<FinderWindowState>& state) {
    return state ? state->selectedFilePath.value_or(state->path) : std::string();
}

bool isSameWindow(const std::optional<FinderWindowState>& a, const std::optional<FinderWindowState>& b) {
    return a && b ? a->id == b->id : a.has_value() == b.has_value();
}

bool looksTheSame(const std::optional<FinderWindowState>& a, const std::optional<FinderWindowState>& b) {
    if (!isSameWindow(a, b)) return false;
    return !a || (a->path == b->path && a->displayName == b->displayName && a->selectedFilePath == b->selectedFilePath);
}

}  // namespace

void FinderOverlayViewModel::setWindowState(const std::optional<FinderWindowState>& state) {
    const bool isOtherWindow = !isSameWindow(windowState.get(), state);
    if (!looksTheSame(windowState.get(), state)) windowState.set(state);
    if (!isEditing.get()) inputText.setIfChanged(editText(state));
    if (isOtherWindow) cancelEditing();
}

void FinderOverlayViewModel::beginEditing() {
    if (!windowState.get()) return;
    inputText.setIfChanged(editText(windowState.get()));
    errorMessage.setIfChanged(std::nullopt);
    isEditing.setIfChanged(true);
    if (onBeginEditing) onBeginEditing();
}

void FinderOverlayViewModel::cancelEditing() {
    isEditing.setIfChanged(false);
    errorMessage.setIfChanged(std::nullopt);
    inputText.setIfChanged(editText(windowState.get()));
}

}  // namespace brindle
