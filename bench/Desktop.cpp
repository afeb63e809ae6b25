// The whole desktop as one picture: twenty Finder windows with their bars.
#include <benchmark/benchmark.h>

#include "desk/display/GuiApplication.h"
#include "play/Session.h"

namespace {

constexpr int windowCount = 20;

void openWindows(play::Session& session) {
    for (int i = 0; i < windowCount; ++i) {
        const double shift = 20.0 * i;
        session.machine.finder.open("/Users/ana/Documents",
                                    platform::CGRectMake(40 + shift, 300 - shift / 2, 800, 450));
    }
    session.launch(play::installedCopy);
    session.machine.settle();
    session.machine.advance(platform::seconds(2));
}

// Argument: pixels a point.
void Desktop_Compose(benchmark::State& state) {
    const desk::GuiApplication gui;
    play::Session session;
    openWindows(session);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            session.compositor.compose(session.desktop.read(), static_cast<double>(state.range(0))));
}
BENCHMARK(Desktop_Compose)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace
