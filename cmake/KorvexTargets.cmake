# SPDX-License-Identifier: Apache-2.0
#
# What every folder's target is built with, as interface targets and functions:
#
#   korvexWarnings   the warnings the project is free of
#   korvexQt         Qt's Core, Gui and Widgets, of the version KORVEX_QT_VERSION
#   korvexQtTest     Qt Test of the same version

add_library(korvexWarnings INTERFACE)
if(MSVC)
  target_compile_options(korvexWarnings INTERFACE /W4 $<$<BOOL:${KORVEX_WARNINGS_AS_ERRORS}>:/WX>)
else()
  target_compile_options(korvexWarnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow
    $<$<BOOL:${KORVEX_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

add_library(korvexQt INTERFACE)
add_library(korvexQtTest INTERFACE)
if(KORVEX_QT_VERSION EQUAL 4)
  find_package(Qt4 4.8 REQUIRED QtCore QtGui)
  target_link_libraries(korvexQt INTERFACE Qt4::QtCore Qt4::QtGui)
  set(korvexQtTestTarget Qt4::QtTest)
else()
  find_package(Qt${KORVEX_QT_VERSION} REQUIRED COMPONENTS Core Gui Widgets)
  target_link_libraries(korvexQt INTERFACE
    Qt${KORVEX_QT_VERSION}::Core Qt${KORVEX_QT_VERSION}::Gui Qt${KORVEX_QT_VERSION}::Widgets)
  set(korvexQtTestTarget Qt${KORVEX_QT_VERSION}::Test)
endif()
if(KORVEX_BUILD_TESTS AND NOT KORVEX_FOR_MAYA)
  if(KORVEX_QT_VERSION EQUAL 4)
    find_package(Qt4 4.8 REQUIRED QtTest)
  else()
    find_package(Qt${KORVEX_QT_VERSION} REQUIRED COMPONENTS Test)
  endif()
  target_link_libraries(korvexQtTest INTERFACE korvexQt ${korvexQtTestTarget})
endif()

# The settings that the plug-in's four targets share. Includes start at the checkout ("model/weightTableModel.h").
# Only the entry points are visible outside the plug-in: whatever else it has must not meet Maya's own names.
function(korvex_configure_plugin_parts)
  foreach(part korvexModel korvexCommands korvexUi korvexPlugin)
    if(TARGET ${part})
      set_target_properties(${part} PROPERTIES AUTOMOC ON CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
      target_include_directories(${part} PRIVATE ${PROJECT_SOURCE_DIR})
      target_link_libraries(${part} PRIVATE Maya::Maya korvexQt korvexWarnings)
    endif()
  endforeach()
  if(TARGET korvexPlugin)
    set_target_properties(korvexPlugin PROPERTIES PREFIX "" OUTPUT_NAME korvex
      LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/plug-ins)
    if(KORVEX_FOR_MAYA)
      maya_configure_plugin(korvexPlugin)
      set_target_properties(korvexPlugin PROPERTIES INSTALL_RPATH "")
    elseif(CMAKE_SYSTEM_NAME STREQUAL Linux)
      # A missing symbol is to fail the link; else it would be loadPlugin that fails.
      target_link_options(korvexPlugin PRIVATE -Wl,--no-undefined)
    endif()
    install(TARGETS korvexPlugin LIBRARY DESTINATION plug-ins)
  endif()
endfunction()
