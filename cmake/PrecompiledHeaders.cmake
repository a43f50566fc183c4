# Headers that nearly every source reads are parsed once. There is one set for what has no Qt, one for
# what has, and the same two for test programs, whose code is made for executables. A target whose
# flags differ from its set's reads the headers as text.
option(LURKWELL_PRECOMPILED_HEADERS "Parse common headers once" ON)
set(CMAKE_PCH_WARN_INVALID OFF)

set(LURKWELL_STANDARD_HEADERS <algorithm> <array> <chrono> <cstdint> <cstdio> <cstring> <functional>
  <map> <memory> <optional> <span> <string> <string_view> <unordered_map> <utility> <vector>)
set(LURKWELL_TOOLKIT_HEADERS <QApplication> <QImage> <QLabel> <QPainter> <QPointer>
  <QScreen> <QTimer> <QTreeView> <QWidget>)

file(WRITE ${CMAKE_BINARY_DIR}/precompiled/nothing.cpp "int main() {}\n")

# Of tests' own sources, three quarters of all that the sanitizers' build compiles: undefined behaviour
# is looked for in what they test, and a third of the time is saved.
function(lurkwell_test_flags target)
  if(LURKWELL_SANITIZE MATCHES undefined)
    target_compile_options(${target} PRIVATE -fno-sanitize=undefined)
  endif()
endfunction()

function(lurkwell_header_set name)
  cmake_parse_arguments(ARG "PROGRAM" "" "HEADERS;LIBRARIES" ${ARGN})
  if(ARG_PROGRAM)
    add_executable(${name} ${CMAKE_BINARY_DIR}/precompiled/nothing.cpp)
    lurkwell_test_flags(${name})
  else()
    add_library(${name} STATIC ${CMAKE_BINARY_DIR}/precompiled/nothing.cpp)
  endif()
  set_target_properties(${name} PROPERTIES UNITY_BUILD OFF
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/precompiled)
  target_link_libraries(${name} PRIVATE lurkwell_options ${ARG_LIBRARIES})
  target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

function(lurkwell_precompile target set)
  if(LURKWELL_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} REUSE_FROM lurkwell_${set}_headers)
  endif()
endfunction()

function(lurkwell_header_sets)
  if(NOT LURKWELL_PRECOMPILED_HEADERS)
    return()
  endif()
  lurkwell_header_set(lurkwell_engine_headers HEADERS ${LURKWELL_STANDARD_HEADERS})
  lurkwell_header_set(lurkwell_window_headers
    HEADERS ${LURKWELL_STANDARD_HEADERS} ${LURKWELL_TOOLKIT_HEADERS}
    LIBRARIES Qt6::Widgets)
  if(LURKWELL_TESTS)
    lurkwell_header_set(lurkwell_test_headers PROGRAM
      HEADERS ${LURKWELL_STANDARD_HEADERS} <gmock/gmock.h> <gtest/gtest.h> LIBRARIES GTest::gmock)
    lurkwell_header_set(lurkwell_window_test_headers PROGRAM
      HEADERS ${LURKWELL_STANDARD_HEADERS} ${LURKWELL_TOOLKIT_HEADERS} <gmock/gmock.h> <gtest/gtest.h>
      LIBRARIES Qt6::Widgets GTest::gmock)
  endif()
endfunction()
