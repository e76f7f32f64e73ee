# What every module of this tree shares: language level, warnings, visibility, and one call each for a library,
# its tests, its benchmarks and its fuzz drivers. Sources are found by folder (Src, Test, Bench, Fuzz), one class per file.
#
# All of it is set on our own targets and nothing on the folder, so that a project that has this one as a part keeps the
# settings of its own.

# mek_set_up(MekRoots): how all code of this tree is compiled. What is compiled names its sources, and shared libraries,
# as seen from the project and itself, so that no binary depends on the folder that it was built in. Only what debuggers
# read names that folder, since they look there.
function(mek_set_up target)
    target_compile_features(${target} PRIVATE cxx_std_17)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        POSITION_INDEPENDENT_CODE ON
        BUILD_RPATH_USE_ORIGIN ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 $<$<BOOL:${MEK_WARNINGS_AS_ERRORS}>:/WX>)
        return()
    endif()
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${MEK_WARNINGS_AS_ERRORS}>:-Werror>
        -fmacro-prefix-map=${PROJECT_SOURCE_DIR}=.)
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

# What users of the library Mek${name} and of its objects see: its headers, here and where they are installed.
function(mek_set_usage target name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
    foreach(folder Src Exp)
        if(IS_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
            target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/${folder}>)
        endif()
    endforeach()
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PUBLIC ${ARG_LINK})
    if(NOT BUILD_SHARED_LIBS)
        target_compile_definitions(${target} PUBLIC MEK_STATIC_LIBRARIES)
    endif()
endfunction()

# mek_add_library(Units LINK Mek::Roots): the library MekUnits, for others Mek::Units, from the sources in Src of the
# calling folder and in its rooms. Users get Exp and the headers that stand directly in Src; the rooms are on the include
# path of the library's own sources, and of its tests in Test/Internals.
# MekUnitsObjects is what the library is made of. Those tests link it, since a shared library hides what is internal.
function(mek_add_library name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    set(target Mek${name})
    file(GLOB sources CONFIGURE_DEPENDS Src/*.cpp Src/*/*.cpp)
    file(GLOB headers CONFIGURE_DEPENDS Src/*.h Src/*/*.h Exp/*.h)
    mek_find_rooms(rooms)
    add_library(${target}Objects OBJECT ${sources} ${headers})
    target_include_directories(${target}Objects PRIVATE ${rooms})
    mek_set_usage(${target}Objects ${name} LINK ${ARG_LINK})
    mek_set_up(${target}Objects)
    if(BUILD_SHARED_LIBS)
        target_compile_definitions(${target}Objects PRIVATE ${target}_EXPORTS)
    endif()

    add_library(${target} $<TARGET_OBJECTS:${target}Objects>)
    add_library(Mek::${name} ALIAS ${target})
    mek_set_usage(${target} ${name} LINK ${ARG_LINK})
    mek_set_up(${target})
    set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX EXPORT_NAME ${name}
                          VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    mek_hide_standard_library(${target})
    mek_install_library(${name} LINK ${ARG_LINK})
endfunction()

# Templates of the standard library are visible wherever they are instantiated, hidden or not: that is how its headers
# declare them. The linker takes them off the list of what a shared library exports.
function(mek_hide_standard_library target)
    if(NOT BUILD_SHARED_LIBS OR NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
        return()
    endif()
    set(script ${PROJECT_SOURCE_DIR}/CMake/HiddenSymbols.map)
    target_link_options(${target} PRIVATE -Wl,--version-script=${script})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
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
    mek_set_up(${target})
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
    mek_set_up(${target})
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
        mek_set_up(${name})
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
