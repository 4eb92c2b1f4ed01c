# A room is a folder of the program. Each has an include root of its own in the build folder, which holds its headers
# and nothing else, so that a target sees the headers of those rooms only that it is given: what a room must not
# know, it cannot include.

# wxbrg_add_room(FOLDER [KNOWS FOLDER...] [USES LIBRARY...]) makes the target wxbrg_room_FOLDER (with _ for /): the
# room's headers, and those of the rooms that it knows, by which they too see what those know. The headers are
# compiled with no more than this and the libraries that they USE, by the target wxbrg_headers_of_FOLDER.
function(wxbrg_add_room folder)
  cmake_parse_arguments(ARG "" "" "KNOWS;USES" ${ARGN})
  string(REPLACE / _ name ${folder})
  set(root ${PROJECT_BINARY_DIR}/rooms/${name})
  wxbrg_forward_headers(${folder} ${root})

  add_library(wxbrg_room_${name} INTERFACE)
  target_include_directories(wxbrg_room_${name} INTERFACE ${root})
  list(TRANSFORM ARG_KNOWS REPLACE / _)
  list(TRANSFORM ARG_KNOWS PREPEND wxbrg_room_)
  target_link_libraries(wxbrg_room_${name} INTERFACE ${ARG_KNOWS})

  add_library(wxbrg_headers_of_${name} OBJECT ${root}/headers.cpp)
  target_link_libraries(wxbrg_headers_of_${name} PRIVATE wxbrg_room_${name} ${ARG_USES} wxbrg_options_of_compiler)
endfunction()

# Fills an include root: for each header of the folder a file of the same name that includes it, and headers.cpp, which
# includes them all. Links would do the same, but not every system lets every user make them. A header that is new
# or gone is noticed by the next build.
function(wxbrg_forward_headers folder root)
  file(GLOB headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/${folder}/*.h ${PROJECT_SOURCE_DIR}/${folder}/*.inc)
  set(all "")
  foreach(header ${headers})
    file(CONFIGURE OUTPUT ${root}/${header} CONTENT "#include \"${PROJECT_SOURCE_DIR}/${header}\"\n" @ONLY)
    if(header MATCHES "\\.h$")
      string(APPEND all "#include \"${header}\"\n")
    endif()
  endforeach()
  file(CONFIGURE OUTPUT ${root}/headers.cpp CONTENT "${all}" @ONLY)

  file(GLOB present RELATIVE ${root} ${root}/${folder}/*)
  foreach(file ${present})
    if(NOT file IN_LIST headers)
      file(REMOVE ${root}/${file})
    endif()
  endforeach()
endfunction()

# The rooms in their order: each knows those before it. Implementations of the platform and repository providers are
# rooms too, which their own folders add; of these, the command line tool knows the scripted platform alone.
set(known "")
foreach(room support platform aris run options mapping data model output)
  wxbrg_add_room(${room} KNOWS ${known})
  set(known ${room})
endforeach()
wxbrg_add_room(cli KNOWS output platform/scripted USES CLI11::CLI11)
wxbrg_add_room(lang)
