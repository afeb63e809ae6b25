#include "overlay/OverlayRootView.h"

#include <utility>

namespace brindle {

OverlayRootView::OverlayRootView(platform::Platform& thePlatform, std::shared_ptr<FinderOverlayViewModel> theViewModel,
                                 std::shared_ptr<FinderNavigationService> theNavigationService,
                                 std::shared_ptr<ClipboardService> theClipboardService,
                                 std::shared_ptr<TerminalService> theTerminalService,
                                 std::shared_ptr<VSCodeService> theVSCodeService)
    : platform(thePlatform),
      viewModel(std::move(theViewModel)),
      observedModel(*viewModel),
      navigationService(std::move(theNavigationService)),
      clipboardService(std::move(theClipboardService)),
      terminalService(std::move(theTerminalService)),
      vscodeService(std::move(theVSCodeService)) {}

views::View OverlayRootView::body() const {
    const auto& windowState = viewModel->windowState.get();
    return views::Group(windowState ? views::View(pathBar(*windowState)) : views::EmptyView())
        .frame({.maxWidth = views::infinity, .maxHeight = views::infinity});
}

PathBarView OverlayRootView::pathBar(const FinderWindowState& windowState) const {
    using views::Binding;
    PathBarView bar(platform, windowState, Binding<bool>::to(viewModel->isEditing),
                    Binding<std::string>::to(viewModel->inputText),
                    Binding<std::optional<std::string>>::to(viewModel->errorMessage));
    const auto state = std::make_shared<const FinderWindowState>(windowState);
    bar.beginEditing = [this] { viewModel->beginEditing(); };
    bar.commitPath = [this] { commitPath(); };
    bar.cancelEditing = [this] { viewModel->cancelEditing(); };
    bar.openPath = [this](const std::string& path) { navigate(path); };
    bar.copyFullPath = [this, state] { clipboardService->copy(state->selectedFilePath.value_or(state->path)); };
    bar.copyFolderName = [this, state] { clipboardService->copy(state->folderName()); };
    bar.openInTerminal = [this, state] { terminalService->open(state->path); };
    bar.openInNewWindow = [this, state] { openNewWindow(state->path); };
    bar.openInVSCode = [this, state] { openInVSCode(state->path); };
    return bar;
}

void OverlayRootView::commitPath() const {
    if (navigate(viewModel->inputText.get())) viewModel->cancelEditing();
}

bool OverlayRootView::navigate(const std::string& path) const {
    return showingFailure([&] { navigationService->navigateFrontWindow(path); });
}

void OverlayRootView::openNewWindow(const std::string& path) const {
    showingFailure([&] { navigationService->openNewWindow(path); });
}

void OverlayRootView::openInVSCode(const std::string& path) const {
    if (vscodeService->open(path)) return;
    viewModel->errorMessage.setIfChanged("Visual Studio Code could not be found.");
}

template <typename Action>
bool OverlayRootView::showingFailure(Action action) const {
    try {
        action();
        return true;
    } catch (const FinderNavigationError& error) {
        viewModel->errorMessage.setIfChanged(error.description());
        return false;
    }
}

}  // namespace brindle
