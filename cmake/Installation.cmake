# Program and delivered files; the program finds them at ../share/tafelquell from its own folder.
set(Kennung de.tafelquell.Tafelquell)
set(Paket ${PROJECT_SOURCE_DIR}/packaging)
install(TARGETS tafelquell RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES data/Tafelquell.ini data/Formulierungen.txt data/Beispiel.txt DESTINATION ${CMAKE_INSTALL_DATADIR}/tafelquell)
install(FILES ${Paket}/${Kennung}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${Paket}/${Kennung}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${Paket}/${Kennung}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME ${Kennung}.xml)
install(FILES ${Paket}/tafelquell.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${Paket}/tafelquell.de.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/de/man1 RENAME tafelquell.1)
install(DIRECTORY ${Paket}/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES src/frame/symbole/tafelquell.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
  RENAME ${Kennung}.svg)
