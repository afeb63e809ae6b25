# Every fuzz/X.cpp (or X_fuzz.cpp) is one libFuzzer target fuzz_X. The preset instruments the libraries as well.

if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "BRINDLE_FUZZERS needs clang: use the preset `fuzz`")
endif()

brindle_existing(fuzz_links app desk play)
file(GLOB fuzzers CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/fuzz/*.cpp")
foreach(source IN LISTS fuzzers)
    get_filename_component(name "${source}" NAME_WE)
    string(REGEX REPLACE "_fuzz$" "" name "${name}")
    add_executable(fuzz_${name} "${source}")
    target_include_directories(fuzz_${name} PRIVATE "${CMAKE_SOURCE_DIR}")
    target_link_libraries(fuzz_${name} PRIVATE ${fuzz_links})
    target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
endforeach()
