# What CPack makes of a build: Debian's packages where QELPRO_DEB is on, a ZIP where it is for Windows. `./dev package` runs it.
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME qelproengine)
set(CPACK_PACKAGE_VENDOR "QELPRO developers")
set(CPACK_PACKAGE_CONTACT "QELPRO developers <qelpro@lists.example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
# Whatever the umask of whoever makes them.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# What goes into a wheel is in it by itself.
get_cmake_property(CPACK_COMPONENTS_ALL COMPONENTS)
list(REMOVE_ITEM CPACK_COMPONENTS_ALL python_wheel)

if(QELPRO_DEB)
  include(cmake/debian/packages.cmake)
elseif(WIN32)
  # One archive of everything, with a folder of its own name in it. By components, so that the list of what was installed, which the target
  # "uninstall" reads, stays that of an installation.
  set(CPACK_GENERATOR ZIP)
  set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
  set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
  set(CPACK_PACKAGE_FILE_NAME qelproengine-${PROJECT_VERSION}-windows-x86_64)
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)
  set(CPACK_STRIP_FILES ON)
else()
  return()
endif()
include(CPack)
