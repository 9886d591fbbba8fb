# SPDX-License-Identifier: Apache-2.0
# `cmake --install` makes a folder from which everything runs in place: dist/linux and dist/windows.
install(TARGETS module_audio sal style_manager TamrexDiagnostics TamrexDiagnosticsCLI audio_listener audio_speaker volume_guardian
    RUNTIME DESTINATION . LIBRARY DESTINATION .)
install(DIRECTORY "${MODULE_AUDIO_CLIPS_DIR}/" DESTINATION audio_files FILES_MATCHING PATTERN "*.wav" PATTERN "manifest.sha256"
    PATTERN ".*" EXCLUDE)
install(FILES "${CMAKE_SOURCE_DIR}/LICENSE" DESTINATION .)
# The user's guide, and what a reader of reports checks them against.
install(FILES "${CMAKE_SOURCE_DIR}/docs/graphical-host.md" "${CMAKE_SOURCE_DIR}/docs/report.schema.json" DESTINATION doc)

if(WIN32)
    # Qt, SDL and the compiler's run-time libraries travel with the bundle.
    foreach(library Qt6::Core Qt6::Gui Qt6::Widgets SDL2::SDL2)
        install(FILES $<TARGET_FILE:${library}> DESTINATION .)
    endforeach()
    foreach(runtime libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${runtime}
            OUTPUT_VARIABLE runtime_path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        install(FILES "${runtime_path}" DESTINATION .)
    endforeach()
    get_target_property(qt_core Qt6::Core LOCATION)
    cmake_path(GET qt_core PARENT_PATH qt_bin)
    foreach(plugins platforms imageformats styles)
        install(DIRECTORY "${qt_bin}/../plugins/${plugins}" DESTINATION .)
    endforeach()
endif()

include(ModuleAudioSdk)
ma_install_sdk(bundle INCLUDE_DIR include/module_audio MODULE_DIR . CONFIG_DIR lib/cmake/module_audio OPTIONS COMPONENT sdk)
