# cmake -DSRC=<file> -DDST=<file> -P copy_if_missing.cmake
# Places a factory file only where there is none: the live copy belongs to the teacher.
if(NOT SRC OR NOT DST)
  message(FATAL_ERROR "copy_if_missing: SRC and DST are required")
endif()
if(NOT EXISTS "${DST}")
  get_filename_component(dst_dir "${DST}" DIRECTORY)
  file(MAKE_DIRECTORY "${dst_dir}")
  file(COPY_FILE "${SRC}" "${DST}")
endif()
