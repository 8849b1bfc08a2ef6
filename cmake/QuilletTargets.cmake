# What several targets have in common. Public headers are below Sources/Include and Platform/Include. All others are found
# by their folder's name: those of the module below Sources, those of the platform below the project's own folder. Which
# folder may include which is checked by scripts/lint-includes.

include(CheckLinkerFlag)

# For our own targets that use what is not public: the headers, and the libraries that these include.
add_library(QuilletInternals INTERFACE)
target_include_directories(QuilletInternals INTERFACE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/Sources")

# quillet_library(TARGET MACRO): a library that hides what its headers do not mark. MACRO tells the headers who is built.
function(quillet_library target macro)
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        VERSION "${PROJECT_VERSION}" SOVERSION "${PROJECT_VERSION_MAJOR}")
    target_compile_definitions(${target} PRIVATE ${macro})
    if(BUILD_SHARED_LIBS)
        target_compile_definitions(${target} PUBLIC QUILLET_SHARED)
        if(CMAKE_SYSTEM_NAME STREQUAL Linux)
            target_link_options(${target} PRIVATE "-Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map" -Wl,--gc-sections)
            # Of what a library of screens takes, a tenth is relocations, which so take a tenth of that.
            check_linker_flag(CXX -Wl,-z,pack-relative-relocs QUILLET_PACKS_RELOCATIONS)
            if(QUILLET_PACKS_RELOCATIONS)
                target_link_options(${target} PRIVATE -Wl,-z,pack-relative-relocs)
            endif()
            set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${PROJECT_SOURCE_DIR}/cmake/exports.map")
        endif()
    endif()
    target_compile_options(${target} PRIVATE -ffunction-sections -fdata-sections)
endfunction()

# quillet_small_sources(TARGET REGEX): optimises those of its sources for size, whose time goes by elsewhere.
function(quillet_small_sources target regex)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "${regex}")
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-Os>)
endfunction()

# quillet_qml_library(TARGET [STATIC] URI uri [QML ...] [SOURCES ...] [LIBRARIES ...] [IMPORTS ...]): a library that is a
# QML module too; static whatever BUILD_SHARED_LIBS says if it is a part of another one. A QML file is known by its own name, whatever folder it lies in.
function(quillet_qml_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "NO_CACHEGEN;STATIC" "URI" "SOURCES;QML;LIBRARIES;IMPORTS;RESOURCES")
    foreach(file ${arg_QML})
        cmake_path(GET file FILENAME name)
        set_source_files_properties("${file}" PROPERTIES QT_RESOURCE_ALIAS "${name}")
    endforeach()
    string(REPLACE "." "/" folder "${arg_URI}")
    set(options "")
    if(arg_NO_CACHEGEN)
        set(options NO_CACHEGEN)
    endif()
    set(kind STATIC)
    if(BUILD_SHARED_LIBS AND NOT arg_STATIC)
        set(kind SHARED)
    endif()
    qt_add_library(${target} ${kind})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    qt_add_qml_module(${target}
        URI ${arg_URI}
        VERSION 1.0
        NO_PLUGIN
        ${options}
        RESOURCE_PREFIX /qt/qml
        OUTPUT_TARGETS resource_targets
        OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/qml/${folder}"
        IMPORT_PATH "${PROJECT_BINARY_DIR}/qml"
        DEPENDENCIES QtQuick ${arg_IMPORTS}
        SOURCES ${arg_SOURCES}
        QML_FILES ${arg_QML}
        RESOURCES ${arg_RESOURCES})
    # What Qt makes of the QML throws nothing and is not unwound; tables for that would be a tenth of the library. Qt's
    # precompiled headers are compiled with them, so these files go without.
    get_target_property(compiled ${target} SOURCES)
    list(FILTER compiled INCLUDE REGEX "/qmlcache/.*\\.cpp$")
    if(CMAKE_BUILD_TYPE STREQUAL Release)
        set_source_files_properties(${compiled} PROPERTIES
            COMPILE_OPTIONS "-fno-exceptions;-fno-asynchronous-unwind-tables;-fno-unwind-tables"
            SKIP_PRECOMPILE_HEADERS ON)
    endif()
    # A static library carries its resources in object libraries, which have to be installed with it.
    set_property(TARGET ${target} PROPERTY QUILLET_RESOURCE_TARGETS "${resource_targets}")
    # The generated type registration includes headers by their bare names.
    set(folders "")
    foreach(file ${arg_SOURCES})
        cmake_path(GET file PARENT_PATH parent)
        list(APPEND folders "${CMAKE_CURRENT_SOURCE_DIR}/${parent}")
    endforeach()
    list(REMOVE_DUPLICATES folders)
    string(TOLOWER "${target}_qmltyperegistrations.cpp" registrations)
    set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${registrations}"
        PROPERTIES INCLUDE_DIRECTORIES "${folders}")
    target_link_libraries(${target} PUBLIC Qt6::Quick ${arg_LIBRARIES} PRIVATE $<BUILD_INTERFACE:QuilletQmlWarnings>)
    # Screens spend their time in Qt. Optimised for size, the library is a third smaller in what a phone downloads.
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-Os>)
    quillet_precompile_qt(${target})
endfunction()

# Most of the time a QML target takes to compile goes into the same few Qt headers, in our sources and in what Qt
# generates from the QML files alike. They are compiled once for all such targets, with the flags that these share.
function(quillet_precompile_qt target)
    if(NOT TARGET QuilletQtHeaders)
        file(GENERATE OUTPUT "${PROJECT_BINARY_DIR}/QuilletQtHeaders.cpp" CONTENT "")
        add_library(QuilletQtHeaders STATIC "${PROJECT_BINARY_DIR}/QuilletQtHeaders.cpp")
        target_link_libraries(QuilletQtHeaders PRIVATE Qt6::Quick QuilletQmlWarnings)
        target_compile_options(QuilletQtHeaders PRIVATE $<$<CONFIG:Release>:-Os>)
        quillet_precompile(QuilletQtHeaders
            <QtQuick/QQuickItem> <QtQml/QQmlEngine> <QtQml/qqmlprivate.h> <functional> <memory> <optional> <string>)
    endif()
    target_precompile_headers(${target} REUSE_FROM QuilletQtHeaders)
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()
function(quillet_precompile target)
    target_precompile_headers(${target} PRIVATE ${ARGN})
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()

# As qt_add_resources; the object library that a static target needs is installed with it.
function(quillet_resources target)
    qt_add_resources(${target} ${ARGN} OUTPUT_TARGETS resource_targets)
    set_property(TARGET ${target} APPEND PROPERTY QUILLET_RESOURCE_TARGETS "${resource_targets}")
endfunction()

# Compiles string tables and packs them into a target, as "<prefix>/<file>.qm".
function(quillet_string_tables target resource prefix)
    qt_add_lrelease(${target} TS_FILES ${ARGN} QM_FILES_OUTPUT_VARIABLE tables)
    foreach(table ${tables})
        cmake_path(GET table FILENAME name)
        set_source_files_properties("${table}" PROPERTIES QT_RESOURCE_ALIAS "${name}")
    endforeach()
    quillet_resources(${target} ${resource} PREFIX ${prefix} FILES ${tables})
endfunction()
