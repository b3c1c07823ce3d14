# The packages, one a component. What lies in them is put into Debian's shape by finish.cmake, which also adds what they depend on because
# it is linked with.
set(debian ${PROJECT_SOURCE_DIR}/cmake/debian)
set(made ${PROJECT_BINARY_DIR}/debian)
set(revision 1)
set(version ${PROJECT_VERSION}-${revision})
set(library libqelproengine${PROJECT_VERSION_MAJOR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
# The tool and the module are a part of some builds. The licence is in each package in Debian's way.
list(REMOVE_ITEM CPACK_COMPONENTS_ALL licence)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  if(NOT component MATCHES "^(library|development|tool|python)$")
    message(FATAL_ERROR "What is installed as the component \"${component}\" is in no package")
  endif()
endforeach()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE qelproengine)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${revision})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_CONTACT}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# CPack indents the lines.
file(READ ${debian}/description.txt about)
string(REGEX REPLACE "\n$" "" about "${about}")
# Each package says itself what it is.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "process files of injection-molding simulation - libraries
${about}

This package holds the shared libraries: the engine, and the process object
of the simulator.")
# Who links the libraries needs the version that he was linked with, or a later one.
file(WRITE ${made}/shlibs "")
foreach(name QELG QELPROEngine)
  file(APPEND ${made}/shlibs "lib${name} ${PROJECT_VERSION_MAJOR} ${library} (>= ${PROJECT_VERSION})\n")
endforeach()
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${debian}/triggers ${made}/shlibs)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libqelproengine-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "process files of injection-molding simulation - development files
${about}

This package holds what a program needs to be built with the libraries:
headers, and what CMake and pkg-config are told of them.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library} (= ${version})")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME qelpro)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION science)
set(CPACK_DEBIAN_TOOL_DESCRIPTION "process files of injection-molding simulation - command line tool
${about}

This package holds the tool qelpro, which shows, changes, checks, compares
and draws process files, with its manual pages and completions for shells.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-qelpro)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_DESCRIPTION "process files of injection-molding simulation - Python module
${about}

This package holds the module qelpro for Python, which serves studies of
parameters in notebooks and on clusters.")
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS python3-numpy)
set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS "python3-matplotlib, python3-pandas")
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS python3-distributed)
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA ${debian}/postinst ${debian}/prerm)

# The licence as Debian has it, in the words of the file LICENSE.
file(READ ${PROJECT_SOURCE_DIR}/LICENSE licence)
string(REGEX MATCH "Copyright \\(c\\) ([^\n]+)\n+(.*)$" matched "${licence}")
set(holder "${CMAKE_MATCH_1}")
string(STRIP "${CMAKE_MATCH_2}" licence)
string(REGEX REPLACE "\n\n" "\n.\n" licence "${licence}")
string(REGEX REPLACE "\n" "\n " licence "${licence}")
if(holder STREQUAL "" OR licence STREQUAL "")
  message(FATAL_ERROR "LICENSE names no holder of a copyright")
endif()
configure_file(${debian}/copyright.in ${made}/copyright @ONLY)

# A version of the packages is one that the changelog tells of.
file(STRINGS ${debian}/changelog first_line LIMIT_COUNT 1)
if(NOT first_line MATCHES "^qelproengine \\(${version}\\) ")
  message(FATAL_ERROR "cmake/debian/changelog does not begin with version ${version}, but with \"${first_line}\"")
endif()
file(STRINGS ${debian}/changelog changed REGEX "^ -- .*  ")
list(GET changed 0 changed)
string(REGEX REPLACE "^.*  " "" changed "${changed}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${debian}/changelog ${debian}/description.txt ${PROJECT_SOURCE_DIR}/LICENSE)

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  list(APPEND QELPRO_PACKAGES ${component}:${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
endforeach()
configure_file(${debian}/finish.cmake.in ${made}/finish.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${made}/finish.cmake)
