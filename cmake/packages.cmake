# SPDX-License-Identifier: GPL-3.0-or-later
# Two Debian packages, made by CPack: `tallyforge-cli`, the key scripts and the data that both
# programs read, and `tallyforge`, the window, which asks for the other one. tools/package builds them.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(GZIP_PROGRAM gzip REQUIRED)
set(made ${CMAKE_CURRENT_BINARY_DIR}/package)
set(products)

# Pictures of the icons at the sizes that desktops without SVG look for.
foreach(size 16 22 24 32 48 64 128 256)
  foreach(icon apps/tallyforge mimetypes/application-x-tallyforge-program mimetypes/application-x-tallyforge-tape)
    get_filename_component(name ${icon} NAME)
    get_filename_component(kind ${icon} DIRECTORY)
    set(source ${PROJECT_SOURCE_DIR}/data/icons/${name}.svg)
    set(folder icons/hicolor/${size}x${size}/${kind})
    set(picture ${made}/${folder}/${name}.png)
    add_custom_command(OUTPUT ${picture} DEPENDS ${source}
                       COMMAND ${CMAKE_COMMAND} -E make_directory ${made}/${folder}
                       COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${picture} ${source})
    install(FILES ${picture} DESTINATION ${CMAKE_INSTALL_DATADIR}/${folder} COMPONENT window)
    list(APPEND products ${picture})
  endforeach()
endforeach()

# Compresses FILE to NAME.gz without a time in it, and installs it.
function(tallyforge_install_gz file name folder component)
  set(compressed ${made}/${component}/${name}.gz)
  add_custom_command(OUTPUT ${compressed} DEPENDS ${file}
                     COMMAND ${CMAKE_COMMAND} -E make_directory ${made}/${component}
                     COMMAND sh -c "${GZIP_PROGRAM} -9nc '${file}' > '${compressed}'" VERBATIM)
  install(FILES ${compressed} DESTINATION ${folder} COMPONENT ${component})
  set(products ${products} ${compressed} PARENT_SCOPE)
endfunction()

foreach(component window cli)
  set(package_window tallyforge)
  set(package_cli tallyforge-cli)
  set(doc ${CMAKE_INSTALL_DATADIR}/doc/${package_${component}})
  install(FILES data/debian/copyright DESTINATION ${doc} COMPONENT ${component})
  tallyforge_install_gz(${PROJECT_SOURCE_DIR}/data/debian/changelog changelog ${doc} ${component})
endforeach()
foreach(page window/tallyforge cli/tallyforge-keys)
  get_filename_component(component ${page} DIRECTORY)
  get_filename_component(name ${page} NAME)
  if(EXISTS ${PROJECT_SOURCE_DIR}/data/man/${name}.1)
    tallyforge_install_gz(${PROJECT_SOURCE_DIR}/data/man/${name}.1 ${name}.1 ${CMAKE_INSTALL_MANDIR}/man1 ${component})
  endif()
endforeach()
add_custom_target(package_files ALL DEPENDS ${products})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tallyforge)
set(CPACK_PACKAGE_CONTACT "Oakhollow <tallyforge@oakhollow.example>")
set(CPACK_PACKAGE_VENDOR Oakhollow)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL window cli)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_COMPONENTS_IGNORE_GROUPS ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION math)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME tallyforge)
set(CPACK_DEBIAN_CLI_PACKAGE_NAME tallyforge-cli)
set(CPACK_DEBIAN_WINDOW_PACKAGE_DEPENDS "tallyforge-cli (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_WINDOW_PACKAGE_RECOMMENDS "fonts-dejavu-core")
set(CPACK_DEBIAN_WINDOW_PACKAGE_SUGGESTS "qt6-wayland")
set(CPACK_DEBIAN_CLI_PACKAGE_SUGGESTS "tallyforge")
set(CPACK_DEBIAN_WINDOW_DESCRIPTION
    "RPN calculator for engineers, with a running tape
A desktop calculator that works in reverse Polish notation: a stack of any
depth, seven keypads on one bank of keys, unit conversions, calculators for
circuits and coils, wire and hardware tables, programs of keystrokes, and a
running tape from which every earlier value comes back.")
set(CPACK_DEBIAN_CLI_DESCRIPTION
    "RPN calculator for engineers, run by scripts of keys
The calculator Tallyforge without its window: it reads what a hand does, a
line an action, and prints what an eye would see. It also converts units line
by line and checks programs.
.
The package holds the data that both programs read.")
include(CPack)
