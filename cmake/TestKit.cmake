# tests/kit is the library `test_kit`: machines, folders and input for the suites and the benchmarks.

find_package(GTest REQUIRED)

file(GLOB_RECURSE kit_files CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/kit/*.cpp" "${CMAKE_SOURCE_DIR}/tests/kit/*.h")
if(kit_files)
    brindle_existing(kit_links app desk)
    set(kit_sources ${kit_files})
    list(FILTER kit_sources INCLUDE REGEX "\\.cpp$")
    if(kit_sources)
        add_library(test_kit STATIC ${kit_sources})
        target_include_directories(test_kit PUBLIC "${CMAKE_SOURCE_DIR}")
        target_link_libraries(test_kit PUBLIC ${kit_links} GTest::gtest)
    else()
        add_library(test_kit INTERFACE)
        target_include_directories(test_kit INTERFACE "${CMAKE_SOURCE_DIR}")
        target_link_libraries(test_kit INTERFACE ${kit_links} GTest::gtest)
    endif()
endif()
