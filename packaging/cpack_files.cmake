# Run by cpack when the files that it packs are in place.
set(root ${CPACK_TEMPORARY_DIRECTORY})
if(NOT CPACK_INSTALL_CMAKE_PROJECTS)
  # The sources: what the last commit holds, and nothing that lies beside it.
  set(archive ${CPACK_TOPLEVEL_DIRECTORY}/commit.tar)
  execute_process(COMMAND git -C ${CPACK_VELMORAN_SOURCE_DIR} archive --output=${archive} HEAD
    COMMAND_ERROR_IS_FATAL ANY)
  file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${root})
elseif(CPACK_GENERATOR STREQUAL DEB)
  set(prefix ${root}${CPACK_PACKAGING_INSTALL_PREFIX})
  file(RENAME ${prefix}/bin ${prefix}/games)
endif()
