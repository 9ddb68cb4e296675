# SPDX-License-Identifier: Apache-2.0
#
# Fails when a source includes what its layer must not know, and names file, layer and include.
#
#   cmake -D ROOT=<checkout> -P checkIncludes.cmake
#
# A layer is a folder. The table says what it may include beside itself: other layers, single files, and
#   Qt      Qt's headers (<QString>, <QtGlobal>)
#   PEGTL   the parser library's (<tao/pegtl.hpp>)
#   Imath   the mathematics library's (<Imath/ImathEuler.h>)
# host/include is the Maya API: <maya/...>. Everybody may include the standard library.

cmake_minimum_required(VERSION 3.24)

set(arrows
  # layer             may include
  "host/include       Qt"
  "host/skin          "
  "host/scene         host/skin Imath"
  "host/mel/commands  host/mel host/scene host/skin host/ma"
  "host/mel           host/scene PEGTL"
  "host/ma            host/mel host/scene"
  "host/api           host/include host/scene host/skin host/mel Qt"
  "host/app           host/include host/api host/ma host/mel host/mel/commands host/scene host/skin Qt"
  "plugin/processState.h    host/include Qt"
  "plugin/sceneCallbacks.h  host/include Qt"
  "model              host/include Qt plugin/processState.h plugin/sceneCallbacks.h"
  "commands           model host/include Qt plugin/processState.h plugin/sceneCallbacks.h"
  "ui                 model commands host/include Qt"
  "plugin             ui model commands host/include Qt plugin/processState.h plugin/sceneCallbacks.h")

# The row of the table that holds for `path`: the first whose layer contains it. Sets the variables named to the
# layer and to what it may include; the layer is empty where no row holds.
function(find_layer path layer_result allowed_result)
  foreach(row IN LISTS arrows)
    separate_arguments(words UNIX_COMMAND "${row}")
    list(POP_FRONT words name)
    if("${path}/" MATCHES "^${name}/")
      set(${layer_result} ${name} PARENT_SCOPE)
      set(${allowed_result} "${words}" PARENT_SCOPE)
      return()
    endif()
  endforeach()
  set(${layer_result} "" PARENT_SCOPE)
endfunction()

# Sets `result` to what `included` means in the file `path`: a path in the checkout, "Qt", "PEGTL", "Imath", "system", or
# "unknown" if it is written as a file of ours and there is none.
function(resolve_include path quoted included result)
  set(folders "" host/ host/include/)
  if(quoted)
    get_filename_component(own ${path} DIRECTORY)
    list(PREPEND folders ${own}/)
  endif()
  foreach(folder IN LISTS folders)
    if(EXISTS "${ROOT}/${folder}${included}")
      cmake_path(SET found NORMALIZE "${folder}${included}")
      set(${result} ${found} PARENT_SCOPE)
      return()
    endif()
  endforeach()
  set(kind system)
  if(included MATCHES "\\.moc$")
    set(kind Qt)
  elseif(included MATCHES "^maya/" OR quoted)
    set(kind unknown)
  elseif(included MATCHES "^Q[A-Zt]")
    set(kind Qt)
  elseif(included MATCHES "^tao/")
    set(kind PEGTL)
  elseif(included MATCHES "^Imath/")
    set(kind Imath)
  endif()
  set(${result} ${kind} PARENT_SCOPE)
endfunction()

set(broken 0)
set(seen 0)
foreach(folder host model commands ui plugin)
  file(GLOB_RECURSE sources RELATIVE ${ROOT} ${ROOT}/${folder}/*.h ${ROOT}/${folder}/*.cpp)
  foreach(path IN LISTS sources)
    find_layer(${path} layer allowed)
    if(NOT layer)
      message("${path}: is in no layer of the table")
      math(EXPR broken "${broken} + 1")
      continue()
    endif()
    math(EXPR seen "${seen} + 1")
    file(STRINGS ${ROOT}/${path} includes REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS includes)
      if(NOT line MATCHES "include[ \t]*([<\"])([^>\"]+)")
        continue()
      endif()
      set(included ${CMAKE_MATCH_2})
      string(COMPARE EQUAL "${CMAKE_MATCH_1}" "\"" quoted)
      resolve_include(${path} ${quoted} ${included} target)
      find_layer(${target} target_layer unused)
      set(known ${layer} ${allowed} system)
      if(NOT (target IN_LIST known OR target_layer IN_LIST known))
        message("${path}: ${layer} must not include ${included} (${target})")
        math(EXPR broken "${broken} + 1")
      endif()
    endforeach()
  endforeach()
endforeach()

if(broken)
  message(FATAL_ERROR "${broken} includes against the arrows")
endif()
message(STATUS "${seen} files keep to the arrows")
