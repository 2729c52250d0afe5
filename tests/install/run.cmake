# cmake -D WAY=installed|subproject -D BUILD=... -D SOURCES=... -D WORK=... -D QT=ON|OFF -P run.cmake
#
# Builds the outside project in WORK in one of the two ways and compares what it prints.
cmake_minimum_required(VERSION 3.25)

set(expected "111.444.777-35\n")

# Runs a command; its output goes to `output`.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE text)
  if(NOT status EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\n${text}")
  endif()
  set(output "${text}" PARENT_SCOPE)
endfunction()

function(compare name)
  if(NOT output STREQUAL expected)
    message(FATAL_ERROR "${name} gives '${output}' for '${expected}'")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
set(options -G ${GENERATOR} -D CMAKE_CXX_COMPILER=${COMPILER} -D "CMAKE_CXX_FLAGS=${FLAGS}")
if(WAY STREQUAL "installed")
  set(prefix ${WORK}/prefix)
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
  list(APPEND options -D CMAKE_PREFIX_PATH=${prefix})
else()
  list(APPEND options -D GABARITO_SOURCES=${SOURCES})
endif()
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/project -B ${WORK}/build ${options})
run(${CMAKE_COMMAND} --build ${WORK}/build --target outside --parallel 2)
run(${WORK}/build/outside)
compare("the outside project")
if(WAY STREQUAL "subproject")
  # A file system without symbolic links has to do.
  file(GLOB_RECURSE files LIST_DIRECTORIES TRUE ${WORK}/build/*)
  foreach(file IN LISTS files)
    if(IS_SYMLINK ${file})
      message(FATAL_ERROR "${file} is a symbolic link")
    endif()
  endforeach()
  return()
endif()

# The component qt: a program on it, and what is said when it or Qt is missing.
function(refuse why)
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/project -B ${WORK}/refused ${options}
                          -D WITH_QT=ON ${ARGN}
                  RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE text)
  string(REGEX REPLACE "[ \n]+" " " text "${text}")
  if(status EQUAL 0 OR NOT text MATCHES "${why}")
    message(FATAL_ERROR "'${why}' is not said, but ${status}: ${text}")
  endif()
endfunction()
if(QT)
  set(ENV{QT_QPA_PLATFORM} offscreen)
  set(ENV{LSAN_OPTIONS} suppressions=${SOURCES}/tests/qt/not_our_leaks.txt:print_suppressions=0)
  run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/project -B ${WORK}/build -D WITH_QT=ON)
  run(${CMAKE_COMMAND} --build ${WORK}/build --target outside_qt)
  # What Qt finds to say about its surroundings is not the program's.
  execute_process(COMMAND ${WORK}/build/outside_qt RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE text)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "the program on Qt ends with ${status}: ${text}")
  endif()
  compare("the program on Qt")
  refuse("the component qt needs Qt 6.4 or later" -D CMAKE_DISABLE_FIND_PACKAGE_Qt6=ON)
  file(GLOB_RECURSE component ${prefix}/Gabarito-qt*.cmake)
  file(REMOVE ${component})
endif()
refuse("the component qt is not installed: it was built without Qt")

# A build that is not there yet: one clear line, and no prefix.
run(${CMAKE_COMMAND} -S ${SOURCES} -B ${WORK}/unbuilt -G ${GENERATOR} -D CMAKE_CXX_COMPILER=${COMPILER}
    -D GABARITO_TESTS=OFF)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${WORK}/unbuilt --prefix ${WORK}/nothing
                RESULT_VARIABLE status OUTPUT_QUIET ERROR_VARIABLE text)
string(REGEX REPLACE "[ \n]+" " " text "${text}")
if(status EQUAL 0 OR EXISTS ${WORK}/nothing OR NOT text MATCHES "nothing is installed.*is missing: run cmake --build")
  message(FATAL_ERROR "installing what is not built ends with ${status}: ${text}")
endif()

file(GLOB_RECURSE archives RELATIVE ${prefix} ${prefix}/*.a)
list(TRANSFORM archives REPLACE "^.*/" "")
if(NOT "libgabarito.a" IN_LIST archives OR archives MATCHES "_(platform|control)")
  message(FATAL_ERROR "installed archives: ${archives}")
endif()

# The program, its completion and its manual page.
run(${prefix}/bin/gabarito field --mask gbCPF --text 11144477735)
compare("the program")
foreach(file share/man/man1/gabarito.1 share/man/pt_BR/man1/gabarito.1 share/bash-completion/completions/gabarito)
  if(NOT EXISTS ${prefix}/${file})
    message(FATAL_ERROR "${file} is not installed")
  endif()
endforeach()
set(expected "gbCPF\n")
run(bash -c "source ${prefix}/share/bash-completion/completions/gabarito
COMP_WORDS=(gabarito field --mask gbCP) COMP_CWORD=3
_gabarito ${prefix}/bin/gabarito gbCP --mask
echo \${COMPREPLY[@]}")
compare("the completion")

# The example of the README without CMake: compiler and pkg-config, which tells the language level too.
find_program(pkg_config pkg-config REQUIRED)
file(GLOB_RECURSE pc ${prefix}/gabarito-memory.pc)
cmake_path(GET pc PARENT_PATH pc_dir)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
run(${pkg_config} --cflags --libs gabarito-memory)
separate_arguments(flags UNIX_COMMAND "${FLAGS} ${output}")
run(${COMPILER} ${SOURCES}/examples/embed.cpp ${flags} -o ${WORK}/embed)
run(${WORK}/embed)
set(expected "111.444.777-35\nO CPF informado é inválido.\n\n")
compare("the example")
