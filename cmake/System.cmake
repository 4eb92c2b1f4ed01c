# The folder platform/<system>/ of the system that the program is built for. It implements cli/System.h and
# platform/RunStack.h.
if(WIN32)
  set(WXBRG_SYSTEM windows)
elseif(UNIX)
  set(WXBRG_SYSTEM posix)
endif()
if(NOT EXISTS ${PROJECT_SOURCE_DIR}/platform/${WXBRG_SYSTEM}/CMakeLists.txt)
  message(FATAL_ERROR "${CMAKE_SYSTEM_NAME} is not supported: it has no folder in platform/.")
endif()
