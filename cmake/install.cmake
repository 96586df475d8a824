# SPDX-License-Identifier: GPL-3.0-or-later
# What a desktop needs beside the two programs (apps/ installs those itself).
if(TALLYFORGE_QT)
  install(FILES data/tallyforge.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES data/icons/tallyforge.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
install(DIRECTORY data/programs data/charts DESTINATION ${CMAKE_INSTALL_DATADIR}/tallyforge)
install(FILES data/TIPOFDAY.TXT DESTINATION ${CMAKE_INSTALL_DATADIR}/tallyforge)
install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
