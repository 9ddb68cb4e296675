# SPDX-License-Identifier: Apache-2.0
#
# Proves that checkIncludes.cmake tells right from wrong, on trees of one or two files.
#
#   cmake -D FOLDER=<scratch folder> -P selfCheck.cmake

cmake_minimum_required(VERSION 3.24)

set(cases
  # verdict  in the file               stands the include
  "right     model/rows.cpp            model/rows.h"
  "right     model/rows.cpp            <maya/MObject.h>"
  "right     model/rows.cpp            <QString>"
  "right     model/rows.cpp            <vector>"
  "right     model/rows.cpp            plugin/processState.h"
  "wrong     model/rows.cpp            plugin/entry.h"
  "wrong     model/rows.cpp            ui/window.h"
  "wrong     model/rows.cpp            scene/node.h"
  "wrong     model/rows.cpp            <host/scene/node.h>"
  "wrong     model/rows.cpp            ../host/scene/node.h"
  "wrong     model/rows.cpp            nowhere.h"
  "wrong     ui/window.cpp             <maya/MAbsent.h>"
  "wrong     plugin/processState.h     model/rows.h"
  "right     host/scene/node.cpp       skin/weights.h"
  "wrong     host/scene/node.cpp       <maya/MObject.h>"
  "wrong     host/scene/node.cpp       mel/parser.h"
  "wrong     host/mel/parser.cpp       <QWidget>"
  "right     host/mel/parser.cpp       <tao/pegtl.hpp>"
  "right     host/mel/commands/set.cpp mel/parser.h"
  "wrong     host/mel/parser.cpp       mel/commands/set.h"
  "wrong     host/app/main.cpp         model/rows.h"
  "wrong     host/stray.cpp            <vector>")
set(headers model/rows.h ui/window.h plugin/entry.h plugin/processState.h host/include/maya/MObject.h
  host/scene/node.h host/skin/weights.h host/mel/parser.h host/mel/commands/set.h)

set(failures 0)
foreach(case IN LISTS cases)
  separate_arguments(words UNIX_COMMAND "${case}")
  list(GET words 0 verdict)
  list(GET words 1 path)
  list(GET words 2 included)
  if(NOT included MATCHES "^<")
    set(included "\"${included}\"")
  endif()
  file(REMOVE_RECURSE ${FOLDER})
  foreach(header IN LISTS headers)
    file(WRITE ${FOLDER}/${header} "#pragma once\n")
  endforeach()
  file(WRITE ${FOLDER}/${path} "// First line.\n#include ${included}\n")
  execute_process(COMMAND ${CMAKE_COMMAND} -D ROOT=${FOLDER} -P ${CMAKE_CURRENT_LIST_DIR}/checkIncludes.cmake
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  set(found right)
  if(NOT result EQUAL 0)
    set(found wrong)
  endif()
  if(NOT found STREQUAL verdict OR (verdict STREQUAL "wrong" AND NOT output MATCHES "${path}: "))
    message("${path} with ${included}: expected ${verdict}, the check said:\n${output}")
    math(EXPR failures "${failures} + 1")
  endif()
endforeach()
file(REMOVE_RECURSE ${FOLDER})
if(failures)
  message(FATAL_ERROR "${failures} wrong verdicts")
endif()
