# SPDX-License-Identifier: GPL-3.0-or-later
# The pages of help become one file beside the programs, the manual and the list of changes two
# pages of HTML in the folder doc.
add_executable(help-compiler help-compiler/main.cpp)
target_link_libraries(help-compiler PRIVATE tallyforge_help)

file(GLOB pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/help/*.md)
set(help ${CMAKE_CURRENT_BINARY_DIR}/tallyforge.help)
set(manual ${CMAKE_CURRENT_BINARY_DIR}/doc/manual.html)
set(changes ${CMAKE_CURRENT_BINARY_DIR}/doc/changes.html)
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/doc)
add_custom_command(OUTPUT ${help} COMMAND help-compiler --help-file ${help} ${pages} DEPENDS help-compiler ${pages}
                   VERBATIM)
add_custom_command(OUTPUT ${manual} COMMAND help-compiler --manual ${manual} ${PROJECT_VERSION} ${pages}
                   DEPENDS help-compiler ${pages} VERBATIM)
add_custom_command(OUTPUT ${changes} COMMAND help-compiler --document ${changes} ${PROJECT_SOURCE_DIR}/data/changes.md
                   DEPENDS help-compiler ${PROJECT_SOURCE_DIR}/data/changes.md VERBATIM)
add_custom_target(help-pages ALL DEPENDS ${help} ${manual} ${changes})
install(FILES ${help} DESTINATION ${CMAKE_INSTALL_DATADIR}/tallyforge COMPONENT cli)
install(FILES ${manual} ${changes} DESTINATION ${CMAKE_INSTALL_DATADIR}/tallyforge/doc COMPONENT cli)
