# SPDX-License-Identifier: Apache-2.0
#
# Configures the checkout for folders laid out as Maya's, and looks at what was found.
#
#   cmake -D ROOT=<checkout> -D FOLDER=<scratch folder> -D QT=<major version> -P forMaya.cmake

cmake_minimum_required(VERSION 3.24)

set(libraries Foundation OpenMaya OpenMayaAnim OpenMayaUI)

# Writes the two headers that are looked at and empty libraries. `headers`: where the devkit's include folder goes.
function(lay_out headers version)
  file(REMOVE_RECURSE ${FOLDER})
  file(WRITE ${FOLDER}/${headers}/include/maya/MFn.h "")
  file(WRITE ${FOLDER}/${headers}/include/maya/MTypes.h "#define MAYA_API_VERSION ${version}\n")
  foreach(library IN LISTS libraries)
    file(WRITE ${FOLDER}/maya/lib/lib${library}.so "")
  endforeach()
endfunction()

# Configures with the options that follow; the log lands in `output`, CMake's verdict in `result`.
function(configure)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -G Ninja -S ${ROOT} -B ${FOLDER}/build -D KORVEX_QT_VERSION=${QT} ${ARGN}
    OUTPUT_VARIABLE log ERROR_VARIABLE log RESULT_VARIABLE verdict)
  set(output "${log}" PARENT_SCOPE)
  set(result ${verdict} PARENT_SCOPE)
endfunction()

function(expect_found version)
  file(READ ${FOLDER}/build/build.ninja rules)
  if(NOT result EQUAL 0 OR NOT output MATCHES "found version \"${version}\"")
    message(FATAL_ERROR "expected Maya ${version} to be found:\n${output}")
  elseif(rules MATCHES "korvexHost|gtest")
    message(FATAL_ERROR "the host or the tests are built beside Maya ${version}")
  elseif(NOT rules MATCHES "plug-ins/korvex\\.so[^\n]*libOpenMayaAnim")
    message(FATAL_ERROR "korvex.so is not linked to the libraries of Maya ${version}")
  endif()
endfunction()

lay_out(maya 20240200)
configure(-D MAYA_LOCATION=${FOLDER}/maya)
expect_found(20240200)

lay_out(devkit 201602)
configure(-D MAYA_LOCATION=${FOLDER}/maya -D MAYA_DEVKIT_LOCATION=${FOLDER}/devkit)
expect_found(201602)
file(READ ${FOLDER}/build/build.ninja rules)
if(NOT rules MATCHES "_GLIBCXX_USE_CXX11_ABI=0")
  message(FATAL_ERROR "Maya 2016 needs the old ABI of libstdc++")
endif()

lay_out(maya 20240200)
file(REMOVE ${FOLDER}/maya/lib/libOpenMayaAnim.so)
configure(-D MAYA_LOCATION=${FOLDER}/maya)
if(result EQUAL 0 OR NOT output MATCHES "missing:[ \n]*MAYA_OpenMayaAnim_LIBRARY")
  message(FATAL_ERROR "expected the missing library to be named:\n${output}")
endif()
file(REMOVE_RECURSE ${FOLDER})
