# The starter theme: a colour file, a style sheet and icons that a client may compile in as they are.

if(NOT DEFINED VELLUM_THEME_DIR)
    set(VELLUM_THEME_DIR ${CMAKE_CURRENT_LIST_DIR}/../theme)
endif()

# vellum_add_starter_theme(<target>): compiles the theme into the target's resources. The colours are
# then found by themselves at ":/Resource/ColorConfig.json"; the style sheet is
# ":/Resource/vellum.qss", and its icons lie under ":/Resource/icons/".
function(vellum_add_starter_theme target)
    file(GLOB icons CONFIGURE_DEPENDS RELATIVE ${VELLUM_THEME_DIR} ${VELLUM_THEME_DIR}/icons/*.svg)
    set(entries "")
    foreach(file IN ITEMS ColorConfig.json vellum.qss LISTS icons)
        string(APPEND entries "    <file alias=\"${file}\">${VELLUM_THEME_DIR}/${file}</file>\n")
    endforeach()
    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${target}_vellum_theme.qrc)
    file(CONFIGURE OUTPUT ${qrc} @ONLY CONTENT
        "<RCC>\n  <qresource prefix=\"/Resource\">\n@entries@  </qresource>\n</RCC>\n")
    target_sources(${target} PRIVATE ${qrc})
    set_target_properties(${target} PROPERTIES AUTORCC ON)
endfunction()
