#include "desk/processes/LaunchedApplication.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace desk {

namespace {

// Command-Q, in whatever application.
bool isQuitKey(const platform::NSEvent& event) {
    namespace Flags = platform::NSEventModifierFlags;
    constexpr std::uint64_t meaningful = Flags::command | Flags::shift | Flags::option | Flags::control;
    return event.type == platform::NSEventType::keyDown && (event.modifierFlags & meaningful) == Flags::command &&
           event.charactersIgnoringModifiers == "q";
}

}  // namespace

LaunchedApplication::LaunchedApplication(Scheduler& scheduler, Bundle theBundle, std::int32_t theProcessIdentifier,
                                         const BackendFactory& makeBackend)
    : launchedBundle(std::move(theBundle)),
      pid(theProcessIdentifier),
      runLoop(std::make_unique<ApplicationLoop>(
          scheduler, [this](const platform::NSEvent& event) { sendEvent(inItsWindow(event)); })),
      backend(makeBackend(*this)) {}

// What is posted may hold on to the program, the program to what is shared, and both to the ports.
LaunchedApplication::~LaunchedApplication() {
    dead = true;
    runLoop->shutDown();
    runningProgram.reset();
    backend->dropShared();
}

void LaunchedApplication::start(const ProgramFactory& factory) {
    ++callDepth;
    runningProgram = factory(platform());
    --callDepth;
    runLoop->mainAsync([this] {
        runningProgram->delegate().applicationWillFinishLaunching();
        if (!dead) runningProgram->delegate().applicationDidFinishLaunching();
    });
}

void LaunchedApplication::terminate() {
    if (dead) return;
    const bool agreed = !runningProgram || runningProgram->delegate().applicationShouldTerminate() ==
                                               platform::NSApplicationTerminateReply::terminateNow;
    backend->answeredTermination(agreed);
    if (agreed) die();
}

void LaunchedApplication::end(Ending how) {
    if (dead) return;
    if (how == Ending::forced)
        die();
    else
        runLoop->mainAsync([this] { terminate(); });
}

void LaunchedApplication::die() {
    dead = true;
    runLoop->shutDown();
    backend->processEnded();
}

platform::NSEvent LaunchedApplication::inItsWindow(platform::NSEvent event) {
    if (event.window == nullptr) return event;
    const platform::CGPoint origin = event.window->frame().origin;
    event.locationInWindow = {event.locationInWindow.x - origin.x, event.locationInWindow.y - origin.y};
    return event;
}

platform::NSWindow* LaunchedApplication::keyWindow() const {
    const auto found = std::find_if(ownWindows.begin(), ownWindows.end(),
                                    [](const auto& entry) { return entry.second->isKeyWindow(); });
    return found == ownWindows.end() ? nullptr : found->second;
}

void LaunchedApplication::sendEvent(platform::NSEvent event) {
    if (platform::isKeyEvent(event.type)) event.window = keyWindow();
    const auto keepAlive = event.window == nullptr ? nullptr : event.window->weak_from_this().lock();
    const auto answered = backend->runLocalMonitors(event);
    if (dead || !answered) return;
    if (isQuitKey(*answered)) return terminate();
    if (answered->window != nullptr) answered->window->sendEvent(*answered);
}

void LaunchedApplication::offerToGlobalMonitors(const platform::NSEvent& event) {
    if (dead || !backend->hasGlobalMonitorFor(event.type)) return;
    runLoop->mainAsync([this, event] { backend->runGlobalMonitors(event); });
}

void LaunchedApplication::postWorkspaceNotification(platform::WorkspaceNotification notification) {
    if (!dead) runLoop->mainAsync([this, notification] { backend->notify(notification); });
}

platform::NSWindow* LaunchedApplication::window(std::int64_t number) {
    const auto entry = ownWindows.find(number);
    return entry == ownWindows.end() ? nullptr : entry->second;
}

}  // namespace desk
