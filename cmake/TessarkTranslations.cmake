# Translations: those of translations/ are compiled into the libraries and the program, which load them
# by themselves. Without Qt's lrelease there are none, and all texts are English.

set(TESSARK_LANGUAGES ar de en fr ja)

set(tessark_qt_tools "")
if(TARGET Qt${TESSARK_QT_MAJOR}::qmake) # the tools lie beside it
    get_target_property(tessark_qmake Qt${TESSARK_QT_MAJOR}::qmake IMPORTED_LOCATION)
    get_filename_component(tessark_qt_tools "${tessark_qmake}" DIRECTORY)
endif()
foreach(tool lrelease lupdate)
    string(TOUPPER ${tool} upper_tool)
    find_program(TESSARK_${upper_tool} ${tool} PATHS ${tessark_qt_tools} NO_DEFAULT_PATH)
endforeach()
if(NOT TESSARK_LRELEASE)
    message(STATUS "Without lrelease of Qt ${TESSARK_QT_MAJOR}: no translations, all texts are English.")
endif()

# tessark_add_translations(<target> <catalog>): the files translations/<catalog>_<language>.ts.
function(tessark_add_translations target catalog)
    if(NOT TESSARK_LRELEASE)
        return()
    endif()
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/translations)
    string(MAKE_C_IDENTIFIER tessark_translations_${catalog} resource)
    set(entries "")
    set(compiled "")
    foreach(language ${TESSARK_LANGUAGES})
        set(name ${catalog}_${language})
        set(source ${PROJECT_SOURCE_DIR}/translations/${name}.ts)
        add_custom_command(OUTPUT ${folder}/${name}.qm
            COMMAND ${TESSARK_LRELEASE} -silent ${source} -qm ${folder}/${name}.qm
            DEPENDS ${source}
            VERBATIM
        )
        list(APPEND compiled ${folder}/${name}.qm)
        string(APPEND entries "<file>${name}.qm</file>")
    endforeach()
    file(CONFIGURE OUTPUT ${folder}/${resource}.qrc CONTENT
        "<RCC><qresource prefix=\"/tessark/translations\">${entries}</qresource></RCC>\n")
    add_custom_command(OUTPUT ${folder}/${resource}.cpp
        COMMAND Qt${TESSARK_QT_MAJOR}::rcc --name ${resource}
            -o ${folder}/${resource}.cpp ${folder}/${resource}.qrc
        DEPENDS ${compiled} ${folder}/${resource}.qrc
        VERBATIM
    )
    # A file of its own for each target, since what it is compiled with differs.
    set(translator ${folder}/${resource}_translator.cpp)
    file(CONFIGURE OUTPUT ${translator} CONTENT "#define TESSARK_CATALOG \"${catalog}\"
#define TESSARK_CATALOG_RESOURCE ${resource}
#include \"translations/LibraryTranslator.cpp\"
")
    target_sources(${target} PRIVATE ${folder}/${resource}.cpp ${translator})
    set_source_files_properties(${folder}/${resource}.cpp ${translator} PROPERTIES SKIP_AUTOGEN ON)
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
endfunction()
