#include "app/AboutWindowController.h"

#include "app/AboutView.h"
#include "views/HostingView.h"

namespace brindle {

std::unique_ptr<platform::ContentView> AboutWindowController::makeContentView() {
    return std::make_unique<views::NSHostingView<AboutView>>(platform, AboutView(platform));
}

OrdinaryWindowController::Description AboutWindowController::description() const {
    using namespace platform::NSWindowStyleMask;
    return {"About Orvane", {380, 390}, titled | closable};
}

}  // namespace brindle
