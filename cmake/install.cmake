include(CMakePackageConfigHelpers)

# What is installed is of one of these components: library (what a program needs that is linked), development (what a program needs to be
# linked), tool, python and licence. Without being asked for one, all of them are installed.
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development FILES_MATCHING PATTERN "*.h")
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT licence)

# From the folder of the .pc files back to the prefix.
file(RELATIVE_PATH back_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)

file(READ cmake/no_components.cmake QELPRO_NO_COMPONENTS)
foreach(package QELG QELPROEngine)
  set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
  install(TARGETS ${package} EXPORT ${package}Targets
          RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
          INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT ${package}Targets NAMESPACE ${package}:: DESTINATION ${package_dir} COMPONENT development)
  configure_package_config_file(cmake/${package}Config.cmake.in ${package}Config.cmake INSTALL_DESTINATION ${package_dir})
  write_basic_package_version_file(${package}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake ${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake
          DESTINATION ${package_dir} COMPONENT development)
  string(TOLOWER ${package} pc_name)
  string(TOUPPER " -D${package}_STATIC" ${package}_pc_definition)
  if(BUILD_SHARED_LIBS)
    set(${package}_pc_definition "")
  endif()
  configure_file(cmake/${pc_name}.pc.in ${pc_name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${pc_name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endforeach()

if(QELPRO_TOOL)
  install(TARGETS qelpro RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
  if(NOT CMAKE_CROSSCOMPILING)
    set(pages ${PROJECT_BINARY_DIR}/tool_pages)
    install(DIRECTORY ${pages}/man/ DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT tool)
    foreach(shell bash-completion zsh fish)
      install(DIRECTORY ${pages}/${shell} DESTINATION ${CMAKE_INSTALL_DATAROOTDIR} COMPONENT tool)
    endforeach()
  endif()
endif()

if(QELPRO_TOP_LEVEL)
  add_custom_target(uninstall COMMAND ${CMAKE_COMMAND} -DMANIFEST=${CMAKE_BINARY_DIR}/install_manifest.txt
                                      -P ${PROJECT_SOURCE_DIR}/cmake/uninstall.cmake USES_TERMINAL)
  include(cmake/packages.cmake)
endif()
