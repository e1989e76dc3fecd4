# What Windows shows of a program: its icon, and its version and name among a file's properties. The manifest says that
# names of files may be long.
enable_language(RC)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(ZOLV_ICON ${PROJECT_BINARY_DIR}/zolv.ico)
string(REPLACE . , ZOLV_VERSION_NUMBERS "${PROJECT_VERSION}.0")

set(sizes 16 24 32 48 64 128 256)
list(TRANSFORM sizes REPLACE "(.+)" "${ZOLV_ICONS}/\\1x\\1/apps/zolv.png" OUTPUT_VARIABLE icons)
add_custom_command(OUTPUT ${ZOLV_ICON}
  COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/packaging/windows/icon.py ${ZOLV_ICON} ${icons}
  DEPENDS ${PROJECT_SOURCE_DIR}/packaging/windows/icon.py ${icons}
  VERBATIM)
add_custom_target(windows_icon DEPENDS ${ZOLV_ICON})

# Gives a program its resources, with a line that says what it is.
function(add_windows_resources ZOLV_PROGRAM ZOLV_DESCRIPTION)
  set(resources ${PROJECT_BINARY_DIR}/${ZOLV_PROGRAM}.rc)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} TARGET_DIRECTORY ${ZOLV_PROGRAM}
    PROPERTIES OBJECT_DEPENDS "${ZOLV_ICON};${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest")
  target_sources(${ZOLV_PROGRAM} PRIVATE ${resources})
  add_dependencies(${ZOLV_PROGRAM} windows_icon)
endfunction()

add_windows_resources(zolv-batch "Tarmaq Zolv for scripts")
if(TARGET zolv)
  add_windows_resources(zolv "Tarmaq Zolv")
  set_target_properties(zolv PROPERTIES WIN32_EXECUTABLE ON)  # no console behind it
  # Words of Qt's own dialogs are looked for beside the program.
  qt_add_resources(zolv qt_conf PREFIX /qt/etc BASE ${PROJECT_SOURCE_DIR}/packaging/windows
    FILES ${PROJECT_SOURCE_DIR}/packaging/windows/qt.conf)
endif()
