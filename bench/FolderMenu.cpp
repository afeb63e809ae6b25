// The folders of a folder menu, listed and sorted, next to the bare reading of the same directory.
#include <dirent.h>

#include <string>

#include <benchmark/benchmark.h>

#include "pathbar/ChildFolders.h"
#include "tests/desk/Probe.h"

namespace {

constexpr const char* folder = "/Users/ana/Many";

void makeFolders(desk::Disk& disk, std::int64_t count) {
    for (std::int64_t number = 0; number < count; ++number)
        disk.makeFolder(std::string(folder) + "/Folder " + std::to_string(number * 7919 % count) + " of the year");
}

void FolderMenu(benchmark::State& state) {
    kit::Desk desk;
    makeFolders(desk.machine.disk, state.range(0));
    kit::Probe& program = kit::launchProbe(desk);
    const brindle::BreadcrumbItem item{folder, "Many", folder, false};
    std::size_t listed = 0;
    for (auto _ : state) listed = brindle::childFolders(program.platform, item).size();
    state.counters["listed"] = static_cast<double>(listed);
}
BENCHMARK(FolderMenu)->Arg(100)->Arg(300)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

void FolderMenu_ReaddirAlone(benchmark::State& state) {
    kit::Desk desk;
    makeFolders(desk.machine.disk, state.range(0));
    const std::string host = desk.machine.disk.hostPath(folder).value_or("");
    std::size_t read = 0;
    for (auto _ : state) {
        read = 0;
        DIR* directory = ::opendir(host.c_str());
        while (directory != nullptr && ::readdir(directory) != nullptr) ++read;
        if (directory != nullptr) ::closedir(directory);
    }
    state.counters["read"] = static_cast<double>(read);
}
BENCHMARK(FolderMenu_ReaddirAlone)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace
