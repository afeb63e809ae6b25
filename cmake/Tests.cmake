# Every directory tests/X but the kit is one executable `tests_X` and one ctest; every scenarios/*.desk is one ctest.
# One ctest for each executable, since under sanitizers starting a process costs more than most tests do.

set(test_environment
    "QT_QPA_PLATFORM=offscreen"
    "ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1"
    "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/scripts/lsan.supp:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1"
    "TSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/scripts/tsan.supp")

# What a suite links beside the library that it tests. The lower directories are tested without anything that stands above them.
set(suite_links_platform platform)
set(suite_links_views views)
set(suite_links_desk desk)
set(suite_links_live play)
set(suite_links_default test_kit app desk play)

# The suites' own code is compiled for a short build: it isn't what is measured, and the checks for undefined behaviour double its time.
set(suite_options -O0)
if(BRINDLE_SANITIZE MATCHES undefined)
    list(APPEND suite_options -fno-sanitize=undefined)
endif()

function(brindle_suite DIRECTORY)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/${DIRECTORY}/*.cpp")
    if(NOT sources OR DIRECTORY IN_LIST BRINDLE_WITHOUT)
        return()
    endif()
    if(DEFINED suite_links_${DIRECTORY})
        brindle_existing(links ${suite_links_${DIRECTORY}})
    else()
        brindle_existing(links ${DIRECTORY} ${suite_links_default})
    endif()
    set(suite tests_${DIRECTORY})
    add_executable(${suite} ${sources})
    target_include_directories(${suite} PRIVATE "${CMAKE_SOURCE_DIR}")
    target_link_libraries(${suite} PRIVATE ${links} GTest::gtest_main)
    target_compile_options(${suite} PRIVATE ${suite_options})
    add_test(NAME ${suite} COMMAND ${suite} WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}")
    set_tests_properties(${suite} PROPERTIES LABELS suite TIMEOUT 300 ENVIRONMENT "${test_environment}")
endfunction()

file(GLOB test_directories CONFIGURE_DEPENDS LIST_DIRECTORIES true RELATIVE "${CMAKE_SOURCE_DIR}/tests" "${CMAKE_SOURCE_DIR}/tests/*")
list(REMOVE_ITEM test_directories kit)
foreach(directory IN LISTS test_directories)
    if(IS_DIRECTORY "${CMAKE_SOURCE_DIR}/tests/${directory}")
        brindle_suite(${directory})
    endif()
endforeach()

if(TARGET desk_command)
    if(TARGET tests_live)
        # A real display and a real process: the suite starts both.
        add_dependencies(tests_live desk_command)
        target_compile_definitions(tests_live PRIVATE BRINDLE_DESK="$<TARGET_FILE:desk_command>")
    endif()
    file(GLOB scenarios CONFIGURE_DEPENDS RELATIVE "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/scenarios/*.desk")
    foreach(scenario IN LISTS scenarios)
        get_filename_component(name "${scenario}" NAME_WE)
        # What a scenario writes (its pictures) lands in the build tree.
        set(pictures "${CMAKE_BINARY_DIR}/scenarios/${name}")
        file(MAKE_DIRECTORY "${pictures}")
        add_test(NAME scenario_${name} COMMAND desk_command --script "${CMAKE_SOURCE_DIR}/${scenario}" WORKING_DIRECTORY "${pictures}")
        set_tests_properties(scenario_${name} PROPERTIES LABELS scenario TIMEOUT 120 ENVIRONMENT "${test_environment}")
    endforeach()
    # Random stories, the same at every run; `desk --soak SEED STEPS` tells others.
    add_test(NAME soak COMMAND desk_command --soak 1 10000)
    set_tests_properties(soak PROPERTIES LABELS scenario TIMEOUT 300 ENVIRONMENT "${test_environment}")
endif()
