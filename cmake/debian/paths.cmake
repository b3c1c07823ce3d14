# Where Debian has what is installed, below /usr: included before GNUInstallDirs, whose choice is that of /usr/local. The variable hides the
# one of the cache, which is in force again when the option is off.
if(NOT BUILD_SHARED_LIBS OR NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
  message(STATUS "No packages: QELPRO_DEB is for shared libraries on Linux")
  set(QELPRO_DEB OFF)
elseif(CMAKE_LIBRARY_ARCHITECTURE)
  set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE})
endif()
