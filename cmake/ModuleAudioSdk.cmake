# SPDX-License-Identifier: Apache-2.0
# What somebody needs who builds a host: the contract's headers, and find_package(module_audio CONFIG).
include(CMakePackageConfigHelpers)

# ma_install_sdk(<layout> INCLUDE_DIR dir MODULE_DIR dir CONFIG_DIR dir [OPTIONS <options of install()>])
# The folders are relative to the installation's prefix. Each layout has a configuration of its own.
function(ma_install_sdk layout)
    cmake_parse_arguments(PARSE_ARGV 1 A "" "INCLUDE_DIR;MODULE_DIR;CONFIG_DIR" "OPTIONS")
    set(folder "${CMAKE_BINARY_DIR}/sdk/${layout}")
    set(INCLUDE_DIR "${A_INCLUDE_DIR}")
    set(MODULE_DIR "${A_MODULE_DIR}")
    configure_package_config_file("${CMAKE_SOURCE_DIR}/cmake/module_audio-config.cmake.in" "${folder}/module_audio-config.cmake"
        INSTALL_DESTINATION "${A_CONFIG_DIR}" PATH_VARS INCLUDE_DIR MODULE_DIR)
    write_basic_package_version_file("${folder}/module_audio-config-version.cmake" COMPATIBILITY SameMajorVersion)
    install(DIRECTORY "${CMAKE_SOURCE_DIR}/contract" DESTINATION "${A_INCLUDE_DIR}" ${A_OPTIONS} FILES_MATCHING PATTERN "*.h")
    install(FILES "${folder}/module_audio-config.cmake" "${folder}/module_audio-config-version.cmake"
        DESTINATION "${A_CONFIG_DIR}" ${A_OPTIONS})
endfunction()
