# The compilers that every change is built and tested with, and the oldest version of each. Another one is refused here, before it
# fails somewhere inside: whoever wants to try it says so.
option(QELPRO_ANY_COMPILER "Build with a compiler that is not supported" OFF)

function(qelpro_check_compiler)
  set(oldest_GNU 12)     # MinGW-w64's g++ too
  set(oldest_Clang 14)
  set(oldest_MSVC 19.30) # flags are written for it; nobody has built with it yet
  set(oldest ${oldest_${CMAKE_CXX_COMPILER_ID}})
  set(this "${CMAKE_CXX_COMPILER_ID} ${CMAKE_CXX_COMPILER_VERSION}")
  if(oldest AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL oldest)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "MSVC")
      message(WARNING "QELPROEngine has not been built with ${this} yet.")
    endif()
    return()
  endif()
  set(supported "supported are g++ and MinGW-w64 from ${oldest_GNU} on, and clang++ from ${oldest_Clang} on")
  if(QELPRO_ANY_COMPILER)
    message(WARNING "QELPROEngine is not tested with ${this}: ${supported}.")
  else()
    message(FATAL_ERROR "QELPROEngine is not tested with ${this}: ${supported}. Configure with -DQELPRO_ANY_COMPILER=ON to try it all the same.")
  endif()
endfunction()

qelpro_check_compiler()
