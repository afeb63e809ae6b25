#include "app/OrdinaryWindowController.h"

#include <utility>

namespace brindle {

OrdinaryWindowController::~OrdinaryWindowController() {
    if (window) window->setDelegate(nullptr);
}

void OrdinaryWindowController::show() {
    willShow();
    if (!window) makeWindow();
    rememberFrontmostApplication();
    window->center();
    platform.application.activate(true);
    window->makeKeyAndOrderFront();
}

void OrdinaryWindowController::makeWindow() {
    const Description described = description();
    window = std::make_shared<platform::NSWindow>(platform, platform::CGRect{{}, described.contentSize},
                                                  described.styleMask, platform::NSBackingStoreType::buffered, false);
    window->setTitle(described.title);
    if (described.minSize) window->setMinSize(*described.minSize);
    if (described.maxSize) window->setMaxSize(*described.maxSize);
    window->setReleasedWhenClosed(false);
    window->setAnimationBehavior(platform::NSWindowAnimationBehavior::documentWindow);
    window->setDelegate(this);
    window->setContentView(makeContentView());
}

void OrdinaryWindowController::rememberFrontmostApplication() {
    const auto frontmost = platform.workspace.frontmostApplication();
    const auto identifier = frontmost ? frontmost->bundleIdentifier : std::nullopt;
    if (identifier != platform.bundle.bundleIdentifier()) previouslyFrontmostApplication = frontmost;
}

void OrdinaryWindowController::windowWillClose() {
    if (const auto previous = std::exchange(previouslyFrontmostApplication, std::nullopt))
        previous->activateWithOptions(platform::NSApplicationActivationOptions::activateIgnoringOtherApps);
}

}  // namespace brindle
