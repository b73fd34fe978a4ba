# Turns the text pictures in resources/pictures/ into .cur and .ico files and
# an rc fragment that names them, all under ${CMAKE_BINARY_DIR}/generated/pictures.
#
# Defines:
#   EDITOR_PICTURE_FILES           the generated .cur and .ico files
#   EDITOR_PICTURES_RC             the rc fragment to #include from the main .rc
#   EDITOR_PICTURES_DIR            its folder, for the rc include path
#   editor_pictures                custom target that makes all of them
#   editor_attach_pictures(T RC)   wires target T, whose resource script RC
#                                  includes the fragment, to the pictures
#
# The converter has to run on the build machine, so it is compiled with the
# native compiler rather than CMAKE_CXX_COMPILER, which targets Windows.

find_program(NATIVE_CXX NAMES c++ g++ clang++ NO_CMAKE_FIND_ROOT_PATH)
if(NOT NATIVE_CXX)
    message(FATAL_ERROR "A native C++ compiler (c++, g++ or clang++) is needed to build picture_tool")
endif()

set(EDITOR_PICTURES_DIR "${CMAKE_BINARY_DIR}/generated/pictures")
set(EDITOR_PICTURES_RC "${EDITOR_PICTURES_DIR}/pictures.rc")
set(_picture_tool "${CMAKE_BINARY_DIR}/tools/picture_tool")
set(_picture_tool_src "${CMAKE_SOURCE_DIR}/tools/picture_tool.cpp")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/tools" "${EDITOR_PICTURES_DIR}")

add_custom_command(
    OUTPUT "${_picture_tool}"
    COMMAND "${NATIVE_CXX}" -std=c++17 -O2 -o "${_picture_tool}" "${_picture_tool_src}"
    DEPENDS "${_picture_tool_src}"
    COMMENT "Building native picture_tool"
    VERBATIM)

# Resource numbers: cursors and icons share some numbers, which is allowed
# because the resource types differ.
set(_editor_cursor_ids 104 105 112 113 118 119 120 121 123 124)
set(_editor_icon_ids 105 106 107 108 109)

set(EDITOR_PICTURE_FILES "")
set(_pictures_rc_text "// Generated from resources/pictures.cmake; do not edit.\n")
foreach(_kind cursor icon)
    if(_kind STREQUAL "cursor")
        set(_ids ${_editor_cursor_ids})
        set(_ext cur)
        set(_rc_type CURSOR)
    else()
        set(_ids ${_editor_icon_ids})
        set(_ext ico)
        set(_rc_type ICON)
    endif()
    foreach(_id IN LISTS _ids)
        set(_in "${CMAKE_SOURCE_DIR}/resources/pictures/${_kind}_${_id}.txt")
        set(_out "${EDITOR_PICTURES_DIR}/${_kind}_${_id}.${_ext}")
        add_custom_command(
            OUTPUT "${_out}"
            COMMAND "${_picture_tool}" ${_kind} "${_in}" "${_out}"
            DEPENDS "${_picture_tool}" "${_in}"
            COMMENT "Converting ${_kind}_${_id}.txt"
            VERBATIM)
        list(APPEND EDITOR_PICTURE_FILES "${_out}")
        # windres takes forward slashes on every host; an absolute path saves
        # depending on the include path for the picture files themselves.
        file(TO_CMAKE_PATH "${_out}" _rc_path)
        string(APPEND _pictures_rc_text "${_id} ${_rc_type} \"${_rc_path}\"\n")
    endforeach()
endforeach()

# GENERATE only rewrites the file when its text changes, so reconfiguring
# does not force the resource script to be recompiled.
file(GENERATE OUTPUT "${EDITOR_PICTURES_RC}" CONTENT "${_pictures_rc_text}")

add_custom_target(editor_pictures DEPENDS ${EDITOR_PICTURE_FILES})

function(editor_attach_pictures target rc_source)
    add_dependencies(${target} editor_pictures)
    # The compiler's dependency scan does not see files named inside the
    # fragment, so a redrawn picture would not rebuild the resources.
    set_property(SOURCE "${rc_source}" TARGET_DIRECTORY ${target} APPEND PROPERTY OBJECT_DEPENDS
        ${EDITOR_PICTURE_FILES} "${EDITOR_PICTURES_RC}")
    set_property(SOURCE "${rc_source}" TARGET_DIRECTORY ${target} APPEND PROPERTY
        INCLUDE_DIRECTORIES "${EDITOR_PICTURES_DIR}")
endfunction()

# The converter's own test is a native program, so ctest runs it directly
# rather than through the Windows emulator.
if(BUILD_TESTING OR NOT DEFINED BUILD_TESTING)
    set(_picture_tool_test "${CMAKE_BINARY_DIR}/tools/picture_tool_test")
    set(_picture_tool_test_src "${CMAKE_SOURCE_DIR}/tests/tools/picture_tool_test.cpp")
    add_custom_command(
        OUTPUT "${_picture_tool_test}"
        COMMAND "${NATIVE_CXX}" -std=c++17 -O2 -I "${CMAKE_SOURCE_DIR}/tools"
                -o "${_picture_tool_test}" "${_picture_tool_test_src}"
        DEPENDS "${_picture_tool_test_src}" "${_picture_tool_src}"
        COMMENT "Building native picture_tool_test"
        VERBATIM)
    add_custom_target(picture_tool_test_build ALL DEPENDS "${_picture_tool_test}")
    add_test(NAME picture_tool_test COMMAND "${_picture_tool_test}")
endif()
