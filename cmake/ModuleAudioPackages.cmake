# SPDX-License-Identifier: Apache-2.0
# The Debian packages: lib, host, clips and dev. `cmake --install` alone leaves them out; tools/package makes them.
if(WIN32)
    return()
endif()

# Everything in one folder, as in the bundle: the programs find the module, its services and the clips beside themselves.
set(MODULE_AUDIO_SYSTEM_DIR lib/module-audio)
set(packaging "${CMAKE_SOURCE_DIR}/packaging")
set(as_lib COMPONENT lib EXCLUDE_FROM_ALL)
set(as_host COMPONENT host EXCLUDE_FROM_ALL)
set(as_clips COMPONENT clips EXCLUDE_FROM_ALL)
set(as_dev COMPONENT dev EXCLUDE_FROM_ALL)
set(data_modes PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

# A symbolic link of a package, made where nothing else is.
function(ma_install_link target path component)
    cmake_path(GET path FILENAME name)
    cmake_path(GET path PARENT_PATH folder)
    set(link "${CMAKE_BINARY_DIR}/packaging/${component}/${name}")
    cmake_path(GET link PARENT_PATH link_folder)
    file(MAKE_DIRECTORY "${link_folder}")
    file(CREATE_LINK "${target}" "${link}" SYMBOLIC)
    install(FILES "${link}" DESTINATION "${folder}" COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()

install(TARGETS module_audio sal style_manager LIBRARY DESTINATION ${MODULE_AUDIO_SYSTEM_DIR} PERMISSIONS OWNER_READ OWNER_WRITE
    GROUP_READ WORLD_READ ${as_lib})

set(programs TamrexDiagnostics TamrexDiagnosticsCLI)
install(TARGETS ${programs} audio_listener audio_speaker volume_guardian RUNTIME DESTINATION ${MODULE_AUDIO_SYSTEM_DIR} ${as_host})
foreach(program IN LISTS programs)
    ma_install_link(../${MODULE_AUDIO_SYSTEM_DIR}/${program} bin/${program} host)
endforeach()
install(FILES "${packaging}/linux/tamrex-diagnostics.desktop" DESTINATION share/applications ${as_host})
install(FILES "${packaging}/linux/com.tamrex.diagnostics.metainfo.xml" DESTINATION share/metainfo ${as_host})
install(FILES "${packaging}/icons/tamrex-diagnostics.svg" DESTINATION share/icons/hicolor/scalable/apps ${as_host})
foreach(size IN ITEMS 48 128)
    install(FILES "${packaging}/icons/tamrex-diagnostics-${size}.png" DESTINATION share/icons/hicolor/${size}x${size}/apps
        RENAME tamrex-diagnostics.png ${as_host})
endforeach()

# Pages and completions as they come; a page is kept compressed, with the same bytes each time.
find_program(MODULE_AUDIO_GZIP gzip REQUIRED)
function(ma_install_compressed source path component)
    cmake_path(GET path FILENAME name)
    cmake_path(GET path PARENT_PATH folder)
    set(compressed "${CMAKE_BINARY_DIR}/packaging/${component}/${name}")
    file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/packaging/${component}")
    execute_process(COMMAND "${MODULE_AUDIO_GZIP}" -9 --no-name --stdout "${source}" OUTPUT_FILE "${compressed}" COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
    install(FILES "${compressed}" DESTINATION "${folder}" ${data_modes} COMPONENT ${component} EXCLUDE_FROM_ALL)
endfunction()
foreach(program IN LISTS programs)
    foreach(folder IN ITEMS "${packaging}" "${packaging}/linux")
        if(EXISTS "${folder}/${program}.1")
            ma_install_compressed("${folder}/${program}.1" share/man/man1/${program}.1.gz host)
        endif()
        if(EXISTS "${folder}/${program}.bash")
            install(FILES "${folder}/${program}.bash" DESTINATION share/bash-completion/completions RENAME ${program} ${as_host})
        endif()
    endforeach()
endforeach()

ma_install_compressed("${CMAKE_SOURCE_DIR}/docs/graphical-host.md" share/doc/tamrex-diagnostics/graphical-host.md.gz host)
install(FILES "${CMAKE_SOURCE_DIR}/docs/report.schema.json" DESTINATION share/doc/tamrex-diagnostics ${data_modes} ${as_host})

install(DIRECTORY "${MODULE_AUDIO_CLIPS_DIR}/" DESTINATION share/module-audio/audio_files ${as_clips}
    FILES_MATCHING PATTERN "*.wav" PATTERN "manifest.sha256" PATTERN ".*" EXCLUDE)
ma_install_link(../../share/module-audio/audio_files ${MODULE_AUDIO_SYSTEM_DIR}/audio_files clips)

include(ModuleAudioSdk)
ma_install_sdk(system INCLUDE_DIR include/module_audio MODULE_DIR ${MODULE_AUDIO_SYSTEM_DIR} CONFIG_DIR lib/cmake/module_audio
    OPTIONS ${as_dev})
install(DIRECTORY "${CMAKE_SOURCE_DIR}/examples" DESTINATION share/doc/module-audio-dev ${as_dev})
foreach(page IN ITEMS host-guide boundary)
    ma_install_compressed("${CMAKE_SOURCE_DIR}/docs/${page}.md" share/doc/module-audio-dev/${page}.md.gz dev)
endforeach()

set(package_lib module-audio)
set(package_host tamrex-diagnostics)
set(package_clips module-audio-clips)
set(package_dev module-audio-dev)
foreach(component IN ITEMS lib host clips dev)
    set(PACKAGE ${package_${component}})
    configure_file("${packaging}/linux/changelog.in" "${CMAKE_BINARY_DIR}/packaging/${component}.changelog" @ONLY)
    ma_install_compressed("${CMAKE_BINARY_DIR}/packaging/${component}.changelog" share/doc/${PACKAGE}/changelog.gz ${component})
    install(FILES "${packaging}/linux/copyright" DESTINATION share/doc/${PACKAGE} ${data_modes} COMPONENT ${component}
        EXCLUDE_FROM_ALL)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME module-audio)
set(CPACK_PACKAGE_VENDOR Tamrex)
set(CPACK_PACKAGE_CONTACT "Tamrex Diagnostics <diagnostics@tamrex.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL lib host clips dev)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
    WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${MODULE_AUDIO_BUNDLE_DIR}")

set(CPACK_DEBIAN_LIB_PACKAGE_NAME ${package_lib})
set(CPACK_DEBIAN_LIB_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIB_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIB_PACKAGE_RECOMMENDS "${package_clips} (= ${PROJECT_VERSION}), pulseaudio | pipewire-pulse")
set(CPACK_COMPONENT_LIB_DESCRIPTION "audio diagnostics module for hosts that load it
A library that a host application loads at run time. It lists the
machine's output devices and brings two interactive tests: spoken digits
that the user types, and a recording that the user hears back.")

set(CPACK_DEBIAN_HOST_PACKAGE_NAME ${package_host})
set(CPACK_DEBIAN_HOST_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_HOST_PACKAGE_SHLIBDEPS ON)
# The windows need plug-ins that no program names: for X, and for icons.
set(CPACK_DEBIAN_HOST_PACKAGE_DEPENDS
    "${package_lib} (= ${PROJECT_VERSION}), ${package_clips} (= ${PROJECT_VERSION}), qt6-qpa-plugins, libqt6svg6")
set(CPACK_DEBIAN_HOST_PACKAGE_RECOMMENDS "fonts-droid-fallback, fonts-dejavu-core, qt6-translations-l10n, pulseaudio | pipewire-pulse")
set(CPACK_COMPONENT_HOST_DESCRIPTION "tests loudspeakers and microphones with spoken digits
Lists the audio output devices and runs the tests of the audio
diagnostics module on them, in a window, on the command line, or with
nobody there: a listener captures what the device plays and an operator
answers the dialogs.")

set(CPACK_DEBIAN_CLIPS_PACKAGE_NAME ${package_clips})
set(CPACK_DEBIAN_CLIPS_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_CLIPS_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_CLIPS_DESCRIPTION "spoken digits for the audio diagnostics module
The digits 0 to 9 in nine languages, and the sentence that unattended
microphone tests speak. Made with a speech synthesiser.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${package_dev})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${package_lib} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS "cmake, qt6-base-dev")
set(CPACK_COMPONENT_DEV_DESCRIPTION "audio diagnostics module, files for developers of hosts
Headers of the boundary between host and module, the CMake package, the
guide for hosts and an example.")
include(CPack)
