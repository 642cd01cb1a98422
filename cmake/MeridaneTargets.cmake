# Functions that declare our targets in one way.

# Sources of a folder that is one subsystem: every .cpp and .h below it, so that adding a class is adding its files.
function(meridane_sources out folder)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/*.h")
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# meridane_element_library(<name>)
# The element folder that calls it, as an object library: the plug-in is made of these objects, and unit tests link them.
function(meridane_element_library name)
    meridane_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}")
    add_library(${name} OBJECT ${sources})
    target_link_libraries(${name} PUBLIC DesignerCore PRIVATE MeridaneOptions)
    meridane_reuse_pch(${name})
endfunction()

# Test code is built for a quick build; what it tests keeps the options of the preset.
set(MERIDANE_TEST_OPTIONS $<$<CONFIG:Release>:-O1>)

# meridane_test(<name> SOURCES <files> [LIBRARIES <targets>] [LABELS <labels>] [TIMEOUT <seconds>] [DEPENDS <targets>])
# One Qt Test program, run offscreen under CTest. RapidCheck is at hand in each. DEPENDS names what it loads or starts
# without linking it.
function(meridane_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBRARIES;LABELS;DEPENDS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE MeridaneOptions Qt6::Test Qt6::Widgets rapidcheck ${arg_LIBRARIES})
    target_compile_options(${name} PRIVATE ${MERIDANE_TEST_OPTIONS})
    target_precompile_headers(${name} REUSE_FROM meridane_test_pch)
    set_target_properties(${name} PROPERTIES
        AUTORCC OFF
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    list(LENGTH arg_SOURCES sourceCount)
    if(sourceCount EQUAL 1)
        # The test's class stands in its one source, and this file of automoc's is empty.
        set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp" PROPERTIES
            SKIP_PRECOMPILE_HEADERS ON)
    endif()
    if(arg_DEPENDS)
        add_dependencies(${name} ${arg_DEPENDS})
    endif()
    add_test(NAME ${name} COMMAND ${name})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    # Settings and caches of its own: tests that run side by side would change each other's.
    set(home "${CMAKE_BINARY_DIR}/tests/homes/${name}")
    file(MAKE_DIRECTORY "${home}")
    # Where a test crashes, Qt would wait for a debugger's report.
    set(environment HOME=${home} XDG_CONFIG_HOME=${home}/.config XDG_CACHE_HOME=${home}/.cache
        XDG_DATA_HOME=${home}/.local/share QTEST_DISABLE_STACK_DUMP=1 QT_QPA_PLATFORM=offscreen QT_QPA_UPDATE_IDLE_TIME=0 LC_ALL=C.UTF-8)
    if(MERIDANE_SANITIZERS)
        # Everything is several times slower, and leaks of the libraries below us are not ours to mend.
        math(EXPR arg_TIMEOUT "${arg_TIMEOUT} * 4")
        list(APPEND environment
            "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0"
            "UBSAN_OPTIONS=print_stacktrace=1")
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        LABELS "${arg_LABELS}"
        ENVIRONMENT "${environment}")
endfunction()

# meridane_benchmark(<name> SOURCES <files> [LIBRARIES <targets>] [DEPENDS <targets>])
# A Google Benchmark program in the build's benchmarks/ folder; `./dev bench` runs them all.
function(meridane_benchmark name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES;DEPENDS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE MeridaneOptions benchmark::benchmark ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/benchmarks")
    if(arg_DEPENDS)
        add_dependencies(${name} ${arg_DEPENDS})
    endif()
    if(NOT TARGET benchmarks)
        add_custom_target(benchmarks)
    endif()
    add_dependencies(benchmarks ${name})
endfunction()

# meridane_fuzzer(<name> SOURCES <files> [LIBRARIES <targets>])
# A libFuzzer harness in the build's fuzzers/ folder; `./dev fuzz` runs them all, each from the seeds in
# fuzz/corpus/<name>/.
function(meridane_fuzzer name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE MeridaneOptions ${arg_LIBRARIES})
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/fuzzers")
    if(NOT TARGET fuzzers)
        add_custom_target(fuzzers)
    endif()
    add_dependencies(fuzzers ${name})
endfunction()
