# SPDX-License-Identifier: GPL-3.0-or-later
# Every tests/fuzz/NAME.cpp is the libFuzzer target fuzz_NAME, with its seeds in corpus/NAME/. The
# whole tree is then built by clang with the same instrumentation; use the preset "asan".
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  message(FATAL_ERROR "TALLYFORGE_FUZZ needs clang: cmake --preset asan")
endif()
file(GLOB targets CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/fuzz/*.cpp)
foreach(target ${targets})
  get_filename_component(name ${target} NAME_WE)
  add_executable(fuzz_${name} ${target})
  target_include_directories(fuzz_${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(fuzz_${name} PRIVATE tallyforge_core)
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
endforeach()
