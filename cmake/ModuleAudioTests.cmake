# SPDX-License-Identifier: Apache-2.0
# Registers automated tests. On the Windows target every executable runs under Wine through tools/wine-run.

set(MODULE_AUDIO_RUN_DIR "${CMAKE_CURRENT_BINARY_DIR}/run")
set(MODULE_AUDIO_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen"
    "ASAN_OPTIONS=detect_leaks=1:abort_on_error=0"
    "UBSAN_OPTIONS=print_stacktrace=1")
if(MODULE_AUDIO_THREAD_SANITIZE)
    # Debian's Qt is not instrumented: what happens within it is not looked at.
    list(APPEND MODULE_AUDIO_TEST_ENVIRONMENT
        "TSAN_OPTIONS=ignore_noninstrumented_modules=1:second_deadlock_stack=1:halt_on_error=0:die_after_fork=0:exitcode=66:suppressions=${CMAKE_SOURCE_DIR}/autotests/support/tsan.supp:print_suppressions=0")
endif()
if(MODULE_AUDIO_COVERAGE)
    list(APPEND MODULE_AUDIO_TEST_ENVIRONMENT "QTEST_FUNCTION_TIMEOUT=1500000") # neither optimised nor free of counting
endif()
if(WIN32)
    # The libraries of the bundle find each other as they do beside the host's executable.
    list(APPEND MODULE_AUDIO_TEST_ENVIRONMENT "WINEPATH_FIRST=${MODULE_AUDIO_BUNDLE_DIR}")
endif()
# For the ENVIRONMENT of tests that let SDL talk to a sound server, and of no other: nothing of ours may hide behind it.
set(MODULE_AUDIO_SDL_LEAKS "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/autotests/support/lsan.supp:print_suppressions=0")
# The same for whole programs with real windows.
set(MODULE_AUDIO_HOST_LEAKS "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/autotests/support/lsan_host.supp:print_suppressions=0")

# For tests that compare the memory of a program before and after: freed blocks that the sanitizer keeps would look like growth.
set(MODULE_AUDIO_MEASURABLE "ASAN_OPTIONS=detect_leaks=1:quarantine_size_mb=1:malloc_context_size=4")

# What the preset "linux-thread" builds: the programs of all tests with the label "thread".
add_custom_target(thread_tests)
function(ma_needs_threads program)
    add_dependencies(thread_tests ${program})
endfunction()

# tools/wine-run --display lets one run at a time into a prefix. A test that is not started before its turn neither takes the
# place of another nor spends its own time on waiting. Those with managed windows take longest and have two prefixes in turn.
set_property(GLOBAL PROPERTY managed_display 1)
function(ma_wait_for_display name)
    if(NOT "--display" IN_LIST ARGN)
        return()
    endif()
    if("--qt-test" IN_LIST ARGN AND NOT "--managed" IN_LIST ARGN)
        set(prefix display)
    else()
        get_property(number GLOBAL PROPERTY managed_display)
        set(prefix managed${number})
        set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT "WINE_MANAGED_PREFIX=${number}")
        math(EXPR number "3 - ${number}")
        set_property(GLOBAL PROPERTY managed_display ${number})
    endif()
    set_property(TEST ${name} APPEND PROPERTY RESOURCE_LOCK wine-${prefix})
endfunction()

# ma_add_test_command(<name> COMMAND ... [LABELS ...] [SOUND "<arguments of tools/virtual-sound-card run>"] [ENVIRONMENT ...]
#                     [TIMEOUT s] [FOLDER dir] [SERIAL])
function(ma_add_test_command name)
    cmake_parse_arguments(PARSE_ARGV 1 A "SERIAL" "SOUND;TIMEOUT;FOLDER" "COMMAND;LABELS;ENVIRONMENT")
    set(command ${A_COMMAND})
    if(DEFINED A_SOUND)
        separate_arguments(card UNIX_COMMAND "${A_SOUND}")
        # Programs that run side by side in one Wine prefix must not give one device two descriptions.
        if(WIN32 AND "--qt-test" IN_LIST command)
            string(MD5 suffix "${A_SOUND}")
            string(SUBSTRING "${suffix}" 0 8 suffix)
            list(APPEND A_ENVIRONMENT "VIRTUAL_SOUND_CARD_SUFFIX=_${suffix}")
        endif()
        set(command "${CMAKE_SOURCE_DIR}/tools/virtual-sound-card" run ${card} -- ${command})
    endif()
    add_test(NAME ${name} COMMAND ${command})
    if(NOT A_TIMEOUT)
        set(A_TIMEOUT 120)
    endif()
    if(MODULE_AUDIO_COVERAGE) # neither optimised nor free of counting
        math(EXPR A_TIMEOUT "${A_TIMEOUT} * 5")
    endif()
    if(WIN32)
        list(APPEND A_LABELS wine)
    endif()
    set_tests_properties(${name} PROPERTIES
        LABELS "${A_LABELS}"
        TIMEOUT ${A_TIMEOUT}
        SKIP_RETURN_CODE 77
        ENVIRONMENT "${MODULE_AUDIO_TEST_ENVIRONMENT};${A_ENVIRONMENT}")
    if(WIN32)
        ma_wait_for_display(${name} ${command})
    endif()
    if(A_FOLDER)
        # Two tests of one program share the files beside it.
        set_tests_properties(${name} PROPERTIES WORKING_DIRECTORY "${A_FOLDER}")
        set_property(TEST ${name} APPEND PROPERTY RESOURCE_LOCK "${A_FOLDER}")
    endif()
    if(A_SERIAL)
        set_tests_properties(${name} PROPERTIES RUN_SERIAL ON)
    endif()
endfunction()

# A test program in a folder of its own, so that it can put files beside itself.
function(ma_test_program name)
    cmake_parse_arguments(PARSE_ARGV 1 A "" "" "SOURCES;WINDOWS;LINUX;USES;LINK;LINK_WINDOWS;LINK_LINUX;DEFINES")
    add_executable(${name})
    ma_configure_target(${name})
    ma_add_sources(${name} SOURCES ${A_SOURCES} WINDOWS ${A_WINDOWS} LINUX ${A_LINUX} LINK ${A_LINK}
        LINK_WINDOWS ${A_LINK_WINDOWS} LINK_LINUX ${A_LINK_LINUX})
    if(A_USES)
        ma_use(${name} ${A_USES})
    endif()
    target_compile_definitions(${name} PRIVATE ${A_DEFINES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${MODULE_AUDIO_RUN_DIR}/${name}")
endfunction()

# ma_add_test(<name> SOURCES ... [USES objects] [LINK ...] [DEFINES ...] [LABELS ...] [SOUND "..."] [ENVIRONMENT ...]
#             [TIMEOUT s] [SERIAL] [PROGRAM_ONLY])
function(ma_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 A "PROGRAM_ONLY;SERIAL" "SOUND;TIMEOUT"
        "SOURCES;WINDOWS;LINUX;USES;LINK;LINK_WINDOWS;LINK_LINUX;DEFINES;LABELS;ENVIRONMENT")
    ma_test_program(${name} SOURCES ${A_SOURCES} WINDOWS ${A_WINDOWS} LINUX ${A_LINUX} USES ${A_USES} LINK Qt6::Test ${A_LINK}
        LINK_WINDOWS ${A_LINK_WINDOWS} LINK_LINUX ${A_LINK_LINUX} DEFINES ${A_DEFINES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    if("thread" IN_LIST A_LABELS)
        ma_needs_threads(${name})
    endif()
    if(A_PROGRAM_ONLY)
        return()
    endif()
    if(NOT A_LABELS)
        set(A_LABELS unit)
    endif()
    set(options "")
    if(DEFINED A_SOUND)
        list(APPEND options SOUND "${A_SOUND}")
    endif()
    if(A_TIMEOUT)
        list(APPEND options TIMEOUT ${A_TIMEOUT})
    endif()
    if(A_SERIAL)
        list(APPEND options SERIAL)
    endif()
    if(WIN32)
        set(command "${CMAKE_SOURCE_DIR}/tools/wine-run" --qt-test $<TARGET_FILE:${name}>)
    else()
        set(command $<TARGET_FILE:${name}>)
    endif()
    ma_add_test_command(${name} COMMAND ${command} LABELS ${A_LABELS} ENVIRONMENT ${A_ENVIRONMENT}
        FOLDER "${MODULE_AUDIO_RUN_DIR}/${name}" ${options})
endfunction()
