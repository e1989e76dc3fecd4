# What a driver unpacks, a ZIP: programs, data, examples and manual in one folder, where they find each other.
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME zolv-${PROJECT_VERSION}-windows)
set(CPACK_STRIP_FILES ON)

install(TARGETS zolv zolv-batch RUNTIME DESTINATION .)
install(DIRECTORY data/ ${ZOLV_MADE}/ DESTINATION .)
install(DIRECTORY examples DESTINATION .)
install(FILES CHANGELOG.md DESTINATION . RENAME Changes.txt)

# Terms of what is linked into the programs, and Qt's own words in other languages; Debian's packages have them.
set(documents /usr/share/doc)
install(FILES packaging/copyright DESTINATION licences RENAME zolv.txt)
install(FILES ${documents}/qt6-base-dev/copyright DESTINATION licences RENAME qt.txt)
install(FILES ${documents}/g++-mingw-w64-x86-64-posix/copyright DESTINATION licences RENAME gcc.txt)
install(FILES ${documents}/mingw-w64-x86-64-dev/copyright DESTINATION licences RENAME mingw.txt)
file(GLOB words /usr/share/qt6/translations/qtbase_*.qm)
install(FILES ${words} DESTINATION translations)
include(CPack)
