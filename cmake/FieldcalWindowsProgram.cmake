# The resources that Windows reads before it starts a program: version, manifest, and the rights it needs.
#
#   fieldcal_windows_program(field-calibrator "Field Calibrator" requireAdministrator)      (or asInvoker)
include_guard()

function(fieldcal_windows_program name description level)
    if(NOT WIN32)
        return()
    endif()
    enable_language(RC)
    set(templates ${PROJECT_SOURCE_DIR}/packaging/windows)
    set(manifest ${CMAKE_CURRENT_BINARY_DIR}/${name}.manifest)
    set(resources ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc)
    configure_file(${templates}/Program.manifest.in ${manifest} @ONLY)
    configure_file(${templates}/Program.rc.in ${resources} @ONLY)
    set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS ${manifest})
    target_sources(${name} PRIVATE ${resources})
endfunction()
