// Laying out a tree of 40 nodes anew after a change: making the items, measuring and placing. Text is measured by a
// table in the text system.
#include <benchmark/benchmark.h>

#include "tests/kit/FixedText.h"
#include "views/LayoutPass.h"
#include "views/Views.h"

namespace {

using namespace views;

// Seven nodes: stack, button, text, menu, symbol and the frames around the last two.
View unit(std::size_t index) {
    return HStack({.spacing = 0},
                  Button({}, Text("Documents").padding({.leading = 4, .trailing = 2}).frame({.maxHeight = infinity})),
                  Menu({}, Image("chevron.right").frame({.width = 22})).fixedSize(true, false))
        .layoutPriority(static_cast<double>(index + 1));
}

View tree() {
    return ZStack({}, View(Color::of(ColorRole::clear)),
                  HStack({.spacing = 0}, Text("Brand").frame({.width = 100, .height = 32}), Rectangle(),
                         HStack({.spacing = 0}, unit(0), unit(1), unit(2), unit(3)),
                         Image("gear").frame({.width = 30, .height = 28})));
}

void Layout40(benchmark::State& state) {
    kit::FixedText text;
    View root = tree();
    Layout layout;
    for (auto _ : state) {
        LayoutPass pass(
            text, [](View&, const LayoutPass::Declaration&) {}, layout);
        pass.layOut(root, {800, 44});
        benchmark::DoNotOptimize(layout.items.data());
    }
    state.counters["nodes"] = static_cast<double>(layout.items.size());
}
BENCHMARK(Layout40)->Name("Layout/40");

}  // namespace
