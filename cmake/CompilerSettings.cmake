# Language, warnings, sanitizers and the compiler cache: the same for every target of the tree.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()
# -O3 makes the build slower and no benchmark faster.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overreads and uninitialised reads in its own std::string and std::optional once they are inlined (PR 105651, 105562).
    add_compile_options(-Wno-restrict -Wno-maybe-uninitialized)
endif()

# Qt's `emit`, `signals` and `slots` macros would rewrite identifiers of headers that know nothing of Qt.
add_compile_definitions(QT_NO_KEYWORDS)

if(BRINDLE_SANITIZE)
    add_compile_options(-fsanitize=${BRINDLE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${BRINDLE_SANITIZE})
endif()

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER AND NOT BRINDLE_CHECK_ONLY)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()
