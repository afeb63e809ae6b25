// A Finder window on a folder of 10 000 files: reading its list, looking at it again, selecting all of it.
#include <benchmark/benchmark.h>

#include <string>

#include "desk/finder/FinderBrowser.h"
#include "desk/finder/FinderContent.h"
#include "desk/text/IcuCollation.h"
#include "tests/kit/Desk.h"

namespace {

const std::string folder = "/Users/ana/Many";

class ManyFiles : public benchmark::Fixture {
public:
    void SetUp(benchmark::State& /*state*/) override {
        desk = std::make_unique<kit::Desk>();
        for (int number = 0; number < 10000; ++number)
            desk->machine.disk.makeFile(folder + "/File " + std::to_string(number * 7919 % 10000) + ".txt", "");
        desk->machine.finder.open(folder, platform::CGRectMake(0, 0, 800, 500));
    }
    void TearDown(benchmark::State& /*state*/) override { desk.reset(); }

    desk::FinderContent content() {
        desk::Finder& finder = desk->machine.finder;
        return desk::finderContent(finder.browser(), desk->machine.disk, *finder.find(101), desk::WindowLook::active,
                                   desk->machine.scheduler.now());
    }

    std::unique_ptr<kit::Desk> desk;
};

BENCHMARK_F(ManyFiles, Read)(benchmark::State& state) {
    desk::IcuCollation names;
    for (auto _ : state) {
        desk::FinderListing list;
        list.update(desk->machine.disk, names, folder);
        benchmark::DoNotOptimize(list.count());
    }
}

// What each picture of the desktop takes for such a window.
BENCHMARK_F(ManyFiles, Look)(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(content());
}

BENCHMARK_F(ManyFiles, LookWithAllSelected)(benchmark::State& state) {
    desk->machine.finder.browser().selectAll(101);
    for (auto _ : state) benchmark::DoNotOptimize(content());
}

BENCHMARK_F(ManyFiles, SelectAll)(benchmark::State& state) {
    for (auto _ : state) {
        desk->machine.finder.browser().selectNothing(101);
        desk->machine.finder.browser().selectAll(101);
    }
}

BENCHMARK_F(ManyFiles, TypeANameNearTheEnd)(benchmark::State& state) {
    for (auto _ : state) {
        desk->machine.finder.browser().type(101, "file 9998");
        desk->run(2);
    }
}

}  // namespace
