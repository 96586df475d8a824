# SPDX-License-Identifier: GPL-3.0-or-later
# Sets TALLYFORGE_LEVELS to the lines of the list of rooms, lowest first, and TALLYFORGE_ROOMS to
# all rooms of the calculator that need no desktop.
function(tallyforge_read_rooms file)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  file(STRINGS ${file} levels REGEX "^[^#]")
  string(REPLACE " " ";" rooms "${levels}")
  list(FILTER rooms EXCLUDE REGEX "^desktops/")
  set(TALLYFORGE_LEVELS "${levels}" PARENT_SCOPE)
  set(TALLYFORGE_ROOMS "${rooms}" PARENT_SCOPE)
endfunction()

# A room is a folder of src/ and a library of its own. It sees the rooms that it names and those
# below them; tools/check_layers checks the same on every #include.
function(tallyforge_room name)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
  string(REPLACE "/" "_" target tallyforge_${name})
  if(sources)
    add_library(${target} STATIC ${sources})
    target_link_libraries(${target} PUBLIC tallyforge_options PRIVATE $<BUILD_INTERFACE:tallyforge_checked>)
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
