# What a system gets, and the Debian package of it; without the windows there is only the batch program.
include(GNUInstallDirs)
set(share ${CMAKE_INSTALL_DATADIR}/zolv)
set(doc ${CMAKE_INSTALL_DATADIR}/doc/zolv)
set(packaged ${PROJECT_BINARY_DIR}/packaging)
set(id io.github.tarmaq_zolv.Zolv)
set(CPACK_PACKAGE_CONTACT "Tarmaq Zolv developers <zolv@example.org>")

# The day of the release, from its heading in the changelog; a version that has none yet is of today.
file(STRINGS CHANGELOG.md heading LIMIT_COUNT 1 REGEX "^## \\[${PROJECT_VERSION}\\] - ")
string(REGEX MATCH "[0-9]+-[0-9]+-[0-9]+$" ZOLV_RELEASE_DATE "${heading}")
if(NOT ZOLV_RELEASE_DATE)
  string(TIMESTAMP ZOLV_RELEASE_DATE "%Y-%m-%d" UTC)
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CHANGELOG.md)

# Writes FILE.gz, as Debian wants its documents. CMake's own archive has the time in it, so that no two are the same.
find_program(GZIP gzip)
function(compress file)
  if(GZIP)
    execute_process(COMMAND ${GZIP} --best --no-name --keep --force ${packaged}/${file} COMMAND_ERROR_IS_FATAL ANY)
  else()
    file(ARCHIVE_CREATE OUTPUT ${packaged}/${file}.gz PATHS ${packaged}/${file} FORMAT raw COMPRESSION GZip)
  endif()
endfunction()

set(manuals zolv-batch.1)
if(TARGET zolv)
  list(APPEND manuals zolv.1)
endif()
foreach(manual IN LISTS manuals)
  configure_file(packaging/man/${manual}.in ${packaged}/${manual} @ONLY)
  compress(${manual})
  install(FILES ${packaged}/${manual}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
configure_file(CHANGELOG.md ${packaged}/CHANGELOG.md COPYONLY)
compress(CHANGELOG.md)

install(TARGETS zolv-batch RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES packaging/completions/zolv-batch DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES README.md packaging/copyright ${packaged}/CHANGELOG.md.gz DESTINATION ${doc})
install(DIRECTORY examples DESTINATION ${doc})

if(TARGET zolv)
  configure_file(packaging/${id}.metainfo.xml.in ${packaged}/${id}.metainfo.xml @ONLY)
  install(TARGETS zolv RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  # From the sources: those of the build's own folder hold the choices of whoever tried the build.
  install(DIRECTORY data/ DESTINATION ${share})
  install(DIRECTORY ${ZOLV_MADE}/ DESTINATION ${share})
  install(DIRECTORY examples DESTINATION ${share})  # which the dialog that opens a file offers
  install(DIRECTORY ${ZOLV_ICONS}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES packaging/${id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES packaging/${id}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME ${id}.xml)
  install(FILES ${packaged}/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES packaging/completions/zolv DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
endif()

# Debian's own form of a changelog; its date has the day of the week, which CMake cannot tell.
find_program(DATE date)
if(DATE)
  execute_process(COMMAND ${DATE} --utc --rfc-email --date=${ZOLV_RELEASE_DATE}
    OUTPUT_VARIABLE ZOLV_RELEASED OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(ZOLV_RELEASED)
  configure_file(packaging/changelog.in ${packaged}/changelog @ONLY)
  compress(changelog)
  install(FILES ${packaged}/changelog.gz DESTINATION ${doc})
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zolv)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "calculator for car set-ups of the racing simulator Tarmaq")
set(CPACK_PACKAGE_DESCRIPTION
  "Zolv works out what a set of gear ratios, tyre pressures and wing angles does\nto a car: speeds and revs in each gear, \
a standing-start run, tyre deformation,\nforces of the air and the top speed. zolv-batch does the same from a script.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-translations-l10n)  # besides the libraries: words of Qt's own dialogs
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
include(CPack)
