# The check-only tree: clang reads every source (-fsyntax-only), clang-tidy those of the product, and what would be built is an empty file.
# The suites are left to the sanitized trees, which clang builds. Ninja knows what was checked since which header last changed: a second run costs nothing.

if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "BRINDLE_CHECK_ONLY needs clang: use the preset `check`")
endif()

set(CMAKE_CXX_COMPILE_OBJECT
    "<CMAKE_CXX_COMPILER> <DEFINES> <INCLUDES> <FLAGS> -fsyntax-only <SOURCE>"
    "\"${CMAKE_COMMAND}\" -E touch <OBJECT>")
set(CMAKE_CXX_CREATE_STATIC_LIBRARY "\"${CMAKE_COMMAND}\" -E touch <TARGET>")
set(CMAKE_CXX_LINK_EXECUTABLE "\"${CMAKE_COMMAND}\" -E touch <TARGET>")

find_program(CLANG_TIDY NAMES clang-tidy-14 clang-tidy REQUIRED)
# The configuration's hash is part of the command, so that a change of it has everything checked again.
file(SHA256 "${CMAKE_SOURCE_DIR}/.clang-tidy" tidy_hash)
string(SUBSTRING "${tidy_hash}" 0 12 tidy_hash)
set(tidy_config "${CMAKE_BINARY_DIR}/clang-tidy-${tidy_hash}.yaml")
configure_file("${CMAKE_SOURCE_DIR}/.clang-tidy" "${tidy_config}" COPYONLY)
set(BRINDLE_CLANG_TIDY "${CLANG_TIDY};--quiet;--config-file=${tidy_config}")
