# One test program per folder under tests/ (besides support/, and tools/,
# whose native test resources/pictures.cmake builds and runs): a Wine start
# costs seconds, so cases are grouped per subsystem rather than run one per
# process. Each program links the editor's code and resources directly, plus
# the test host and the UI driver.
set(GTEST_SOURCE_DIR /usr/src/googletest CACHE PATH "GoogleTest sources")
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory(${GTEST_SOURCE_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

add_library(test_support STATIC host/test_host.cpp host/sweep_player.cpp tests/support/editor_test.cpp
    tests/support/test_main.cpp)
target_include_directories(test_support PUBLIC ${CMAKE_SOURCE_DIR}/include ${CMAKE_SOURCE_DIR})
target_compile_definitions(test_support PUBLIC EDITOR_IMPLEMENTATION WIN32_LEAN_AND_MEAN)
target_link_libraries(test_support PUBLIC host_support gtest)

# The hostile tests feed the dialogs overlong and malformed text and host
# data: they and the editor code they link are built again with stack
# protection and fortified string functions (static libssp), so that an
# overflow is caught where it happens. editor.dll keeps its own flags, since
# it may import system DLLs only.
set(HARDENING -fstack-protector-strong -D_FORTIFY_SOURCE=2)
add_library(editor_core_hardened OBJECT ${EDITOR_SOURCES})
target_include_directories(editor_core_hardened PUBLIC ${CMAKE_SOURCE_DIR}/include ${CMAKE_SOURCE_DIR})
target_compile_definitions(editor_core_hardened PUBLIC EDITOR_IMPLEMENTATION WIN32_LEAN_AND_MEAN)
target_compile_options(editor_core_hardened PRIVATE ${HARDENING})

file(GLOB TEST_GROUPS LIST_DIRECTORIES true CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/*)
foreach(group_dir ${TEST_GROUPS})
    get_filename_component(group ${group_dir} NAME)
    if(NOT IS_DIRECTORY ${group_dir} OR group STREQUAL "support" OR group STREQUAL "tools")
        continue()
    endif()
    file(GLOB group_sources CONFIGURE_DEPENDS ${group_dir}/*.cpp)
    if(NOT group_sources)
        continue()
    endif()
    set(core editor_core)
    if(group STREQUAL "hostile")
        set(core editor_core_hardened)
    endif()
    add_executable(${group}_tests ${group_sources}
        $<TARGET_OBJECTS:${core}> $<TARGET_OBJECTS:editor_resources>)
    target_link_libraries(${group}_tests PRIVATE test_support user32 gdi32 comdlg32)
    if(group STREQUAL "hostile")
        target_compile_options(${group}_tests PRIVATE ${HARDENING})
        target_link_libraries(${group}_tests PRIVATE ssp)
    endif()
    target_link_options(${group}_tests PRIVATE ${STATIC_RUNTIME})
    add_dependencies(${group}_tests editor)
    add_test(NAME ${group} COMMAND ${group}_tests WORKING_DIRECTORY ${CMAKE_BINARY_DIR})
    set_tests_properties(${group} PROPERTIES TIMEOUT 900)
endforeach()

# editor.dll may import system DLLs only: no MinGW runtime DLL.
add_test(NAME dll_imports COMMAND ${CMAKE_COMMAND}
    -DDLL=${CMAKE_BINARY_DIR}/editor.dll -DOBJDUMP=i686-w64-mingw32-objdump
    -P ${CMAKE_SOURCE_DIR}/tests/check_imports.cmake)
