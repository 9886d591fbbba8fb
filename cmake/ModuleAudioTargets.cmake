# SPDX-License-Identifier: Apache-2.0
# The kinds of target that this project is made of. Every target gets its standard, warnings and sanitizers from the two
# interface targets below; there are no global flags.

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(MODULE_AUDIO_BUNDLE_DIR "${CMAKE_BINARY_DIR}/bundle")

add_library(module_audio_warnings INTERFACE)
target_compile_options(module_audio_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual -Werror
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>) # GCC 12 takes std::string's operator+ for an overlapping copy (its bug 105651)

add_library(module_audio_flags INTERFACE)
target_compile_features(module_audio_flags INTERFACE cxx_std_20)
target_include_directories(module_audio_flags INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_definitions(module_audio_flags INTERFACE
    SDL_MAIN_HANDLED # the sound library's header must not redefine main
    QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)
if(WIN32)
    target_compile_definitions(module_audio_flags INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
    target_link_options(module_audio_flags INTERFACE -Wl,--dynamicbase -Wl,--high-entropy-va -Wl,--nxcompat)
endif()
if(MODULE_AUDIO_SANITIZE)
    target_compile_options(module_audio_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(module_audio_flags INTERFACE -fsanitize=address,undefined)
endif()
if(MODULE_AUDIO_THREAD_SANITIZE)
    target_compile_options(module_audio_flags INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
    target_link_options(module_audio_flags INTERFACE -fsanitize=thread)
endif()
if(MODULE_AUDIO_COVERAGE)
    # Worker threads count too, hence atomically.
    target_compile_options(module_audio_flags INTERFACE --coverage -fprofile-update=atomic -fprofile-abs-path)
    target_link_options(module_audio_flags INTERFACE --coverage)
endif()
if(MODULE_AUDIO_FUZZ)
    # The fuzzers' engine watches which branches run; the sanitizers, also for a number too large for its new type, what happens.
    set(fuzz_flags -fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow -fno-sanitize-recover=all)
    target_compile_options(module_audio_flags INTERFACE ${fuzz_flags} -fno-omit-frame-pointer)
    target_link_options(module_audio_flags INTERFACE ${fuzz_flags})
endif()

function(ma_configure_target target)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_link_libraries(${target} PRIVATE module_audio_warnings PUBLIC module_audio_flags)
endfunction()

# Adds the sources and libraries of the platform that is being built for.
function(ma_add_sources target)
    cmake_parse_arguments(PARSE_ARGV 1 A "" "OUTPUT_NAME" "SOURCES;WINDOWS;LINUX;LINK;LINK_WINDOWS;LINK_LINUX;DEPENDS;USES")
    target_sources(${target} PRIVATE ${A_SOURCES})
    target_link_libraries(${target} PUBLIC ${A_LINK})
    if(WIN32)
        target_sources(${target} PRIVATE ${A_WINDOWS})
        target_link_libraries(${target} PUBLIC ${A_LINK_WINDOWS})
    else()
        target_sources(${target} PRIVATE ${A_LINUX})
        target_link_libraries(${target} PUBLIC ${A_LINK_LINUX})
    endif()
endfunction()

# A subsystem: one OBJECT library per folder. DEPENDS are the subsystems it may use; their objects
# follow it into whatever it is linked into by ma_use.
function(ma_object_library name)
    cmake_parse_arguments(PARSE_ARGV 1 A "" "" "SOURCES;WINDOWS;LINUX;DEPENDS;LINK;LINK_WINDOWS;LINK_LINUX")
    add_library(${name} OBJECT)
    ma_configure_target(${name})
    ma_add_sources(${name} ${ARGN})
    set(closure ${A_DEPENDS})
    foreach(dependency IN LISTS A_DEPENDS)
        get_target_property(deeper ${dependency} MODULE_AUDIO_CLOSURE)
        if(deeper)
            list(APPEND closure ${deeper})
        endif()
        target_link_libraries(${name} PUBLIC ${dependency}) # its usage requirements; the objects come in by ma_use
    endforeach()
    list(REMOVE_DUPLICATES closure)
    set_target_properties(${name} PROPERTIES MODULE_AUDIO_CLOSURE "${closure}")
endfunction()

# Links subsystems, with the objects of everything below them, into an executable or the shared library.
function(ma_use target)
    foreach(library IN LISTS ARGN)
        get_target_property(closure ${library} MODULE_AUDIO_CLOSURE)
        if(NOT closure)
            set(closure "")
        endif()
        list(APPEND all ${library} ${closure})
    endforeach()
    list(REMOVE_DUPLICATES all)
    target_link_libraries(${target} PRIVATE ${all})
endfunction()

# Beside the executables on both targets, so that the bundle can be moved.
function(ma_place_in_bundle target)
    set_target_properties(${target} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${MODULE_AUDIO_BUNDLE_DIR}"
        LIBRARY_OUTPUT_DIRECTORY "${MODULE_AUDIO_BUNDLE_DIR}"
        BUILD_RPATH_USE_ORIGIN ON
        INSTALL_RPATH "$ORIGIN")
endfunction()

# A shared library of the bundle, without the "lib" prefix on either target.
function(ma_shared_library name)
    add_library(${name} SHARED)
    ma_configure_target(${name})
    ma_add_sources(${name} ${ARGN})
    set_target_properties(${name} PROPERTIES PREFIX "" IMPORT_PREFIX "")
    ma_place_in_bundle(${name})
    if(WIN32)
        target_link_options(${name} PRIVATE -Wl,--exclude-all-symbols)
    endif()
endfunction()

# A console program of the bundle.
function(ma_program name)
    cmake_parse_arguments(PARSE_ARGV 1 A "" "OUTPUT_NAME" "SOURCES;WINDOWS;LINUX;USES;LINK;LINK_WINDOWS;LINK_LINUX")
    add_executable(${name})
    ma_configure_target(${name})
    ma_add_sources(${name} ${ARGN})
    if(A_USES)
        ma_use(${name} ${A_USES})
    endif()
    if(A_OUTPUT_NAME)
        set_target_properties(${name} PROPERTIES OUTPUT_NAME ${A_OUTPUT_NAME})
    endif()
    ma_place_in_bundle(${name})
endfunction()

# What Windows shows of a file: its version, and for a program its icon and that it scales itself on each monitor.
function(ma_windows_resources target description)
    if(NOT WIN32)
        return()
    endif()
    get_target_property(type ${target} TYPE)
    set(RC_DESCRIPTION "${description}")
    set(RC_NAME ${target})
    set(RC_FILE_TYPE VFT_DLL)
    set(RC_SUFFIX ${CMAKE_SHARED_LIBRARY_SUFFIX})
    set(RC_PROGRAM_LINES "")
    if(type STREQUAL "EXECUTABLE")
        set(RC_FILE_TYPE VFT_APP)
        set(RC_SUFFIX ${CMAKE_EXECUTABLE_SUFFIX})
        string(CONCAT RC_PROGRAM_LINES "1 RT_MANIFEST \"${CMAKE_SOURCE_DIR}/cmake/windows_program.manifest\"\n"
            "1 ICON \"${CMAKE_SOURCE_DIR}/packaging/icons/tamrex-diagnostics.ico\"\n")
    endif()
    set(resources "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    configure_file("${CMAKE_SOURCE_DIR}/cmake/windows_resources.rc.in" "${resources}" @ONLY)
    target_sources(${target} PRIVATE "${resources}")
endfunction()
