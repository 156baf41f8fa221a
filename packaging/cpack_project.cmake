# Read by cpack itself, for each package. Without a date given, everything in it is as old as the
# last commit, so that the same commit makes the same package at any hour.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND git -C ${CPACK_VELMORAN_SOURCE_DIR} log -1 --format=%ct
    OUTPUT_VARIABLE commit_date OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  if(commit_date)
    set(ENV{SOURCE_DATE_EPOCH} ${commit_date})
  endif()
endif()
