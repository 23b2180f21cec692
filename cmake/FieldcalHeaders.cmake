# Header-only libraries, each as a target with access to the library's own folder only: nlohmann_json and
# CLI11. The folder is linked into the build tree, so that a cross-build may use the headers of the machine it runs on
# without finding the rest of /usr/include.
include_guard()

function(fieldcal_headers target folder header)
    find_path(FIELDCAL_${target}_INCLUDE ${folder}/${header} PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    set(view ${PROJECT_BINARY_DIR}/headers/${target})
    file(MAKE_DIRECTORY ${view})
    file(CREATE_LINK ${FIELDCAL_${target}_INCLUDE}/${folder} ${view}/${folder} SYMBOLIC)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} SYSTEM INTERFACE ${view})
endfunction()

fieldcal_headers(nlohmann_json nlohmann json.hpp)
fieldcal_headers(CLI11 CLI CLI.hpp)
