# pluvane_warnings: the warnings every target of ours is built with. Linked
# PRIVATE by each of our libraries, programs, tests, benchmarks and fuzz
# targets, so that third-party headers (found as SYSTEM) and generated code stay
# outside. PLUVANE_WERROR turns every warning into an error (the CI build).
option(PLUVANE_WERROR "Treat compiler warnings as errors" OFF)

add_library(pluvane_warnings INTERFACE)
target_compile_options(pluvane_warnings INTERFACE -Wall -Wextra -Wshadow -Wconversion -Wpedantic)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 reports impossible overlaps inside std::string (a known false alarm).
  target_compile_options(pluvane_warnings INTERFACE -Wno-restrict)
elseif(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  # Clang's -Wconversion also reports sign changes, GCC's does not for C++:
  # both compilers check the same conversions.
  target_compile_options(pluvane_warnings INTERFACE -Wno-sign-conversion)
endif()
if(PLUVANE_WERROR)
  target_compile_options(pluvane_warnings INTERFACE -Werror)
endif()

function(pluvane_use_warnings target)
  target_link_libraries(${target} PRIVATE pluvane_warnings)
endfunction()
