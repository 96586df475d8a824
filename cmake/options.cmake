# SPDX-License-Identifier: GPL-3.0-or-later
# Compiler options that every target of ours is built with.
add_library(tallyforge_options INTERFACE)
target_include_directories(tallyforge_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tallyforge_options INTERFACE -Wall -Wextra -Wconversion -Wshadow)
if(TALLYFORGE_WERROR)
  # For developers: a newer compiler's new warning must not stop a user's build.
  target_compile_options(tallyforge_options INTERFACE -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees an overlap in every optimised assignment to a std::string (GCC bug 105329).
  target_compile_options(tallyforge_options INTERFACE -Wno-restrict)
endif()

# What the calculator's own code is compiled with beside that; its tests are compiled plain.
add_library(tallyforge_checked INTERFACE)
if(TALLYFORGE_SANITIZE)
  target_compile_options(tallyforge_checked INTERFACE -O1 -fno-omit-frame-pointer
                         -fsanitize=address,undefined -fno-sanitize-recover=all)
  target_link_options(tallyforge_options INTERFACE -fsanitize=address,undefined)
endif()
if(TALLYFORGE_FUZZ)
  target_compile_options(tallyforge_checked INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The compiler cache is used where there is one.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
