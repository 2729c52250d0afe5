# What `cmake --install` puts down: headers, libraries, CMake package, pkg-config file, and the program with its
# manual page and its completion. The components of the package are gabarito, memory and shell.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Gabarito)
set(core platform rules keyinject state layouts combo value keyboard subclass control gabarito)

# install_component(NAME targets...): libraries of one component, found as Gabarito::TARGET.
function(install_component name)
  list(TRANSFORM ARGN PREPEND gabarito_ OUTPUT_VARIABLE targets)
  foreach(target IN LISTS ARGN)
    set_target_properties(gabarito_${target} PROPERTIES EXPORT_NAME ${target})
    get_target_property(type gabarito_${target} TYPE)
    # What is optimised at link time here has to link elsewhere too, with another compiler.
    if(type STREQUAL "STATIC_LIBRARY" AND CMAKE_INTERPROCEDURAL_OPTIMIZATION AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      target_compile_options(gabarito_${target} PRIVATE -ffat-lto-objects)
    endif()
  endforeach()
  install(TARGETS ${targets} EXPORT Gabarito-${name}
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT Gabarito-${name} NAMESPACE Gabarito:: DESTINATION ${package_dir})
endfunction()

install_component(gabarito ${core})
install_component(memory memory)
install_component(shell shell runtime)
install(DIRECTORY src/gabarito DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(DIRECTORY src/hosts/memory DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/hosts FILES_MATCHING PATTERN "*.h")
install(DIRECTORY src/shell DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")

configure_package_config_file(cmake/GabaritoConfig.cmake.in GabaritoConfig.cmake
                              INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(GabaritoConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/GabaritoConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/GabaritoConfigVersion.cmake
        DESTINATION ${package_dir})

# Static libraries are read once, so who uses stands in front of what it uses.
set(pc_libs ${core})
list(REMOVE_ITEM pc_libs gabarito)
list(REVERSE pc_libs)
list(TRANSFORM pc_libs PREPEND -lgabarito_)
list(JOIN pc_libs " " pc_libs)
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
