# SPDX-License-Identifier: Apache-2.0
#
# Installs the build tree and runs the program from there: it finds its library and its plug-in.
#
#   cmake -D BUILD=<build tree> -D FOLDER=<scratch folder> -P installed.cmake

cmake_minimum_required(VERSION 3.24)

unset(ENV{MAYA_PLUG_IN_PATH})
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER}/elsewhere)

function(expect_plugin_found case)
  execute_process(
    COMMAND ${FOLDER}/prefix/bin/korvex --batch --strict -command "loadPlugin korvex; print(`pluginInfo -q -path korvex`);"
    WORKING_DIRECTORY ${FOLDER}/elsewhere OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
  if(NOT result EQUAL 0 OR NOT output STREQUAL "${FOLDER}/prefix/plug-ins/korvex.so")
    message(FATAL_ERROR "${case}: expected the installed plug-in to be found:\n${output}")
  endif()
endfunction()

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER}/prefix OUTPUT_QUIET
  COMMAND_ERROR_IS_FATAL ANY)
expect_plugin_found("as installed")

# Where the library's folder is that of the processor (Debian's lib/x86_64-linux-gnu), plug-ins/ is not above it.
file(GLOB_RECURSE library ${FOLDER}/prefix/libkorvexHost.*)
file(MAKE_DIRECTORY ${FOLDER}/prefix/lib/of/processor)
file(COPY ${library} DESTINATION ${FOLDER}/prefix/lib/of/processor)
file(REMOVE ${library})
set(ENV{LD_LIBRARY_PATH} ${FOLDER}/prefix/lib/of/processor)
expect_plugin_found("with the library elsewhere")
file(REMOVE_RECURSE ${FOLDER})
