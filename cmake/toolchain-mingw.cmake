# SPDX-License-Identifier: Apache-2.0
# Windows x64 by MinGW-w64, with the posix thread model (the other one has no std::thread). tools/windows-kit builds Qt, SDL and
# KissFFT with it, the windows preset builds this project against them.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

if(DEFINED ENV{MODULE_AUDIO_WINDOWS_KIT})
    set(_kit "$ENV{MODULE_AUDIO_WINDOWS_KIT}")
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(_kit "$ENV{XDG_CACHE_HOME}/module-audio/windows-kit")
else()
    set(_kit "$ENV{HOME}/.cache/module-audio/windows-kit")
endif()
# Where the kit's libraries are; while the kit itself is built, the folder that they are installed into.
set(MODULE_AUDIO_WINDOWS_KIT "${_kit}" CACHE PATH "Qt, SDL and KissFFT for Windows, as tools/windows-kit builds them")
unset(_kit)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MODULE_AUDIO_WINDOWS_KIT)

set(CMAKE_FIND_ROOT_PATH "/usr/x86_64-w64-mingw32" "${MODULE_AUDIO_WINDOWS_KIT}")
list(PREPEND CMAKE_PREFIX_PATH "${MODULE_AUDIO_WINDOWS_KIT}")

# moc, uic and rcc run here: they are those of the machine's own Qt, which is of the kit's version.
get_property(_is_try_compile GLOBAL PROPERTY IN_TRY_COMPILE)
if(NOT _is_try_compile AND NOT DEFINED CACHE{QT_HOST_PATH})
    execute_process(COMMAND qmake6 -query QT_INSTALL_PREFIX OUTPUT_VARIABLE _prefix OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND qmake6 -query QT_INSTALL_LIBS OUTPUT_VARIABLE _libraries OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(QT_HOST_PATH "${_prefix}" CACHE PATH "Prefix of the machine's own Qt")
    set(QT_HOST_PATH_CMAKE_DIR "${_libraries}/cmake" CACHE PATH "CMake packages of the machine's own Qt")
    unset(_prefix)
    unset(_libraries)
endif()
unset(_is_try_compile)
