# What every target of this tree is compiled with.
add_library(qelpro_flags INTERFACE)
target_compile_options(qelpro_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
                                              -Woverloaded-virtual -Wold-style-cast)
if(QELPRO_WARNINGS_AS_ERRORS)
  target_compile_options(qelpro_flags INTERFACE -Werror)
endif()
if(QELPRO_SANITIZE)
  target_compile_options(qelpro_flags INTERFACE -fsanitize=${QELPRO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
                                                $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)  # false in <regex>, under sanitizers alone
  target_link_options(qelpro_flags INTERFACE -fsanitize=${QELPRO_SANITIZE})
endif()
if(QELPRO_COVERAGE)
  target_compile_options(qelpro_flags INTERFACE --coverage)
  target_link_options(qelpro_flags INTERFACE --coverage)
endif()
