# A compiler cache makes a second build quick; without one the build is the same, only slower.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# So does a quick linker, where there is one.
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
  add_link_options(-fuse-ld=mold)
endif()

# Warnings belong to our own targets, so they travel on an interface library and not on the whole build.
add_library(zeltrona_warnings INTERFACE)
target_compile_options(zeltrona_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# GCC 12 sees overlapping copies in an optimised std::string = "text" where there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(zeltrona_warnings INTERFACE $<$<NOT:$<CONFIG:Debug>>:-Wno-restrict>)
endif()

# Positions and lines are worked out bit for bit alike on every machine: no fused multiply-add, no fast-math.
add_library(zeltrona_exact_math INTERFACE)
target_compile_options(zeltrona_exact_math INTERFACE -ffp-contract=off -fno-fast-math)

option(ZELTRONA_ASAN "Address and undefined behaviour checks" OFF)
option(ZELTRONA_COVERAGE "Count what the tests reach" OFF)
if(ZELTRONA_ASAN)
  # With its checks in the code the compiler takes moved temporaries for unset ones; the release build still warns.
  target_compile_options(zeltrona_warnings INTERFACE -Wno-maybe-uninitialized)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(ZELTRONA_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
if(ZELTRONA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
endif()
