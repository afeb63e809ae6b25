// A pass of the observer over N windows with nothing new, and a live-geometry update. The time of a pass is told without the platform's own calls, which
// are made once more by themselves and taken off; the counters tell both.
#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "overlay/FinderOverlayCoordinator.h"
#include "tests/kit/Allocations.h"
#include "tests/kit/Desk.h"
#include "tracking/FinderObserver.h"

namespace {

using namespace brindle;

struct NoDelegate final : desk::Program, platform::NSApplicationDelegate {
    platform::NSApplicationDelegate& delegate() override { return *this; }
    void applicationWillFinishLaunching() override {}
    void applicationDidFinishLaunching() override {}
    platform::NSApplicationTerminateReply applicationShouldTerminate() override {
        return platform::NSApplicationTerminateReply::terminateNow;
    }
};

// Takes the monitors' handlers, so that an event can be given to them without the machine's routing.
struct DirectEvents final : platform::Events {
    struct Monitor {
        platform::NSEventMask mask;
        std::function<void(const platform::NSEvent&)> handler;
    };
    std::vector<Monitor> monitors;
    platform::CGPoint mouse;

    platform::Token addGlobalMonitorForEventsMatchingMask(
        platform::NSEventMask mask, std::function<void(const platform::NSEvent&)> handler) override {
        monitors.push_back({mask, std::move(handler)});
        return platform::Token([] {});
    }
    platform::Token addLocalMonitorForEventsMatchingMask(
        platform::NSEventMask /*mask*/,
        std::function<std::optional<platform::NSEvent>(const platform::NSEvent&)> /*handler*/) override {
        return {};
    }
    platform::CGPoint mouseLocation() override { return mouse; }

    void give(platform::NSEventType type, platform::CGPoint point) {
        mouse = point;
        platform::NSEvent event;
        event.type = type;
        for (const Monitor& monitor : monitors)
            if ((monitor.mask & platform::maskOf(type)) != 0) monitor.handler(event);
    }
};

struct Stage {
    explicit Stage(int windows) {
        for (int index = 0; index < windows; ++index) {
            const std::string path = "/Users/ana/Work/Folder " + std::to_string(index);
            desk.machine.disk.makeFolder(path);
            const double shift = index % 300;
            desk.machine.finder.open(path, platform::CGRectMake(10 + shift, 50 + shift, 700, 400));
        }
        application =
            &desk.machine.applications.launch(desk::bundleAt(desk.machine.disk, "/Applications/Orvane.app"),
                                              [](platform::Platform&) { return std::make_unique<NoDelegate>(); });
        desk.machine.settle();
    }

    std::shared_ptr<FinderObserver> observerOn(platform::Platform& platform) {
        auto observer = std::make_shared<FinderObserver>(platform, std::make_shared<AccessibilityManager>(platform),
                                                         std::make_shared<FinderWindowTracker>(platform),
                                                         std::make_shared<FinderPathProvider>(platform));
        observer->refresh(true);
        desk.machine.settle();
        return observer;
    }

    kit::Desk desk;
    desk::LaunchedApplication* application = nullptr;
};

platform::Platform withEvents(const platform::Platform& original, platform::Events& events,
                              platform::SharedSlots& slots) {
    return {original.clock,
            original.dispatch,
            original.runLoop,
            original.workspace,
            original.screens,
            original.appearance,
            original.windowServer,
            original.accessibility,
            original.appleEvents,
            events,
            original.application,
            original.windows,
            original.menus,
            original.text,
            original.images,
            original.textBoundaries,
            original.collation,
            original.files,
            original.defaults,
            original.bundle,
            original.calendar,
            original.loginItem,
            original.analytics,
            original.pasteboard,
            original.uuids,
            original.updaters,
            slots};
}

// The calls that a pass makes, in its order.
void callPlatform(platform::Platform& platform) {
    constexpr const char* attributes[] = {"AXRole", "AXSubrole", "AXMinimized", "AXPosition",
                                          "AXSize", "AXTitle",   "AXMain",      "AXFullScreen"};
    benchmark::DoNotOptimize(platform.accessibility.AXIsProcessTrusted());
    benchmark::DoNotOptimize(platform.workspace.frontmostApplication());
    const auto applications = platform.workspace.runningApplications();
    benchmark::DoNotOptimize(platform.workspace.frontmostApplication());
    const auto finder = platform.accessibility.AXUIElementCreateApplication(applications.front().processIdentifier);
    const auto windows = platform.accessibility.AXUIElementCopyAttributeValue(finder, "AXWindows");
    for (const auto& window : std::get<std::vector<platform::AXUIElement>>(*windows))
        for (const char* attribute : attributes)
            benchmark::DoNotOptimize(platform.accessibility.AXUIElementCopyAttributeValue(window, attribute));
    benchmark::DoNotOptimize(platform.windowServer.CGWindowListCopyWindowInfo(17, 0));
}

double secondsOf(std::chrono::steady_clock::duration duration) {
    return std::chrono::duration<double>(duration).count();
}

void Pass(benchmark::State& state) {
    Stage stage(static_cast<int>(state.range(0)));
    platform::Platform& platform = stage.application->platform();
    const auto observer = stage.observerOn(platform);
    double whole = 0;
    double ofPlatform = 0;
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        observer->refresh(false);
        const auto middle = std::chrono::steady_clock::now();
        callPlatform(platform);
        const auto end = std::chrono::steady_clock::now();
        whole += secondsOf(middle - begin);
        ofPlatform += secondsOf(end - middle);
        state.SetIterationTime(std::max(0.0, secondsOf(middle - begin) - secondsOf(end - middle)));
    }
    const auto iterations = static_cast<double>(state.iterations());
    state.counters["published"] = static_cast<double>(observer->windows->size());
    state.counters["whole_us"] = whole / iterations * 1e6;
    state.counters["platform_us"] = ofPlatform / iterations * 1e6;
}
BENCHMARK(Pass)->Arg(1)->Arg(10)->Arg(100)->Arg(1000)->UseManualTime()->Unit(benchmark::kMicrosecond);

// From the handler of a mouse event to the panel's new frame.
void LiveGeometryUpdate(benchmark::State& state) {
    Stage stage(20);
    platform::Platform& original = stage.application->platform();
    DirectEvents events;
    platform::SharedSlots slots;
    platform::Platform platform = withEvents(original, events, slots);
    const auto observer = stage.observerOn(platform);
    const FinderOverlayCoordinator coordinator(platform, observer, std::make_shared<FinderNavigationService>(platform),
                                               std::make_shared<ClipboardService>(platform),
                                               std::make_shared<TerminalService>(platform),
                                               std::make_shared<VSCodeService>(platform));
    observer->start();
    stage.desk.machine.settle();

    const platform::CGRect frame = observer->activeWindow.get()->frame;
    const platform::CGPoint press{frame.minX() + 200, frame.maxY() - 10};
    events.give(platform::NSEventType::leftMouseDown, press);
    stage.desk.machine.finder.setFrame(observer->activeWindow.get()->windowNumber, platform::CGRectOffset(frame, 2, 0));
    events.give(platform::NSEventType::leftMouseDragged, {press.x + 2, press.y});
    if (observer->liveGeometryState() != FinderObserver::LiveGeometryState::predicting)
        state.SkipWithError("the drag wasn't followed");

    double x = press.x + 2;
    const std::int64_t before = kit::allocationsMade;
    for (auto _ : state) {
        x = x < 600 ? x + 1 : x - 400;
        events.give(platform::NSEventType::leftMouseDragged, {x, press.y});
    }
    state.counters["allocations"] = static_cast<double>(kit::allocationsMade - before);
}
BENCHMARK(LiveGeometryUpdate);

}  // namespace
