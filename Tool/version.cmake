# Writes version.cpp from version.cpp.in with the standard that the schema names and the commit of the source; a file
# that says so already stays as it is.
file(STRINGS "${SCHEMA}" lines REGEX "^-- 3GPP TS " LIMIT_COUNT 1)
if(lines MATCHES "^-- 3GPP (TS [0-9.]+ V[0-9.]+) \\((Release [0-9]+)\\)\\.$")
    set(CELLGROUPCFG_STANDARD "${CMAKE_MATCH_1}")
    set(CELLGROUPCFG_RELEASE "${CMAKE_MATCH_2}")
else()
    message(FATAL_ERROR "${SCHEMA} does not name its standard")
endif()

find_program(GIT git)
set(CELLGROUPCFG_COMMIT "")
if(GIT AND EXISTS "${SOURCE}/.git")
    execute_process(
        COMMAND "${GIT}" -C "${SOURCE}" describe --always --dirty=+ --match= --abbrev=10
        OUTPUT_VARIABLE CELLGROUPCFG_COMMIT
        OUTPUT_STRIP_TRAILING_WHITESPACE
        ERROR_QUIET
    )
endif()
configure_file("${CMAKE_CURRENT_LIST_DIR}/version.cpp.in" "${OUTPUT}" @ONLY)
