# Functions that declare our targets in one way.

# Sources of a folder that is one subsystem: every .cpp and .h below it, so that adding a class is adding its files.
function(meridane_sources out folder)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/*.h")
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# meridane_test(<name> SOURCES <files> [LIBRARIES <targets>] [LABELS <labels>] [GUILESS] [TIMEOUT <seconds>])
# One Qt Test program, run offscreen under CTest.
function(meridane_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBRARIES;LABELS;DEPENDS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE MeridaneOptions Qt6::Test ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    if(arg_DEPENDS)
        add_dependencies(${name} ${arg_DEPENDS})
    endif()
    add_test(NAME ${name} COMMAND ${name})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        LABELS "${arg_LABELS}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_QPA_UPDATE_IDLE_TIME=0;LC_ALL=C.UTF-8")
endfunction()
