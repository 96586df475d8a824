# Each NAME.keys is run and compared with NAME.out.
file(GLOB scripts CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/keys/*.keys)
foreach(script ${scripts})
  get_filename_component(name ${script} NAME_WE)
  add_test(NAME keys_${name}
           COMMAND ${PROJECT_SOURCE_DIR}/tools/check_keys $<TARGET_FILE:tallyforge-keys> ${script})
endforeach()
