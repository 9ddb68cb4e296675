# SPDX-License-Identifier: Apache-2.0
#
# Configures a project that has the checkout below itself, as others use it for tests of their own.
#
#   cmake -D ROOT=<checkout> -D FOLDER=<scratch folder> -D QT=<major version> -P asSubproject.cmake

cmake_minimum_required(VERSION 3.24)

file(REMOVE_RECURSE ${FOLDER})
file(WRITE ${FOLDER}/main.cpp "#include <maya/MObject.h>\nint main() {}\n")
file(WRITE ${FOLDER}/CMakeLists.txt "
cmake_minimum_required(VERSION 3.24)
project(Other LANGUAGES CXX)
add_subdirectory(${ROOT} korvex)
add_executable(other main.cpp)
target_link_libraries(other PRIVATE Maya::Maya)
target_compile_definitions(other PRIVATE PLUGIN=\"$<TARGET_FILE:korvexPlugin>\")
")
execute_process(
  COMMAND ${CMAKE_COMMAND} -G Ninja -S ${FOLDER} -B ${FOLDER}/build -D KORVEX_QT_VERSION=${QT}
  OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${output}")
endif()
file(READ ${FOLDER}/build/build.ninja rules)
if(rules MATCHES "gtest|benchmark_main")
  message(FATAL_ERROR "the tests or benchmarks are built although nobody asked for them")
endif()
file(REMOVE_RECURSE ${FOLDER})
