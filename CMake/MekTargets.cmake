# What every module of this tree shares: language level, warnings, visibility, and one call each for a library,
# its tests, its benchmarks and its fuzz drivers. Sources are found by folder (Src, Test, Bench, Fuzz), one class per file.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

function(mek_set_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /WX)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
    endif()
endfunction()

# Sets `variable` to the folders below Src of the calling folder, the rooms for what serves the module alone.
function(mek_find_rooms variable)
    file(GLOB entries CONFIGURE_DEPENDS LIST_DIRECTORIES true Src/*)
    foreach(entry IN LISTS entries)
        if(IS_DIRECTORY ${entry})
            list(APPEND rooms ${entry})
        endif()
    endforeach()
    set(${variable} ${rooms} PARENT_SCOPE)
endfunction()

# mek_add_library(MekRoots ALIAS Mek::Roots [LINK Mek::Other ...]): a library from the sources in Src of the calling
# folder and in its rooms. Users get Exp and the headers that stand directly in Src; the rooms are on the include path of
# the library's own sources, and of its tests in Test/Internals.
# MekRootsObjects is what the library is made of. Those tests link it, since a shared library hides what is internal.
function(mek_add_library target)
    cmake_parse_arguments(ARG "" "ALIAS" "LINK" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS Src/*.cpp Src/*/*.cpp)
    file(GLOB headers CONFIGURE_DEPENDS Src/*.h Src/*/*.h Exp/*.h)
    mek_find_rooms(rooms)
    add_library(${target}Objects OBJECT ${sources} ${headers})
    target_include_directories(${target}Objects
        PUBLIC ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/Src
        PRIVATE ${rooms})
    if(IS_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/Exp)
        target_include_directories(${target}Objects PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/Exp)
    endif()
    target_link_libraries(${target}Objects PUBLIC ${ARG_LINK})
    if(BUILD_SHARED_LIBS)
        target_compile_definitions(${target}Objects PRIVATE ${target}_EXPORTS)
    else()
        target_compile_definitions(${target}Objects PUBLIC MEK_STATIC_LIBRARIES)
    endif()
    mek_set_warnings(${target}Objects)

    add_library(${target} $<TARGET_OBJECTS:${target}Objects>)
    add_library(${ARG_ALIAS} ALIAS ${target})
    target_link_libraries(${target} PUBLIC ${target}Objects)
endfunction()

# Removes the test files that start no thread; support files stay.
function(mek_keep_threading_tests sources_variable)
    foreach(source IN LISTS ${sources_variable})
        file(STRINGS ${source} cases REGEX "^TEST" LIMIT_COUNT 1)
        file(STRINGS ${source} threads REGEX "std::thread" LIMIT_COUNT 1)
        if(threads OR NOT cases)
            list(APPEND kept ${source})
        endif()
    endforeach()
    set(${sources_variable} ${kept} PARENT_SCOPE)
endfunction()

# mek_add_tests(MekRootsTest LINK Mek::Roots): one test program from Test and its folders, every case known to ctest.
# A module with tests of internals has a second one from Test/Internals/*.cpp:
# mek_add_tests(MekRootsInternalsTest INTERNALS_OF MekRoots). Both have what stands in Test/Support. What is in
# Test/Interface are programs of their own.
function(mek_add_tests target)
    cmake_parse_arguments(ARG "" "INTERNALS_OF" "LINK;DEFINITIONS" ${ARGN})
    if(ARG_INTERNALS_OF)
        file(GLOB sources CONFIGURE_DEPENDS Test/Internals/*.cpp)
        mek_find_rooms(rooms)
        list(APPEND ARG_LINK ${ARG_INTERNALS_OF}Objects)
    else()
        file(GLOB_RECURSE sources CONFIGURE_DEPENDS Test/*.cpp)
        list(FILTER sources EXCLUDE REGEX "/Test/(Internals|Support|Interface)/")
    endif()
    if(MEK_THREADING_TESTS_ONLY)
        mek_keep_threading_tests(sources)
    endif()
    if(NOT MEK_BUILD_TESTS OR NOT sources)
        return()
    endif()
    file(GLOB support CONFIGURE_DEPENDS Test/Support/*.cpp)
    add_executable(${target} ${sources} ${support})
    target_include_directories(${target} PRIVATE Test ${rooms})
    target_link_libraries(${target} PRIVATE ${ARG_LINK} GTest::gtest_main)
    target_compile_definitions(${target} PRIVATE ${ARG_DEFINITIONS})
    mek_set_warnings(${target})
    if(NOT MSVC)
        # What is tested is optimised; the tests themselves are compiled in a third of the time when they are not.
        target_compile_options(${target} PRIVATE -O0)
    endif()
    gtest_discover_tests(${target} DISCOVERY_TIMEOUT 120 PROPERTIES TIMEOUT 900)
endfunction()

# mek_add_benchmarks(MekRootsBench LINK Mek::Roots): one program from Bench/*.cpp.
function(mek_add_benchmarks target)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS Bench/*.cpp)
    if(NOT MEK_BUILD_BENCHMARKS OR NOT sources)
        return()
    endif()
    add_executable(${target} ${sources})
    target_link_libraries(${target} PRIVATE ${ARG_LINK} benchmark::benchmark_main)
    mek_set_warnings(${target})
endfunction()

# mek_add_fuzzers(LINK Mek::Roots): one libFuzzer program per Fuzz/*.cpp, named after its file.
function(mek_add_fuzzers)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    if(NOT MEK_BUILD_FUZZERS)
        return()
    endif()
    file(GLOB sources CONFIGURE_DEPENDS Fuzz/*.cpp)
    foreach(source IN LISTS sources)
        get_filename_component(name ${source} NAME_WE)
        add_executable(${name} ${source})
        target_compile_options(${name} PRIVATE -fsanitize=fuzzer)
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
        target_link_libraries(${name} PRIVATE ${ARG_LINK})
        mek_set_warnings(${name})
    endforeach()
endfunction()

# mek_add_header_examples(MekRootsHeaderExamples LINK Mek::Roots): builds the code examples in the comments of the
# module's headers, so that none stops being true unnoticed. Test/Given has what examples take as given.
function(mek_add_header_examples target)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    find_package(Python3 COMPONENTS Interpreter)
    if(NOT MEK_BUILD_TESTS OR MEK_THREADING_TESTS_ONLY OR NOT Python3_FOUND)
        return()
    endif()
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS Src/*.h Exp/*.h)
    file(GLOB_RECURSE given CONFIGURE_DEPENDS Test/Given/*.inc)
    set(script ${PROJECT_SOURCE_DIR}/Scripts/extract_examples.py)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}.cpp)
    add_custom_command(OUTPUT ${source}
        COMMAND Python3::Interpreter ${script} ${source} ${CMAKE_CURRENT_SOURCE_DIR}/Test/Given ${headers}
        DEPENDS ${script} ${headers} ${given})
    mek_find_rooms(rooms)
    add_library(${target} OBJECT ${source})
    target_include_directories(${target} PRIVATE ${rooms})
    target_link_libraries(${target} PRIVATE ${ARG_LINK})
    # An example shows a call, and seldom what is done with its result.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-w>)
endfunction()
