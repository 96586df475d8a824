# SPDX-License-Identifier: GPL-3.0-or-later
# A room is a folder of src/ and a library of its own. It sees the rooms that it names and those
# below them; tools/check_layers checks the same on every #include.
function(tallyforge_room name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
  string(REPLACE "/" "_" target tallyforge_${name})
  if(sources)
    add_library(${target} STATIC ${sources})
    target_link_libraries(${target} PUBLIC tallyforge_options)
    foreach(below ${ARGN})
      target_link_libraries(${target} PUBLIC tallyforge_${below})
    endforeach()
  else()
    add_library(${target} INTERFACE)
    foreach(below ${ARGN})
      target_link_libraries(${target} INTERFACE tallyforge_${below})
    endforeach()
  endif()
endfunction()
