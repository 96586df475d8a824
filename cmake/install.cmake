# SPDX-License-Identifier: GPL-3.0-or-later
# What a desktop needs beside the two programs (apps/ installs those itself). The component `window`
# is what needs a display; `cli` is the rest, with the data that both programs read.
if(TALLYFORGE_QT)
  set(share ${CMAKE_INSTALL_DATADIR})
  configure_file(data/metainfo/com.oakhollow.tallyforge.metainfo.xml.in com.oakhollow.tallyforge.metainfo.xml @ONLY)
  install(FILES data/tallyforge.desktop DESTINATION ${share}/applications COMPONENT window)
  install(FILES data/icons/tallyforge.svg DESTINATION ${share}/icons/hicolor/scalable/apps COMPONENT window)
  install(FILES data/icons/application-x-tallyforge-program.svg data/icons/application-x-tallyforge-tape.svg
          DESTINATION ${share}/icons/hicolor/scalable/mimetypes COMPONENT window)
  install(FILES data/mime/tallyforge.xml DESTINATION ${share}/mime/packages COMPONENT window)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/com.oakhollow.tallyforge.metainfo.xml DESTINATION ${share}/metainfo
          COMPONENT window)
  install(FILES data/completion/tallyforge DESTINATION ${share}/bash-completion/completions COMPONENT window)
  unset(share)
endif()
install(FILES data/completion/tallyforge-keys DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        COMPONENT cli)
install(DIRECTORY data/programs data/charts DESTINATION ${CMAKE_INSTALL_DATADIR}/tallyforge COMPONENT cli)
install(FILES data/TIPOFDAY.TXT DESTINATION ${CMAKE_INSTALL_DATADIR}/tallyforge COMPONENT cli)
if(NOT TALLYFORGE_PACKAGES)
  install(FILES data/man/tallyforge-keys.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  if(TALLYFORGE_QT)
    install(FILES data/man/tallyforge.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  endif()
  install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()
