#include "overlay/FinderOverlayWindowController.h"

#include <utility>

#include "overlay/FirstMouseHostingView.h"
#include "overlay/OverlayRootView.h"

namespace brindle {

FinderOverlayWindowController::FinderOverlayWindowController(platform::Platform& platform,
                                                             std::shared_ptr<FinderNavigationService> navigationService,
                                                             std::shared_ptr<ClipboardService> clipboardService,
                                                             std::shared_ptr<TerminalService> terminalService,
                                                             std::shared_ptr<VSCodeService> vscodeService)
    : windowInteractionService(std::make_shared<FinderWindowInteractionService>(platform)),
      panel(std::make_shared<FinderOverlayPanel>(platform)),
      viewModel(std::make_shared<FinderOverlayViewModel>()) {
    viewModel->onBeginEditing = [weakPanel = std::weak_ptr(panel)] {
        if (const auto held = weakPanel.lock()) held->makeKeyAndOrderFront();
    };
    connectPanel();
    panel->setContentView(std::make_unique<FirstMouseHostingView<OverlayRootView>>(
        platform, OverlayRootView(platform, viewModel, std::move(navigationService), std::move(clipboardService),
                                  std::move(terminalService), std::move(vscodeService))));
}

// The panel may outlive the controller and the view model in the middle of a drag. The service is held, so that a drag
// that has begun ends in order.
void FinderOverlayWindowController::connectPanel() {
    const std::weak_ptr<FinderOverlayViewModel> weakModel = viewModel;
    const auto currentState = [weakModel]() -> std::optional<FinderWindowState> {
        const auto model = weakModel.lock();
        return model ? model->windowState.get() : std::nullopt;
    };
    const auto service = windowInteractionService;

    panel->onInteraction = [currentState, service] {
        if (const auto state = currentState()) service->raise(*state);
    };
    panel->onDragBegan = [currentState, service](const platform::CGRect& panelFrame, platform::CGPoint mousePosition) {
        const auto state = currentState();
        return state && service->beginDrag(*state, panelFrame, mousePosition);
    };
    panel->onDragChanged = [service](platform::CGPoint mousePosition) { service->updateDrag(mousePosition); };
    panel->onDragEnded = [service] { service->endDrag(); };
    panel->onDragStateChanged = lifetime.guard([this](bool dragging) { isDragging = dragging; });
}

}  // namespace brindle
