# SPDX-License-Identifier: Apache-2.0
#
# Finds Maya's C++ API.
#
# Where to look, each as a CMake variable or else from the environment:
#   MAYA_LOCATION         Maya's installation (on macOS its Maya.app/Contents, or the folder with Maya.app)
#   MAYA_DEVKIT_LOCATION  the devkit, if the headers do not lie in the installation (they do not since 2016)
#   MAYA_VERSION          a year; looks in the place where that release installs itself by default
#
# What is found:
#   Maya::Maya            headers, libraries, definitions and flags of a plug-in
#   MAYA_INCLUDE_DIR, MAYA_LIBRARY_DIR, MAYA_LIBRARIES, MAYA_<name>_LIBRARY, MAYA_EXECUTABLE
#   MAYA_API_VERSION      201600 for Maya 2016, 20240200 for Maya 2024.2
#   MAYA_PLUGIN_SUFFIX    .so, .mll or .bundle
#   maya_configure_plugin(target)   names a module library as Maya wants it and exports its entry points

foreach(name MAYA_LOCATION MAYA_DEVKIT_LOCATION MAYA_VERSION)
  if(NOT ${name} AND DEFINED ENV{${name}})
    set(${name} $ENV{${name}})
  endif()
endforeach()

set(_maya_roots ${MAYA_DEVKIT_LOCATION} ${MAYA_LOCATION})
if(NOT _maya_roots AND MAYA_VERSION)
  set(_maya_roots
    "C:/Program Files/Autodesk/Maya${MAYA_VERSION}"
    /usr/autodesk/maya${MAYA_VERSION}
    /Applications/Autodesk/maya${MAYA_VERSION})
endif()

# Only the places named: headers of another release elsewhere on the machine must not slip in.
find_path(MAYA_INCLUDE_DIR maya/MFn.h HINTS ${_maya_roots} NO_DEFAULT_PATH
  PATH_SUFFIXES include devkit/include ../devkit/include)
set(MAYA_LIBRARIES)
foreach(_maya_name Foundation OpenMaya OpenMayaAnim OpenMayaUI)
  find_library(MAYA_${_maya_name}_LIBRARY ${_maya_name} HINTS ${_maya_roots} NO_DEFAULT_PATH
    PATH_SUFFIXES lib MacOS Maya.app/Contents/MacOS)
  mark_as_advanced(MAYA_${_maya_name}_LIBRARY)
  list(APPEND MAYA_LIBRARIES ${MAYA_${_maya_name}_LIBRARY})
endforeach()
find_program(MAYA_EXECUTABLE maya HINTS ${_maya_roots} NO_DEFAULT_PATH
  PATH_SUFFIXES bin Maya.app/Contents/bin)
mark_as_advanced(MAYA_INCLUDE_DIR MAYA_EXECUTABLE)
if(MAYA_OpenMaya_LIBRARY)
  get_filename_component(MAYA_LIBRARY_DIR ${MAYA_OpenMaya_LIBRARY} DIRECTORY)
endif()

# Six digits up to 2017 (201602), eight from 2018 on (20180000).
set(MAYA_API_VERSION)
if(EXISTS "${MAYA_INCLUDE_DIR}/maya/MTypes.h")
  file(STRINGS ${MAYA_INCLUDE_DIR}/maya/MTypes.h _maya_line LIMIT_COUNT 1
    REGEX "#[ \t]*define[ \t]+MAYA_API_VERSION[ \t]+[0-9]+")
  if(_maya_line MATCHES "MAYA_API_VERSION[ \t]+([0-9]+)")
    set(MAYA_API_VERSION ${CMAKE_MATCH_1})
  endif()
endif()

set(MAYA_PLUGIN_SUFFIX .so)
if(WIN32)
  set(MAYA_PLUGIN_SUFFIX .mll)
elseif(APPLE)
  set(MAYA_PLUGIN_SUFFIX .bundle)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Maya
  REQUIRED_VARS MAYA_INCLUDE_DIR MAYA_API_VERSION MAYA_Foundation_LIBRARY MAYA_OpenMaya_LIBRARY
    MAYA_OpenMayaAnim_LIBRARY MAYA_OpenMayaUI_LIBRARY
  VERSION_VAR MAYA_API_VERSION)

if(MAYA_FOUND AND NOT TARGET Maya::Maya)
  add_library(Maya::Maya INTERFACE IMPORTED)
  target_include_directories(Maya::Maya INTERFACE ${MAYA_INCLUDE_DIR})
  target_link_libraries(Maya::Maya INTERFACE ${MAYA_LIBRARIES})
  target_compile_definitions(Maya::Maya INTERFACE _BOOL REQUIRE_IOSTREAM)
  if(WIN32)
    target_compile_definitions(Maya::Maya INTERFACE
      NT_PLUGIN WIN32 _WINDOWS _USRDLL _CRT_SECURE_NO_DEPRECATE)
  elseif(APPLE)
    target_compile_definitions(Maya::Maya INTERFACE MAC_PLUGIN OSMac_ OSMac_MachO_)
  else()
    # LINUX makes the headers up to 2017 include X11's, which must be installed then.
    target_compile_definitions(Maya::Maya INTERFACE LINUX LINUX_64 Bits64_)
    target_compile_options(Maya::Maya INTERFACE -pthread -funsigned-char -fno-strict-aliasing)
    target_link_options(Maya::Maya INTERFACE -Wl,-Bsymbolic)
    if(MAYA_API_VERSION LESS 20180000)
      target_compile_definitions(Maya::Maya INTERFACE UNIX FUNCPROTO _GNU_SOURCE)
    endif()
    if(MAYA_API_VERSION LESS 20240000)
      # Up to 2023 Maya itself is built with the old ABI of libstdc++.
      target_compile_definitions(Maya::Maya INTERFACE _GLIBCXX_USE_CXX11_ABI=0)
    endif()
  endif()
endif()

function(maya_configure_plugin target)
  set_target_properties(${target} PROPERTIES PREFIX "" SUFFIX ${MAYA_PLUGIN_SUFFIX})
  if(WIN32)
    target_link_options(${target} PRIVATE /export:initializePlugin /export:uninitializePlugin)
  endif()
endfunction()
