#include "app/OrvaneMenuView.h"

namespace brindle {

using namespace views;

View OrvaneMenuView::body() const {
    return Group(Text(accessibilityManager->isTrusted.get() ? "Orvane is running."
                                                            : "Accessibility permission is required."),
                 Divider(), updateRow(), Button("Permission…", showPermissionGuide), Button("Settings…", showSettings),
                 Button("About Orvane", showAbout), Divider(), Button("Quit Orvane", quit))
        .task([this] {
            accessibilityManager->refresh();
            return Task();
        });
}

View OrvaneMenuView::updateRow() const {
    const auto& version = updateManager->availableVersion.get();
    return Button(version ? "Update Available: v" + *version + "…" : "Check for Updates…",
                  [this] { updateManager->updaterController().checkForUpdates(); })
        .disabled(!updateManager->canCheckForUpdates.get());
}

}  // namespace brindle
