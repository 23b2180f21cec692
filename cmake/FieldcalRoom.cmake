# One room: a target `fieldcal_<name>` with the alias `fieldcal::<name>`, and our warnings.
#
#   fieldcal_library(session SOURCES Description.cpp LINKS fieldcal::camera Qt5::Core [KIND SHARED|INTERFACE]
#                    [PRECOMPILED <Eigen/Core>])    headers that most of its sources include, directly or not
#   fieldcal_executable(fieldcal-session SOURCES main.cpp LINKS fieldcal::workflow)
#   fieldcal_test(session_refusal SOURCES ImageRefusalTest.cpp LINKS fieldcal::session)      (ctest name: session_refusal)
#   fieldcal_test(... SCREEN)                   runs on a separate display with software rendering
#   fieldcal_test(... WAITS)                    mostly waits, so that another test runs beside it on the same processor
#   fieldcal_test(... COST 100)                 seconds it takes; those that take longest begin first
include_guard()

# Large headers of other projects, which take longer to read than most of our sources to compile.
function(fieldcal_precompile target)
    if(ARGN)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# For sources without loops over pixels or matches: half the time of compiling at -O2.
function(fieldcal_compile_quickly target)
    target_compile_options(${target} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O1>)
endfunction()

function(fieldcal_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Werror)
endfunction()

function(fieldcal_library name)
    cmake_parse_arguments(ARG "" "KIND" "SOURCES;LINKS;PRIVATE_LINKS;PRECOMPILED" ${ARGN})
    set(target fieldcal_${name})
    if(NOT ARG_KIND)
        set(ARG_KIND STATIC)
    endif()
    add_library(${target} ${ARG_KIND} ${ARG_SOURCES})
    add_library(fieldcal::${name} ALIAS ${target})
    if(ARG_KIND STREQUAL "INTERFACE")
        target_include_directories(${target} INTERFACE ${PROJECT_SOURCE_DIR})
        target_link_libraries(${target} INTERFACE ${ARG_LINKS})
    else()
        target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
        target_link_libraries(${target} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
        set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
        if(WIN32 AND ARG_KIND STREQUAL "SHARED")
            # The loader searches for NAME.dll; MinGW would name it libNAME.dll.
            set_target_properties(${target} PROPERTIES PREFIX "")
        endif()
        fieldcal_warnings(${target})
        fieldcal_precompile(${target} ${ARG_PRECOMPILED})
    endif()
endfunction()

function(fieldcal_executable name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${ARG_LINKS})
    fieldcal_warnings(${name})
endfunction()

# Tests are run with twice as many places as processors, and a test that computes takes two of them.
function(fieldcal_schedule test waits cost)
    if(NOT waits)
        set_tests_properties(${test} PROPERTIES PROCESSORS 2)
    endif()
    if(cost)
        set_tests_properties(${test} PROPERTIES COST ${cost})
    endif()
endfunction()

function(fieldcal_test name)
    if(NOT BUILD_TESTING)
        return()
    endif()
    cmake_parse_arguments(ARG "SCREEN;RECORDINGS;WAITS" "COST;TIMEOUT" "SOURCES;LINKS;LABELS;PRECOMPILED" ${ARGN})
    if(CMAKE_CROSSCOMPILING)
        set(ARG_TIMEOUT 900)  # under Wine everything takes longer
    elseif(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    fieldcal_executable(test_${name} SOURCES ${ARG_SOURCES} LINKS ${ARG_LINKS} GTest::gmock_main)
    fieldcal_compile_quickly(test_${name})
    fieldcal_precompile(test_${name} ${ARG_PRECOMPILED})
    set(command test_${name})
    if(ARG_SCREEN)
        # Not the developer's display: its windows would take the focus, and its driver would affect the pixels.
        if(FIELDCAL_SANITIZE)
            target_sources(test_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests/screen/KeepDriver.cpp)
        endif()
        set(command ${PROJECT_SOURCE_DIR}/scripts/on-screen ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:test_${name}>)
    endif()
    add_test(NAME ${name} COMMAND ${command} WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} LABELS "${ARG_LABELS}")
    fieldcal_schedule(${name} ${ARG_WAITS} "${ARG_COST}")
    if(ARG_RECORDINGS AND TARGET fieldcal_handheld)
        set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED recordings
            ENVIRONMENT FIELDCAL_RECORDINGS=${PROJECT_BINARY_DIR}/tests/recordings)
    endif()
endfunction()
