# The package has no components: whoever requires one has another package in mind.
foreach(component IN LISTS ${CMAKE_FIND_PACKAGE_NAME}_FIND_COMPONENTS)
  if(${CMAKE_FIND_PACKAGE_NAME}_FIND_REQUIRED_${component})
    set(${CMAKE_FIND_PACKAGE_NAME}_FOUND FALSE)
    set(${CMAKE_FIND_PACKAGE_NAME}_NOT_FOUND_MESSAGE "${CMAKE_FIND_PACKAGE_NAME} has no component \"${component}\"; it has no components at all")
    return()
  endif()
endforeach()
