# What is read once instead of once a source: headers of the language and of the test framework, never of this
# project, so that the compiler still sees which room a source includes. Each source includes what it needs;
# -D CMAKE_DISABLE_PRECOMPILE_HEADERS=ON shows that.
set(WXBRG_STANDARD_HEADERS
  <algorithm> <array> <chrono> <cstddef> <cstdint> <deque> <exception> <filesystem> <fstream> <functional> <iostream>
  <iterator> <limits> <map> <memory> <optional> <ostream> <set> <span> <sstream> <stdexcept> <string> <string_view>
  <system_error> <tuple> <unordered_map> <unordered_set> <utility> <variant> <vector>)

# A library that only holds the headers. All who share them are compiled with the same options of the machine, so
# -fPIC it is, for programs as well.
# wxbrg_add_precompiled_headers(name LIBRARIES ... HEADERS ...)
function(wxbrg_add_precompiled_headers name)
  cmake_parse_arguments(ARG "" "" "LIBRARIES;HEADERS" ${ARGN})
  file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
  add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} wxbrg_options_of_compiler)
  target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

# Gives a target the headers of a library that holds them.
function(wxbrg_reuse_precompiled_headers target headers)
  target_precompile_headers(${target} REUSE_FROM ${headers})
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE")
    target_compile_options(${target} PRIVATE -fPIC)
  endif()
endfunction()

wxbrg_add_precompiled_headers(wxbrg_standard_headers HEADERS ${WXBRG_STANDARD_HEADERS})
