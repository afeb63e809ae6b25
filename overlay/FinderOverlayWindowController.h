// One overlay: its panel, the state of its bar, and the service that steers its Finder window, connected with each
// other. The coordinator makes one for each published window and drops it with the window, which may happen while the
// panel is tracking a drag. It decides nothing about place and order.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "actions/ClipboardService.h"
#include "actions/FinderNavigationService.h"
#include "actions/TerminalService.h"
#include "actions/VSCodeService.h"
#include "overlay/FinderOverlayPanel.h"
#include "overlay/FinderOverlayViewModel.h"
#include "overlay/FinderWindowInteractionService.h"
#include "platform/Lifetime.h"
#include "platform/Platform.h"

namespace brindle {

class FinderOverlayWindowController {
public:
    FinderOverlayWindowController(platform::Platform& platform,
                                  std::shared_ptr<FinderNavigationService> navigationService,
                                  std::shared_ptr<ClipboardService> clipboardService,
                                  std::shared_ptr<TerminalService> terminalService,
                                  std::shared_ptr<VSCodeService> vscodeService);
    FinderOverlayWindowController(const FinderOverlayWindowController&) = delete;
    FinderOverlayWindowController& operator=(const FinderOverlayWindowController&) = delete;

    const std::shared_ptr<FinderWindowInteractionService> windowInteractionService;
    const std::shared_ptr<FinderOverlayPanel> panel;
    const std::shared_ptr<FinderOverlayViewModel> viewModel;

    bool isDragging = false;
    // As of the coordinator's last pass; empty before the first.
    std::optional<std::int64_t> parentWindowNumber;
    std::optional<std::int64_t> parentZIndex;

private:
    void connectPanel();

    platform::Lifetime lifetime;
};

}  // namespace brindle
