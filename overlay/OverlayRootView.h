// The content of one panel: the bar, once there is a window to show, and the one place where a bar's action becomes a
// call to Finder, the clipboard, Terminal or the editor, and where a failure of it becomes the bar's message. It has no
// look of its own. Its actions block the main thread until Finder has answered.
#pragma once

#include <memory>
#include <string>

#include "actions/ClipboardService.h"
#include "actions/FinderNavigationService.h"
#include "actions/TerminalService.h"
#include "actions/VSCodeService.h"
#include "overlay/FinderOverlayViewModel.h"
#include "pathbar/PathBarView.h"
#include "views/Views.h"

namespace brindle {

class OverlayRootView {
public:
    OverlayRootView(platform::Platform& thePlatform, std::shared_ptr<FinderOverlayViewModel> theViewModel,
                    std::shared_ptr<FinderNavigationService> theNavigationService,
                    std::shared_ptr<ClipboardService> theClipboardService,
                    std::shared_ptr<TerminalService> theTerminalService,
                    std::shared_ptr<VSCodeService> theVSCodeService);

    void connect(views::Context& context) { context.connect(observedModel); }
    views::View body() const;

    // The bar for this state, all its callbacks connected; they act on the state as handed over here, and need this
    // view.
    PathBarView pathBar(const FinderWindowState& windowState) const;

private:
    void commitPath() const;
    // False when Finder couldn't be made to; the bar then says why.
    bool navigate(const std::string& path) const;
    void openNewWindow(const std::string& path) const;
    void openInVSCode(const std::string& path) const;
    template <typename Action>
    bool showingFailure(Action action) const;

    platform::Platform& platform;
    std::shared_ptr<FinderOverlayViewModel> viewModel;
    views::ObservedObject<FinderOverlayViewModel> observedModel;
    std::shared_ptr<FinderNavigationService> navigationService;
    std::shared_ptr<ClipboardService> clipboardService;
    std::shared_ptr<TerminalService> terminalService;
    std::shared_ptr<VSCodeService> vscodeService;
};

}  // namespace brindle
