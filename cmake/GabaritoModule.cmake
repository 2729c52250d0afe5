# gabarito_library(NAME SOURCES ... [USES names...] [PRIVATE targets...] [OBJECT] [UNITY])
#
# One folder of src/, the one that calls, is one library: gabarito_NAME, also known as Gabarito::NAME. USES names the
# libraries of the house that its headers and sources may include, and any other target that its headers need;
# PRIVATE what its sources alone need. With OBJECT it stays a heap of object files, for gabarito_archive; with UNITY a
# quick first build (GABARITO_PRECOMPILE) compiles its sources as one, for those whose headers take most of the time.
#
# Its headers are reached as "FOLDER/name.h" through a directory of the build tree that holds one forwarding header
# for each header beside its sources and nothing else. So a target sees only the folders that it links: an include
# against the arrows does not compile, on every compiler and where a file system has no links. A forwarding header
# names the real file in full, so messages and debuggers show that one.
function(gabarito_library name)
  cmake_parse_arguments(arg "OBJECT;UNITY" "" "SOURCES;USES;PRIVATE" ${ARGN})
  set(target gabarito_${name})
  set(type STATIC)
  if(arg_OBJECT)
    set(type OBJECT)
  endif()
  add_library(${target} ${type} ${arg_SOURCES})
  gabarito_headers(${name} ${arg_SOURCES})
  if(GABARITO_PRECOMPILE)
    gabarito_precompile(${target})
    set_target_properties(${target} PROPERTIES UNITY_BUILD ${arg_UNITY} UNITY_BUILD_BATCH_SIZE 0)
  endif()

  set(used ${arg_USES})
  list(TRANSFORM used PREPEND Gabarito:: REGEX "^[a-z_]+$")
  target_link_libraries(${target} PUBLIC ${used})
  # A static library hands its own needs on to who links it; whoever finds it installed brings them himself.
  foreach(needed IN LISTS arg_PRIVATE)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:${needed}>)
  endforeach()
endfunction()

# gabarito_archive(NAME FOLDERS names...): the one library that is handed out, of all these OBJECT libraries. Who links
# it sees all their headers and those of the folder that calls.
function(gabarito_archive name)
  cmake_parse_arguments(arg "" "" "FOLDERS" ${ARGN})
  set(target gabarito_${name})
  list(TRANSFORM arg_FOLDERS REPLACE "(.+)" "$<TARGET_OBJECTS:gabarito_\\1>" OUTPUT_VARIABLE objects)
  list(TRANSFORM arg_FOLDERS REPLACE "(.+)" "$<TARGET_PROPERTY:gabarito_\\1,INTERFACE_INCLUDE_DIRECTORIES>"
       OUTPUT_VARIABLE directories)
  add_library(${target} STATIC ${objects})
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  gabarito_headers(${name})
  target_include_directories(${target} INTERFACE "$<BUILD_INTERFACE:${directories}>")
endfunction()

# What gabarito_library and gabarito_archive share: the public name, the way to the headers (of the folder that calls
# and of those where the sources given lie), the options.
function(gabarito_headers name)
  set(target gabarito_${name})
  add_library(Gabarito::${name} ALIAS ${target})
  set(source_dir ${PROJECT_SOURCE_DIR}/src)
  set(patterns ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  foreach(source IN LISTS ARGN)
    cmake_path(GET source PARENT_PATH below)
    if(below AND NOT IS_ABSOLUTE ${below})
      list(APPEND patterns ${CMAKE_CURRENT_SOURCE_DIR}/${below}/*.h)
    endif()
  endforeach()
  list(REMOVE_DUPLICATES patterns)
  file(GLOB headers CONFIGURE_DEPENDS ${patterns})

  set(include_dir ${PROJECT_BINARY_DIR}/include/${name})
  foreach(header IN LISTS headers)
    cmake_path(RELATIVE_PATH header BASE_DIRECTORY ${source_dir} OUTPUT_VARIABLE file)
    file(CONFIGURE OUTPUT ${include_dir}/${file} CONTENT "#include \"${header}\"\n" @ONLY)
  endforeach()
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${name} POSITION_INDEPENDENT_CODE ON
                                             GABARITO_HEADERS "${headers}")
  set_property(GLOBAL APPEND PROPERTY GABARITO_LIBRARIES ${name})
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${include_dir}> $<INSTALL_INTERFACE:include>)

  gabarito_options(${target})
  # What is optimised at link time here has to link elsewhere too, with another compiler.
  if(CMAKE_INTERPROCEDURAL_OPTIMIZATION AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -ffat-lto-objects)
  endif()
endfunction()

# One compiled copy of the standard headers for all libraries, so that a first build takes half the time. Headers that
# miss an include go unseen this way: the presets dev, asan and libcxx compile without it.
option(GABARITO_PRECOMPILE "Compile the standard headers once" OFF)
function(gabarito_precompile target)
  if(NOT TARGET gabarito_precompiled)
    set(source ${PROJECT_BINARY_DIR}/precompiled.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "")
    add_library(gabarito_precompiled OBJECT ${source})
    set_target_properties(gabarito_precompiled PROPERTIES POSITION_INDEPENDENT_CODE ON)
    gabarito_options(gabarito_precompiled)
    target_precompile_headers(gabarito_precompiled PRIVATE
      <algorithm> <array> <charconv> <functional> <memory> <optional> <ostream> <span> <sstream> <string>
      <string_view> <variant> <vector>)
  endif()
  target_precompile_headers(${target} REUSE_FROM gabarito_precompiled)
endfunction()

# Language level for everybody; strict warnings only when this is the project being built.
function(gabarito_options target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  if(PROJECT_IS_TOP_LEVEL)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                                             -Wextra-semi -Werror)
    # g++ 12 sees an overlap in " " + std::string() when it optimises, where there is none.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      target_compile_options(${target} PRIVATE -Wno-restrict)
    endif()
  endif()
endfunction()
