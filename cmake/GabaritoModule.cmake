# gabarito_module(FOLDER SOURCES ... USES ...)
#
# One folder of the field is one static library, gabarito_FOLDER, also known as Gabarito::FOLDER. Its
# headers are reached as "gabarito/FOLDER/name.h" through a directory that holds a link to this folder
# alone: a target sees only the folders that it links, so an include against the arrows does not compile.
function(gabarito_module folder)
  cmake_parse_arguments(arg "" "" "SOURCES;USES" ${ARGN})
  set(target gabarito_${folder})
  add_library(${target} STATIC ${arg_SOURCES})
  add_library(Gabarito::${folder} ALIAS ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${folder} POSITION_INDEPENDENT_CODE ON)

  set(include_dir ${CMAKE_CURRENT_BINARY_DIR}/include)
  file(MAKE_DIRECTORY ${include_dir}/gabarito)
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_dir}/gabarito/${folder} SYMBOLIC)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${include_dir}>
                                              $<INSTALL_INTERFACE:include>)
  foreach(used IN LISTS arg_USES)
    target_link_libraries(${target} PUBLIC Gabarito::${used})
  endforeach()
  gabarito_options(${target})
endfunction()

# Language level for everybody; strict warnings only when this is the project being built.
function(gabarito_options target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  if(PROJECT_IS_TOP_LEVEL)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                             -Wextra-semi -Werror)
  endif()
endfunction()
