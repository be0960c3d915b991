# Settings and helpers that every folder of the build shares.

find_program(VELLUM_CCACHE ccache)
if(PROJECT_IS_TOP_LEVEL AND VELLUM_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # A precompiled header is cacheable only when ccache overlooks defines and time stamps in it; a
    # base directory lets several checkouts of the tree share one cache.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${VELLUM_CCACHE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        add_compile_options(-fpch-preprocess)
    endif()
endif()

add_library(VellumStrict INTERFACE)
target_compile_definitions(VellumStrict INTERFACE
    QT_NO_KEYWORDS
    QT_NO_FOREACH
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_STRICT_ITERATORS)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(VellumStrict INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
        $<$<BOOL:${VELLUM_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

# vellum_add_headers(<folder> <Class[,Class...]>...): the public headers of one folder of src/. The
# header is named as the first class of an entry in lower case; each class gets a forwarding header
# <Vellum/Class>.
function(vellum_add_headers folder)
    ecm_generate_headers(forwarding
        HEADER_NAMES ${ARGN}
        PREFIX ${folder}
        OUTPUT_DIR ${PROJECT_BINARY_DIR}/forwarding
        REQUIRED_HEADERS headers)
    file(COPY ${forwarding} DESTINATION ${PROJECT_BINARY_DIR}/include/Vellum)
    install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Vellum/${folder})
    string(REPLACE "," ";" classes "${ARGN}")
    set_property(GLOBAL APPEND PROPERTY VELLUM_PUBLIC_CLASSES ${classes})
    foreach(header IN LISTS headers)
        get_filename_component(name ${header} NAME)
        set_property(GLOBAL APPEND PROPERTY VELLUM_PUBLIC_HEADERS ${folder}/${name})
    endforeach()
endfunction()
