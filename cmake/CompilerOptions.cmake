# What every target of this project is compiled with. Warnings are errors where CMAKE_COMPILE_WARNING_AS_ERROR says so,
# as this project's presets do: another compiler warns of other things, and is to build the program all the same.
add_library(wxbrg_options_of_compiler INTERFACE)
if(MSVC)
  # The sources are UTF-8. Floating point is to give the same numbers on every machine.
  target_compile_options(wxbrg_options_of_compiler INTERFACE /W4 /utf-8 /permissive- /fp:precise)
elseif(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(wxbrg_options_of_compiler INTERFACE
    -Wall -Wextra -Wconversion -Wshadow
    # Floating point is to give the same numbers on every machine.
    -ffp-contract=off)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # Misreported by this compiler for "text" + std::string at -O3.
  target_compile_options(wxbrg_options_of_compiler INTERFACE $<$<CONFIG:Release>:-Wno-restrict>)
endif()
if(WXBRG_TEST_BUILD)
  target_compile_definitions(wxbrg_options_of_compiler INTERFACE WXBRG_TEST_BUILD)
endif()
if(WXBRG_SANITIZERS)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Misreported in code that sanitizers have instrumented; the other presets build with it.
    target_compile_options(wxbrg_options_of_compiler INTERFACE -Wno-maybe-uninitialized)
  endif()
  add_compile_options(-fsanitize=${WXBRG_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${WXBRG_SANITIZERS})
endif()
