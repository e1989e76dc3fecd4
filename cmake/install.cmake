# What a system gets, and the Debian package of it. The program works in its current folder, so the command is a
# launcher that gives each user a folder; without the windows there is only the batch program.
include(GNUInstallDirs)
set(share ${CMAKE_INSTALL_DATADIR}/zolv)
set(doc ${CMAKE_INSTALL_DATADIR}/doc/zolv)

install(TARGETS zolv-batch RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES README.md DESTINATION ${doc} OPTIONAL)
install(DIRECTORY examples DESTINATION ${doc})

if(TARGET zolv)
  configure_file(packaging/zolv.sh.in ${PROJECT_BINARY_DIR}/packaging/zolv.sh @ONLY)
  install(TARGETS zolv RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/zolv)
  install(PROGRAMS ${PROJECT_BINARY_DIR}/packaging/zolv.sh DESTINATION ${CMAKE_INSTALL_BINDIR} RENAME zolv)
  # From the sources: those of the build's own folder hold the choices of whoever tried the build.
  install(DIRECTORY data/ DESTINATION ${share})
  install(DIRECTORY ${ZOLV_MADE}/ DESTINATION ${share})
  install(DIRECTORY examples DESTINATION ${share})  # which the dialog that opens a file offers
  install(DIRECTORY ${ZOLV_ICONS}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES packaging/zolv.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/io.github.tarmaq_zolv.Zolv.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
endif()
install(DIRECTORY packaging/man/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zolv)
set(CPACK_PACKAGE_CONTACT "Tarmaq Zolv developers <zolv@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "calculator for car set-ups of the racing simulator Tarmaq")
set(CPACK_PACKAGE_DESCRIPTION
  "Zolv works out what a set of gear ratios, tyre pressures and wing angles does\nto a car: speeds and revs in each gear, \
a standing-start run, tyre deformation,\nforces of the air and the top speed. zolv-batch does the same from a script.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-translations-l10n)  # besides the libraries: words of Qt's own dialogs
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
include(CPack)
