# What `cmake --install` puts down: headers, libraries, CMake package, pkg-config file, and the program with its
# manual page and its completion. The components of the package are gabarito, memory and shell.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Gabarito)

# install_component(NAME FOLDER targets...): one component of the package, its libraries found as Gabarito::TARGET,
# and the headers of src/FOLDER and below.
function(install_component name folder)
  list(TRANSFORM ARGN PREPEND gabarito_ OUTPUT_VARIABLE targets)
  install(TARGETS ${targets} EXPORT Gabarito-${name}
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT Gabarito-${name} NAMESPACE Gabarito:: DESTINATION ${package_dir})
  cmake_path(GET folder PARENT_PATH above)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/${folder} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${above}
          FILES_MATCHING PATTERN "*.h")
endfunction()

install_component(gabarito gabarito gabarito)
install_component(kit hosts/kit kit)
install_component(memory hosts/memory memory)
if(TARGET gabarito_shell)
  install_component(shell shell shell runtime)
endif()

configure_package_config_file(cmake/GabaritoConfig.cmake.in GabaritoConfig.cmake
                              INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(GabaritoConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/GabaritoConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/GabaritoConfigVersion.cmake
        DESTINATION ${package_dir})

file(RELATIVE_PATH pc_up ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(gabarito.pc.in gabarito.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/gabarito.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(GABARITO_CLI)
  install(TARGETS gabarito RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES docs/gabarito.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES completions/gabarito.bash
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME gabarito)
endif()
