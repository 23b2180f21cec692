# The translations in resources/Files, compiled and as one source file: a Qt resource `Translations` with :/Files/NAME.qm.
include_guard()

# The Linguist tools of Qt 5 and 6 produce the same files. Cross-builds use those of the build machine.
find_program(FIELDCAL_LRELEASE NAMES lrelease HINTS /usr/lib/qt6/bin /usr/lib/qt5/bin REQUIRED)

function(fieldcal_translations source)
    file(GLOB files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/Files/*.ts)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/translations)
    file(MAKE_DIRECTORY ${folder})
    set(listed "")
    set(compiled "")
    foreach(file ${files})
        get_filename_component(name ${file} NAME_WE)
        add_custom_command(OUTPUT ${folder}/${name}.qm DEPENDS ${file} VERBATIM
            COMMAND ${FIELDCAL_LRELEASE} -silent -nounfinished ${file} -qm ${folder}/${name}.qm)
        list(APPEND compiled ${folder}/${name}.qm)
        string(APPEND listed "        <file>${name}.qm</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT ${folder}/Translations.qrc @ONLY
        CONTENT "<RCC>\n    <qresource prefix=\"/Files\">\n@listed@    </qresource>\n</RCC>\n")
    set(resource ${folder}/Translations.cpp)
    add_custom_command(OUTPUT ${resource} DEPENDS ${compiled} ${folder}/Translations.qrc VERBATIM
        COMMAND Qt5::rcc --name Translations -o ${resource} ${folder}/Translations.qrc)
    set_source_files_properties(${resource} PROPERTIES SKIP_AUTOGEN ON)
    set(${source} ${resource} PARENT_SCOPE)
endfunction()
