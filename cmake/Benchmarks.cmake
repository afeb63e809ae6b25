# Every bench/X.cpp (or X_bench.cpp) is one executable bench_X. They measure and assert nothing, so ctest doesn't run them
# and only the target `benchmarks` builds them; the check-only tree reads them all the same.

find_package(benchmark QUIET)
if(NOT benchmark_FOUND)
    message(STATUS "Google Benchmark isn't installed: no benchmarks")
    return()
endif()

brindle_existing(bench_links test_kit app desk play)
file(GLOB benches CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/bench/*.cpp")
add_custom_target(benchmarks)
foreach(source IN LISTS benches)
    get_filename_component(name "${source}" NAME_WE)
    string(REGEX REPLACE "_bench$" "" name "${name}")
    add_executable(bench_${name} "${source}")
    target_include_directories(bench_${name} PRIVATE "${CMAKE_SOURCE_DIR}")
    target_link_libraries(bench_${name} PRIVATE ${bench_links} benchmark::benchmark_main)
    if(NOT BRINDLE_CHECK_ONLY)
        set_target_properties(bench_${name} PROPERTIES EXCLUDE_FROM_ALL ON)
    endif()
    add_dependencies(benchmarks bench_${name})
endforeach()
