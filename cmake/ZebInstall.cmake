# What `cmake --install` leaves: headers, libraries, and two CMake packages. find_package(Korvane_ZEB_engine) gives
# Korvane::ZEB_engine, find_package(Korvane_ZEB) gives Korvane_ZEB::Korvane_ZEB.

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

# Installs the CMake package of a target: its export, its version, and packaging/<package>Config.cmake.in.
function(zeb_install_package package namespace)
  set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
  install(EXPORT ${package} NAMESPACE ${namespace}:: FILE ${package}Targets.cmake DESTINATION ${folder})
  configure_package_config_file(packaging/${package}Config.cmake.in ${PROJECT_BINARY_DIR}/${package}Config.cmake
                                INSTALL_DESTINATION ${folder})
  write_basic_package_version_file(${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake
                                   COMPATIBILITY SameMinorVersion)
  install(FILES ${PROJECT_BINARY_DIR}/${package}Config.cmake ${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake
                ${ARGN}
          DESTINATION ${folder})
endfunction()

function(zeb_install_engine)
  install(TARGETS Korvane_ZEB_engine EXPORT Korvane_ZEB_engine
          INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(TARGETS zeb_optional EXPORT Korvane_ZEB_engine)
  get_property(headers GLOBAL PROPERTY ZEB_ENGINE_HEADERS)
  install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Korvane_ZEB_engine)
  install(FILES core/ZEB_Annotations.h core/ZEB_Types.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Korvane_ZEB)
  zeb_install_package(Korvane_ZEB_engine Korvane)
endfunction()

function(zeb_install_framework)
  install(TARGETS Korvane_ZEB EXPORT Korvane_ZEB FRAMEWORK DESTINATION Library/Frameworks
          INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  get_property(headers GLOBAL PROPERTY ZEB_PUBLIC_HEADERS)
  install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Korvane_ZEB)
  zeb_install_package(Korvane_ZEB Korvane_ZEB cmake/ZebPlatform.cmake)
endfunction()
