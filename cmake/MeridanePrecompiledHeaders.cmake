# Precompiled Qt headers, made once and reused. Parsing Qt costs seconds a file, reading the precompiled form a half.
#
# A precompiled header only fits objects compiled with the same options, hence two: one for objects of libraries and one
# for the test programs, which as executables are compiled with -fPIE and, for a quick build, with less optimisation.
# Qt's umbrella headers for Core, Gui and Widgets look at none of the definitions in which our targets differ; the one
# for Test does (QT_NETWORK_LIB), so that it is left out.

function(meridane_pch_source out name content)
    set(file "${CMAKE_BINARY_DIR}/precompiled/${name}.cpp")
    if(NOT EXISTS "${file}")
        file(WRITE "${file}" "${content}\n")
    endif()
    set(${out} "${file}" PARENT_SCOPE)
endfunction()

# Reused by the libraries and object libraries that may use widgets: meridane_reuse_pch(<target>).
meridane_pch_source(source meridane_pch "// Only its precompiled header is used.")
add_library(meridane_pch OBJECT EXCLUDE_FROM_ALL "${source}")
target_link_libraries(meridane_pch PRIVATE MeridaneOptions Qt6::Widgets)
target_precompile_headers(meridane_pch PRIVATE <QtCore> <QtGui> <QtWidgets>)
set_target_properties(meridane_pch PROPERTIES AUTOMOC OFF AUTORCC OFF)

function(meridane_reuse_pch target)
    target_precompile_headers(${target} REUSE_FROM meridane_pch)
endfunction()

# Reused by every meridane_test().
if(MERIDANE_TESTS)
    find_package(rapidcheck REQUIRED)
    meridane_pch_source(source meridane_test_pch "int main() { return 0; }")
    add_executable(meridane_test_pch EXCLUDE_FROM_ALL "${source}")
    target_link_libraries(meridane_test_pch PRIVATE MeridaneOptions Qt6::Widgets rapidcheck)
    target_compile_options(meridane_test_pch PRIVATE ${MERIDANE_TEST_OPTIONS})
    target_precompile_headers(meridane_test_pch PRIVATE <QtCore> <QtGui> <QtWidgets> <rapidcheck.h>)
    set_target_properties(meridane_test_pch PROPERTIES
        AUTOMOC OFF AUTORCC OFF RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/precompiled")
endif()
