# Program and delivered files; the program finds them at ../share/tafelquell from its own folder.
set(Kennung de.tafelquell.Tafelquell)
set(Paket ${PROJECT_SOURCE_DIR}/packaging)
install(TARGETS tafelquell RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES data/Tafelquell.ini data/Formulierungen.txt data/Beispiel.txt DESTINATION ${CMAKE_INSTALL_DATADIR}/tafelquell)
