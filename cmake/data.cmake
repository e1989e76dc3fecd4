# The folder that the programs are started in, build/NAME/data: languages and pictures always as they are now, options
# and the choice of language as the user left them. ZOLV_MADE holds what the build makes for it.
set(ZOLV_DATA ${PROJECT_BINARY_DIR}/data)
set(ZOLV_MADE ${PROJECT_BINARY_DIR}/made)
set(ZOLV_ICONS ${PROJECT_BINARY_DIR}/icons)

# Pictures are drawn by a program of this build; where that cannot run, a build for this machine has drawn them before.
set(ZOLV_DRAWN "" CACHE PATH "A build whose pictures are taken")
if(ZOLV_DRAWN)
  set(ZOLV_MADE ${ZOLV_DRAWN}/made)
  set(ZOLV_ICONS ${ZOLV_DRAWN}/icons)
endif()

add_custom_target(data ALL
  COMMAND ${CMAKE_COMMAND} -D "FROM=${PROJECT_SOURCE_DIR}/data$<SEMICOLON>${ZOLV_MADE}" -D TO=${ZOLV_DATA}
          -P ${PROJECT_SOURCE_DIR}/cmake/fill_data.cmake
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/examples ${ZOLV_DATA}/examples
  COMMENT "Filling ${ZOLV_DATA}"
  VERBATIM)
add_dependencies(programs data)

find_package(Qt6 QUIET COMPONENTS Gui)
if(Qt6Gui_FOUND AND NOT ZOLV_DRAWN)
  add_subdirectory(tools/pictures)
  set(stamp ${PROJECT_BINARY_DIR}/pictures.stamp)
  add_custom_command(OUTPUT ${stamp}
    COMMAND zolv-pictures ${ZOLV_MADE} ${ZOLV_ICONS}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS zolv-pictures
    COMMENT "Drawing the cars"
    VERBATIM)
  add_custom_target(pictures DEPENDS ${stamp})
  add_dependencies(data pictures)
endif()
