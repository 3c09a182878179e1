# Installable CMake package `orvanta_panel`: orvanta::panel, orvanta::platform, orvanta::machine.
include(CMakePackageConfigHelpers)

install(TARGETS orvanta_panel orvanta_platform orvanta_platform_interface orvanta_machine
        EXPORT orvanta_panel_targets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# Platform interface headers, host headers, the simulated machine's headers and the library's own
# headers.
install(DIRECTORY platform/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY platform/host/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY machine/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orvanta/panel
        FILES_MATCHING PATTERN "*.h" PATTERN "orvanta" EXCLUDE)
install(FILES src/orvanta/panel.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orvanta)

set(ORVANTA_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/orvanta_panel)
install(EXPORT orvanta_panel_targets NAMESPACE orvanta:: DESTINATION ${ORVANTA_CMAKE_DIR}
        FILE orvanta_panelTargets.cmake)
export(EXPORT orvanta_panel_targets NAMESPACE orvanta::
       FILE ${CMAKE_CURRENT_BINARY_DIR}/orvanta_panelTargets.cmake)

configure_package_config_file(cmake/orvanta_panelConfig.cmake.in
                              ${CMAKE_CURRENT_BINARY_DIR}/orvanta_panelConfig.cmake
                              INSTALL_DESTINATION ${ORVANTA_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/orvanta_panelConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/orvanta_panelConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/orvanta_panelConfigVersion.cmake
        DESTINATION ${ORVANTA_CMAKE_DIR})
