# The rules every target of the project follows, and one function a kind of target.

# Warnings and standard, for everything that is compiled here.
add_library(tintra_rules INTERFACE)
target_compile_features(tintra_rules INTERFACE cxx_std_20)
target_include_directories(tintra_rules INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(
    tintra_rules
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wconversion
              -Wshadow
              -Werror
              # A fused multiply-add rounds once instead of twice: nearest names and pinned
              # figures would differ between machines.
              -ffp-contract=off)

# What the preset adds to the product and its tests, but not to programs that run at build time.
set(TINTRA_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize= takes them")
add_library(tintra_options INTERFACE)
target_link_libraries(tintra_options INTERFACE tintra_rules)
if(TINTRA_SANITIZE)
    target_compile_options(tintra_options INTERFACE -fsanitize=${TINTRA_SANITIZE}
                                                    -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
    target_link_options(tintra_options INTERFACE -fsanitize=${TINTRA_SANITIZE})
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

# tintra_library(NAME LIBRARY...): one library a folder, from every source file below it but those
# of programs and of modules, which stand in subfolders of their own.
function(tintra_library name)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/(program|desktop|tour)/")
    add_library(tintra_${name} STATIC ${sources})
    add_library(Tintra::${name} ALIAS tintra_${name})
    target_link_libraries(tintra_${name} PUBLIC tintra_options ${ARGN})
endfunction()

# tintra_precompile(TARGET HEADER...): what nearly every source about windows reads, parsed once for a
# target: the toolkit's headers and the standard library's, never the project's own, which change.
# A source still includes what it uses: a build with a compiler cache goes without, because the cache
# keeps more than this does and cannot share it, and so does the debug preset, for the linter.
function(tintra_precompile target)
    if(CMAKE_CXX_COMPILER_LAUNCHER)
        return()
    endif()
    target_precompile_headers(
        ${target}
        PRIVATE
        <QAccessible>
        <QApplication>
        <QBoxLayout>
        <QDropEvent>
        <QKeyEvent>
        <QLineEdit>
        <QMenu>
        <QPainter>
        <QPointer>
        <QProperty>
        <QTimer>
        <QWidget>
        <algorithm>
        <array>
        <cmath>
        <filesystem>
        <functional>
        <map>
        <memory>
        <optional>
        <ranges>
        <span>
        <string>
        <string_view>
        <unordered_map>
        <utility>
        <variant>
        <vector>
        ${ARGN})
endfunction()

# tintra_module(NAME LIBRARY...): a library that programs load while they run, from the folder NAME.
function(tintra_module name)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
    add_library(tintra_${name}_module MODULE ${sources})
    target_link_libraries(tintra_${name}_module PRIVATE tintra_options ${ARGN})
    set_target_properties(
        tintra_${name}_module
        PROPERTIES OUTPUT_NAME tintra-${name}
                   CXX_VISIBILITY_PRESET hidden
                   LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib/tintra)
    install(TARGETS tintra_${name}_module DESTINATION lib/tintra)
endfunction()

# The leak checker now and then crashes itself (“Tracer caught signal 11”) where the picture modules
# have left Qt's threads behind; tests that load them go without it. The other checks stay.
set(TINTRA_NO_LEAK_CHECK "ASAN_OPTIONS=detect_leaks=0")

# tintra_test(NAME LIBRARY...): one test program a folder; each of its cases is a CTest test, run
# with TINTRA_TEST_ENVIRONMENT where the folder sets it. Programs that tests run stand in a
# subfolder of their own.
function(tintra_test name)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "/program/")
    add_executable(tintra_${name}_tests ${sources})
    target_link_libraries(tintra_${name}_tests PRIVATE tintra_options ${ARGN} GTest::gtest
                                                       GTest::gmock GTest::gtest_main)
    # Optimising test code takes the compiler longer than the code then runs.
    target_compile_options(tintra_${name}_tests PRIVATE -O0)
    set(properties TIMEOUT 300)
    if(TINTRA_TEST_ENVIRONMENT)
        list(APPEND properties ENVIRONMENT ${TINTRA_TEST_ENVIRONMENT})
    endif()
    gtest_discover_tests(tintra_${name}_tests TEST_PREFIX "${name}: " DISCOVERY_MODE PRE_TEST
                                              PROPERTIES ${properties})
endfunction()

# tintra_fuzz_target(NAME LIBRARY...): fuzz/NAME.cpp; its seeds lie in fuzz/seeds/NAME.
function(tintra_fuzz_target name)
    add_executable(fuzz_${name} ${name}.cpp)
    target_link_libraries(fuzz_${name} PRIVATE tintra_options ${ARGN})
    target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
endfunction()

# tintra_benchmark(NAME LIBRARY...): benchmarks/NAME.cpp.
function(tintra_benchmark name)
    add_executable(bench_${name} ${name}.cpp)
    target_link_libraries(bench_${name} PRIVATE tintra_options ${ARGN} benchmark::benchmark
                                                benchmark::benchmark_main)
endfunction()
