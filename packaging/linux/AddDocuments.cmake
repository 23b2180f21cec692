# Called by CPack when the files are installed, stripped, and not yet packed.
string(REGEX REPLACE ", *" ";" packages "${CPACK_DEBIAN_PACKAGE_DEPENDS}")
execute_process(
    COMMAND ${CMAKE_CURRENT_LIST_DIR}/add-documents ${CPACK_TEMPORARY_DIRECTORY} ${CPACK_PACKAGE_VERSION} ${packages}
    COMMAND_ERROR_IS_FATAL ANY)
