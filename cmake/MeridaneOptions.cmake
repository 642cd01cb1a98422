# What a preset switches, and the compile options that every target of ours shares.

option(MERIDANE_TESTS "Build the tests" ON)
option(MERIDANE_BENCHMARKS "Build the benchmarks" OFF)
option(MERIDANE_FUZZERS "Build the libFuzzer harnesses (clang only)" OFF)
option(MERIDANE_WERROR "Treat warnings as errors" OFF)
set(MERIDANE_SANITIZERS "" CACHE STRING "Value of -fsanitize=, empty for none")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

# The programs run from the build folder: bin/ beside lib/, plugins/ and qml/, as after installation.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(MERIDANE_PLUGIN_DIR "${CMAKE_BINARY_DIR}/plugins")
set(MERIDANE_QML_DIR "${CMAKE_BINARY_DIR}/qml")

add_library(MeridaneOptions INTERFACE)
target_include_directories(MeridaneOptions INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_definitions(MeridaneOptions INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(MeridaneOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wcast-align -Wunused -Woverloaded-virtual -Wnull-dereference
    $<$<BOOL:${MERIDANE_WERROR}>:-Werror>)
if(MERIDANE_SANITIZERS)
    target_compile_options(MeridaneOptions INTERFACE -fsanitize=${MERIDANE_SANITIZERS} -fno-omit-frame-pointer)
    target_link_options(MeridaneOptions INTERFACE -fsanitize=${MERIDANE_SANITIZERS})
endif()

find_program(MERIDANE_CCACHE ccache)
if(MERIDANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND};-E;env;CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime;${MERIDANE_CCACHE}")
    # Lets ccache see through precompiled headers.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()
