# What every target of this tree is compiled with.
add_library(qelpro_flags INTERFACE)
if(MSVC)
  # Written from the compiler's manual and untested: nobody has built with it yet. What is exported says the macro of export.h.
  target_compile_options(qelpro_flags INTERFACE /utf-8 /W4 /permissive- /EHsc /Zc:__cplusplus $<$<BOOL:${QELPRO_WARNINGS_AS_ERRORS}>:/WX>)
  target_compile_definitions(qelpro_flags INTERFACE _CRT_SECURE_NO_WARNINGS _CRT_NONSTDC_NO_WARNINGS)
else()
  # g++ 12 alone sees overlapping copies in sums of texts, of a length that no text has (its bug 105651).
  set(false_warnings $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
  target_compile_options(qelpro_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
                                                -Woverloaded-virtual -Wold-style-cast ${false_warnings}
                                                $<$<BOOL:${QELPRO_WARNINGS_AS_ERRORS}>:-Werror>)
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
