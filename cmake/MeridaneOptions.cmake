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
# No header of ours is generated for another target, so that moc and compiling need not wait for the libraries linked.
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)
# `cmake --build … --target autogen` runs every moc and rcc, which is all that clang-tidy needs of a build.
set(CMAKE_GLOBAL_AUTOGEN_TARGET ON)

# The programs run from the build folder: bin/ beside lib/, plugins/ and qml/, as after installation. Run paths are
# relative for the same reason: the folder may be moved or copied.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(MERIDANE_PLUGIN_DIR "${CMAKE_BINARY_DIR}/plugins")
set(MERIDANE_QML_DIR "${CMAKE_BINARY_DIR}/qml")
set(MERIDANE_TRANSLATIONS_DIR "${CMAKE_BINARY_DIR}/share/meridane/translations")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../lib")

add_library(MeridaneOptions INTERFACE)
target_include_directories(MeridaneOptions INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_definitions(MeridaneOptions INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(MeridaneOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wcast-align -Wunused -Woverloaded-virtual
    $<$<BOOL:${MERIDANE_WERROR}>:-Werror>)
if(MERIDANE_SANITIZERS)
    # Undefined behaviour ends the program instead of printing a line that nobody reads. Qt's containers hand a null
    # pointer with a length of 0 to memcpy, in headers that are compiled into our code.
    target_compile_options(MeridaneOptions INTERFACE
        -fsanitize=${MERIDANE_SANITIZERS} -fno-sanitize=nonnull-attribute -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_link_options(MeridaneOptions INTERFACE -fsanitize=${MERIDANE_SANITIZERS})
endif()

# A hundred small test programs link several times faster with mold; without it the default linker does the same work.
include(CheckLinkerFlag)
check_linker_flag(CXX "-fuse-ld=mold" MERIDANE_HAS_MOLD)
if(MERIDANE_HAS_MOLD)
    add_link_options(-fuse-ld=mold)
endif()

find_program(MERIDANE_CCACHE ccache)
if(MERIDANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND};-E;env;CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime;${MERIDANE_CCACHE}")
    # Let ccache see through precompiled headers.
    add_compile_options(
        $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
        "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
endif()
