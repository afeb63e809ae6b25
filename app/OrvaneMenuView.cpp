#include "app/OrvaneMenuView.h"

namespace brindle {

using namespace views;

View OrvaneMenuView::body() const {
    return Group(Text(accessibilityManager->isTrusted.get() ? "Orvane is running."
                                                            : "Accessibility permission is required."),
                 Divider(), Button("Permission…", showPermissionGuide), Button("Settings…", showSettings),
                 Button("About Orvane", showAbout), Divider(), Button("Quit Orvane", quit))
        .task([this] {
            accessibilityManager->refresh();
            return Task();
        });
}

}  // namespace brindle
