# SPDX-License-Identifier: GPL-3.0-or-later
# The texts of translations/*.ts as resources of the program, which reads them where they lie: not compressed, so that
# only the pages of the chosen language are ever in memory.

# tessaly_translations(RESULT): sets RESULT to the source that the module is to compile.
function(tessaly_translations RESULT)
    find_program(TESSALY_LRELEASE lrelease HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}" NO_DEFAULT_PATH REQUIRED)
    file(GLOB texts CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/translations/*.ts")
    set(rows "")
    set(compiled "")
    foreach(text IN LISTS texts)
        get_filename_component(name "${text}" NAME_WE)
        set(binary "${CMAKE_CURRENT_BINARY_DIR}/${name}.qm")
        add_custom_command(OUTPUT "${binary}" DEPENDS "${text}" VERBATIM
            COMMAND "${TESSALY_LRELEASE}" -silent -compress -nounfinished -removeidentical "${text}" -qm "${binary}")
        list(APPEND compiled "${binary}")
        string(APPEND rows "<file>${name}.qm</file>")
    endforeach()
    set(list "${CMAKE_CURRENT_BINARY_DIR}/translations.qrc")
    file(CONFIGURE OUTPUT "${list}" CONTENT "<RCC><qresource prefix=\"/translations\">${rows}</qresource></RCC>\n" @ONLY)
    set(source "${CMAKE_CURRENT_BINARY_DIR}/qrc_translations.cpp")
    add_custom_command(OUTPUT "${source}" DEPENDS "${list}" ${compiled} VERBATIM
        COMMAND Qt6::rcc --name translations --no-compress --output "${source}" "${list}")
    set(${RESULT} "${source}" PARENT_SCOPE)
endfunction()
