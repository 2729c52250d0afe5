# What `cmake --install` puts down: headers, libraries, CMake package, pkg-config file, and the program with its
# manual page and its completion. The components of the package are gabarito, kit, memory, shell and qt.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Gabarito)

# Nothing is put down unless all of it can be: half a prefix would look whole. What is asked stands at the end of
# this file; here, so that it is asked first.
install(SCRIPT ${PROJECT_BINARY_DIR}/all_is_built_$<CONFIG>.cmake ALL_COMPONENTS)

# install_component(NAME FOLDER targets...): one component of the package, its libraries found as Gabarito::TARGET,
# and the headers of src/FOLDER and below.
function(install_component name folder)
  list(TRANSFORM ARGN PREPEND gabarito_ OUTPUT_VARIABLE targets)
  install(TARGETS ${targets} EXPORT Gabarito-${name}
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT Gabarito-${name} NAMESPACE Gabarito:: DESTINATION ${package_dir})
  set_property(GLOBAL APPEND PROPERTY GABARITO_INSTALLED ${targets})
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
if(GABARITO_QT)
  # One header; the others are between the field and its widgets.
  install(TARGETS gabarito_qt EXPORT Gabarito-qt ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT Gabarito-qt NAMESPACE Gabarito:: DESTINATION ${package_dir})
  install(FILES src/hosts/qt/gabarito_field.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/gabarito/qt)
  set_property(GLOBAL APPEND PROPERTY GABARITO_INSTALLED gabarito_qt)
endif()
if(TARGET gabarito_designer)
  install(TARGETS gabarito_designer LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qt6/plugins/designer)
  set_property(GLOBAL APPEND PROPERTY GABARITO_INSTALLED gabarito_designer)
endif()

configure_package_config_file(cmake/GabaritoConfig.cmake.in GabaritoConfig.cmake
                              INSTALL_DESTINATION ${package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(GabaritoConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/GabaritoConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/GabaritoConfigVersion.cmake
        DESTINATION ${package_dir})

file(RELATIVE_PATH pc_up ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})

# install_pkgconfig(NAME DESCRIPTION LIBS REQUIRES)
function(install_pkgconfig name pc_description pc_libs pc_requires)
  set(pc_name ${name})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/gabarito.pc.in ${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

install_pkgconfig(gabarito "${PROJECT_DESCRIPTION}" "-lgabarito" "")
set(memory_libs "-lgabarito_memory")
if(TARGET gabarito_kit)
  string(APPEND memory_libs " -lgabarito_kit")
endif()
install_pkgconfig(gabarito-memory "The field on its in-memory host" "${memory_libs}" "gabarito = ${PROJECT_VERSION}")
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(GABARITO_CLI AND GABARITO_QT)
  set_property(GLOBAL APPEND PROPERTY GABARITO_INSTALLED gabarito_qt_program)
  install(TARGETS gabarito_qt_program RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
if(GABARITO_CLI)
  set_property(GLOBAL APPEND PROPERTY GABARITO_INSTALLED gabarito)
  install(TARGETS gabarito RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  install(FILES docs/gabarito.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES docs/gabarito.pt_BR.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/pt_BR/man1 RENAME gabarito.1)
  install(FILES completions/gabarito.bash
          DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME gabarito)
endif()

get_property(installed GLOBAL PROPERTY GABARITO_INSTALLED)
list(TRANSFORM installed REPLACE "(.+)" "\"$<TARGET_FILE:\\1>\"" OUTPUT_VARIABLE files)
list(JOIN files " " files)
file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/all_is_built_$<CONFIG>.cmake CONTENT "foreach(file ${files})
  if(NOT EXISTS \${file})
    message(FATAL_ERROR \" nothing is installed, \${file} is missing: run cmake --build ${PROJECT_BINARY_DIR}\")
  endif()
endforeach()
")
