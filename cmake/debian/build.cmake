# What Debian wants of a build, whose packages packages.cmake describes: where it has what is installed, below /usr, and how it links. Included
# before GNUInstallDirs, whose choice is that of /usr/local. The variable hides the one of the cache, which is in force again when the option
# is off.
if(NOT BUILD_SHARED_LIBS OR NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
  message(STATUS "No packages: QELPRO_DEB is for shared libraries on Linux")
  set(QELPRO_DEB OFF)
else()
  if(CMAKE_LIBRARY_ARCHITECTURE)
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE})
  endif()
  # All that is called is found when a program starts, and the table of it is constant from then on.
  add_link_options(-Wl,-z,now)
endif()
