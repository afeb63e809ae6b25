// From nothing to the first bar, and what one bar takes of memory.
#include <benchmark/benchmark.h>

#include "desk/display/GuiApplication.h"
#include "play/Session.h"
#include "tests/kit/Allocations.h"

namespace {

// A machine, a Finder window, the launch, and the bar above the window.
void Start_FirstBar(benchmark::State& state) {
    const desk::GuiApplication gui;
    for (auto _ : state) {
        play::Session session;
        session.machine.finder.open("/Users/ana/Documents");
        session.launch(play::installedCopy);
        session.machine.settle();
        if (session.orvane()->appDelegate.coordinator()->liveControllers().size() != 1)
            state.SkipWithError("there is no bar");
    }
}
BENCHMARK(Start_FirstBar)->Unit(benchmark::kMillisecond);

// The same machine with and without the application shows what its windows alone cost.
std::int64_t bytesOfWindows(bool isLaunched, int windows) {
    play::Session session;
    if (isLaunched) session.launch(play::installedCopy);
    session.machine.finder.open("/Users/ana/Documents");
    session.machine.settle();
    const std::int64_t before = kit::bytesAlive;
    for (int index = 0; index < windows; ++index) session.machine.finder.open("/Users/ana/Documents");
    session.machine.advance(platform::seconds(5));
    return kit::bytesAlive - before;
}

void Bar_Memory(benchmark::State& state) {
    const desk::GuiApplication gui;
    constexpr int windows = 50;
    std::int64_t bytes = 0;
    for (auto _ : state) bytes = bytesOfWindows(true, windows) - bytesOfWindows(false, windows);
    state.counters["bytes_of_one_bar"] = static_cast<double>(bytes) / windows;
}
BENCHMARK(Bar_Memory)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
