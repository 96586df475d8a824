# SPDX-License-Identifier: GPL-3.0-or-later
# Every NAME.keys is run and what it shows is compared with NAME.out.
file(GLOB scripts CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/keys/*.keys)
foreach(script ${scripts})
  get_filename_component(name ${script} NAME_WE)
  add_test(NAME keys_${name}
           COMMAND ${PROJECT_SOURCE_DIR}/tools/check_keys $<TARGET_FILE:tallyforge-keys> ${script})
endforeach()

# The session that the README shows is the worked example, and what it prints.
add_test(NAME readme_session COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tools/check_readme)

# The program around the scripts: its options and exit statuses.
add_test(NAME keys_program
         COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tools/keys_program_test $<TARGET_FILE:tallyforge-keys>)

# What a tip says to press is pressed by a script.
add_test(NAME tips_tried COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tools/check_tips)

# Sizes and materials in the help are the calculator's.
add_test(NAME help_tables
         COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tools/check_help_tables $<TARGET_FILE:tallyforge-keys>)

# The manual pages name the options that the programs have.
foreach(app tallyforge-keys tallyforge)
  if(TARGET ${app})
    add_test(NAME man_${app} COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/tools/check_man $<TARGET_FILE:${app}>
                                     ${PROJECT_SOURCE_DIR}/data/man/${app}.1)
  endif()
endforeach()
