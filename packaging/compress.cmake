# Compresses manual pages and changelogs of the packages, before they are packed.
file(GLOB_RECURSE pages ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/*.[1-9]
  ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/doc/*/changelog)
foreach(page ${pages})
  execute_process(COMMAND gzip -9nf ${page} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
