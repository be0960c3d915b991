# The starter theme: a colour file, a style sheet and icons that a client may compile in as they are.
# The global property VELLUM_THEME_DIR says where they lie.

# vellum_add_starter_theme(<target>): compiles the theme into the target's resources. The colours are
# then found by themselves at ":/Resource/ColorConfig.json"; the style sheet is
# ":/Resource/vellum.qss", and its icons lie under ":/Resource/icons/".
function(vellum_add_starter_theme target)
    get_property(theme GLOBAL PROPERTY VELLUM_THEME_DIR)
    file(GLOB icons RELATIVE ${theme} ${theme}/icons/*.svg)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${theme}/icons)
    set(entries "")
    foreach(file IN ITEMS ColorConfig.json vellum.qss LISTS icons)
        string(APPEND entries "    <file alias=\"${file}\">${theme}/${file}</file>\n")
    endforeach()
    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${target}_vellum_theme.qrc)
    file(CONFIGURE OUTPUT ${qrc} @ONLY CONTENT
        "<RCC>\n  <qresource prefix=\"/Resource\">\n@entries@  </qresource>\n</RCC>\n")
    target_sources(${target} PRIVATE ${qrc})
    set_target_properties(${target} PROPERTIES AUTORCC ON)
endfunction()
