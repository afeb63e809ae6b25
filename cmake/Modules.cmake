# brindle_module(NAME [LINKS modules...] [EXTERNAL targets...])
#
# The library made of the sources under the directory NAME: header-only if there are no sources, no target at all if there is nothing.
# Includes are written from the root ("platform/Geometry.h"). So that a directory still sees only the headers of those it links, each target's
# include directory holds a single symbolic link to its sources, and the root itself is on no module's search path.

function(brindle_module NAME)
    cmake_parse_arguments(PARSE_ARGV 1 module "" "" "LINKS;EXTERNAL")
    if(NAME IN_LIST BRINDLE_WITHOUT)
        return()
    endif()
    set(directory "${CMAKE_SOURCE_DIR}/${NAME}")
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${directory}/*.cpp")
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS "${directory}/*.h")
    list(REMOVE_ITEM sources "${CMAKE_SOURCE_DIR}/play/main.cpp")
    if(NOT sources AND NOT headers)
        return()
    endif()

    set(include "${CMAKE_SOURCE_DIR}/build/include/${NAME}")
    file(MAKE_DIRECTORY "${include}")
    file(CREATE_LINK "${directory}" "${include}/${NAME}" SYMBOLIC)

    set(linked ${module_EXTERNAL})
    foreach(neighbour IN LISTS module_LINKS)
        if(TARGET ${neighbour})
            list(APPEND linked ${neighbour})
        endif()
    endforeach()

    if(sources)
        add_library(${NAME} STATIC ${sources})
        target_include_directories(${NAME} PUBLIC "${include}")
        target_link_libraries(${NAME} PUBLIC ${linked})
        brindle_batches(${NAME} ${sources})
        brindle_tidy(${NAME})
    else()
        add_library(${NAME} INTERFACE)
        target_include_directories(${NAME} INTERFACE "${include}")
        target_link_libraries(${NAME} INTERFACE ${linked})
    endif()
endfunction()

# Most of a compilation goes into the standard library's headers: a batch reads them once. What it asks is that names in a folder's unnamed namespaces differ. A batch holds sources of one folder
# alone, so a new file changes the batches of its own folder and no others.
function(brindle_batches TARGET)
    set(batch_size 20)
    set_target_properties(${TARGET} PROPERTIES UNITY_BUILD ${BRINDLE_UNITY} UNITY_BUILD_MODE GROUP)
    foreach(source IN LISTS ARGN)
        cmake_path(GET source PARENT_PATH folder)
        cmake_path(RELATIVE_PATH folder BASE_DIRECTORY "${CMAKE_SOURCE_DIR}")
        string(MAKE_C_IDENTIFIER "${folder}" folder)
        if(NOT DEFINED count_${folder})
            set(count_${folder} 0)
        endif()
        math(EXPR batch "${count_${folder}} / ${batch_size}")
        math(EXPR count_${folder} "${count_${folder}} + 1")
        set_source_files_properties("${source}" PROPERTIES UNITY_GROUP "${folder}_${batch}")
    endforeach()
endfunction()

# Has the target's sources looked over by clang-tidy. Only the check-only tree does so (see CheckOnly.cmake).
function(brindle_tidy TARGET)
    if(BRINDLE_CLANG_TIDY)
        set_target_properties(${TARGET} PROPERTIES CXX_CLANG_TIDY "${BRINDLE_CLANG_TIDY}")
    endif()
endfunction()

# Those of the given targets that exist: directories may still be missing, or be left out.
function(brindle_existing OUT)
    set(found "")
    foreach(name IN LISTS ARGN)
        if(TARGET ${name})
            list(APPEND found ${name})
        endif()
    endforeach()
    set(${OUT} "${found}" PARENT_SCOPE)
endfunction()
