# Run with FROM, the folders to copy from, and TO, the folder to fill.
cmake_minimum_required(VERSION 3.21)
set(kept Options.ini languages.lst)  # the user's choices are stored in them

file(MAKE_DIRECTORY ${TO})
foreach(folder IN LISTS FROM)
  file(GLOB files ${folder}/*)
  foreach(file IN LISTS files)
    get_filename_component(name ${file} NAME)
    if(name IN_LIST kept AND EXISTS ${TO}/${name})
      continue()
    endif()
    if(NOT IS_DIRECTORY ${file})
      file(COPY_FILE ${file} ${TO}/${name} ONLY_IF_DIFFERENT)
    endif()
  endforeach()
endforeach()
