# x64 Windows from Debian 12: MinGW-w64 with posix threads, Qt and OpenCV from an unpacked archive of cross-built
# libraries. `./package-windows` prepares the archive; by hand: -DFIELDCAL_WINDOWS_SDK=/path/to/windows-sdk.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

if(NOT FIELDCAL_WINDOWS_SDK)
    if(DEFINED ENV{FIELDCAL_WINDOWS_SDK})
        set(FIELDCAL_WINDOWS_SDK $ENV{FIELDCAL_WINDOWS_SDK})
    else()
        get_filename_component(FIELDCAL_WINDOWS_SDK ${CMAKE_CURRENT_LIST_DIR}/../build/windows-sdk ABSOLUTE)
    endif()
endif()
set(FIELDCAL_WINDOWS_SDK ${FIELDCAL_WINDOWS_SDK} CACHE PATH "Folder with qt/ and opencv/, cross-built for Windows")
# Compiler checks configure small projects with this file again; they must see the same folder.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES FIELDCAL_WINDOWS_SDK)
if(NOT IS_DIRECTORY ${FIELDCAL_WINDOWS_SDK}/qt)
    message(FATAL_ERROR "No Windows libraries in ${FIELDCAL_WINDOWS_SDK}: set FIELDCAL_WINDOWS_SDK or run "
                        "./package-windows")
endif()

set(triplet x86_64-w64-mingw32)
# Debian's plain names may lead to the variant with Windows threads, which has no std::thread.
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)

set(CMAKE_PREFIX_PATH ${FIELDCAL_WINDOWS_SDK}/qt ${FIELDCAL_WINDOWS_SDK}/opencv)
set(CMAKE_FIND_ROOT_PATH /usr/${triplet} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Headers only, the same on every system.
set(Eigen3_DIR /usr/share/eigen3/cmake CACHE PATH "Eigen's CMake package")

# Tests of a cross-build run under Wine where there is one.
find_program(FIELDCAL_WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(FIELDCAL_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${FIELDCAL_WINE})
endif()
