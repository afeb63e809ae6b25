# The application as a folder, in the build tree: Orvane.app with its Info dictionary, its icon rendered from the drawing, and a file that marks the executable's place.
# The desk installs it on its disk.

set(BRINDLE_BUNDLE "${CMAKE_BINARY_DIR}/Orvane.app")
set(bundle_source "${CMAKE_SOURCE_DIR}/app/bundle")
configure_file("${bundle_source}/Info.plist.in" "${BRINDLE_BUNDLE}/Contents/Info.plist" @ONLY)
configure_file("${bundle_source}/GoogleService-Info.plist" "${BRINDLE_BUNDLE}/Contents/Resources/GoogleService-Info.plist" COPYONLY)
file(CONFIGURE OUTPUT "${BRINDLE_BUNDLE}/Contents/MacOS/Orvane" CONTENT "The executable that a port builds belongs here.\n")

add_executable(render_svg "${CMAKE_SOURCE_DIR}/cmake/render-svg.cpp")
target_link_libraries(render_svg PRIVATE Qt6::Gui Qt6::Svg)

set(icon "${BRINDLE_BUNDLE}/Contents/Resources/AppIcon.png")
if(NOT BRINDLE_CHECK_ONLY)
    file(MAKE_DIRECTORY "${BRINDLE_BUNDLE}/Contents/Resources")
    add_custom_command(
        OUTPUT "${icon}"
        COMMAND "${CMAKE_COMMAND}" -E env ASAN_OPTIONS=detect_leaks=0 TSAN_OPTIONS=report_bugs=0 $<TARGET_FILE:render_svg> "${bundle_source}/AppIcon.svg" "${icon}" 1024
        DEPENDS render_svg "${bundle_source}/AppIcon.svg"
        VERBATIM)
    add_custom_target(bundle ALL DEPENDS "${icon}")
    add_dependencies(desk bundle)
endif()
