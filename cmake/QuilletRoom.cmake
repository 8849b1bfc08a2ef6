# A room is one folder of Sources: an object library whose headers are found as "<Room>/<File>.hpp", and only by
# those that name the room among their dependencies. Each room gets an include folder of its own in the build tree
# that holds nothing but a link to the room, so an include against the direction of the arrows does not compile.
#
#   quillet_room(Network DEPENDS Models SOURCES Url.cpp ... LIBRARIES CURL::libcurl)
#
# The target is called Quillet<Room>.
function(quillet_room room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS;LIBRARIES")
    set(target "Quillet${room}")
    add_library(${target} OBJECT ${arg_SOURCES})
    quillet_room_includes(${target} ${room})
    list(TRANSFORM arg_DEPENDS PREPEND Quillet)
    target_link_libraries(${target} PUBLIC ${arg_DEPENDS} ${arg_LIBRARIES} PRIVATE $<BUILD_INTERFACE:QuilletWarnings>)
endfunction()

function(quillet_room_includes target room)
    set(door "${PROJECT_BINARY_DIR}/rooms/${target}")
    file(MAKE_DIRECTORY "${door}")
    file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${door}/${room}" SYMBOLIC)
    target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${door}>")
endfunction()

# A room that draws: a static library and a QML module "Quillet.<Room>" in one. QML files are found by their own name,
# whatever folder they lie in; C++ types that QML names are registered from the headers listed.
#
#   quillet_qml_room(Views DEPENDS Resources QML Dialogs/Dialog.qml SOURCES ... LIBRARIES Kel::KelDS)
function(quillet_qml_room room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;QML;DEPENDS;LIBRARIES;IMPORTS")
    set(target "Quillet${room}")
    foreach(file ${arg_QML})
        cmake_path(GET file FILENAME name)
        set_source_files_properties("${file}" PROPERTIES QT_RESOURCE_ALIAS "${name}")
    endforeach()
    qt_add_library(${target} STATIC)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    qt_add_qml_module(${target}
        URI Quillet.${room}
        VERSION 1.0
        NO_PLUGIN
        RESOURCE_PREFIX /qt/qml
        OUTPUT_TARGETS resource_targets
        OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/qml/Quillet/${room}"
        IMPORT_PATH "${PROJECT_BINARY_DIR}/qml"
        DEPENDENCIES QtQuick KelDS ${arg_IMPORTS}
        SOURCES ${arg_SOURCES}
        QML_FILES ${arg_QML})
    quillet_room_includes(${target} ${room})
    # The generated type registration includes headers by their bare names.
    set(folders "")
    foreach(file ${arg_SOURCES})
        cmake_path(GET file PARENT_PATH folder)
        list(APPEND folders "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
    endforeach()
    list(REMOVE_DUPLICATES folders)
    string(TOLOWER "${target}_qmltyperegistrations.cpp" registrations)
    set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${registrations}"
        PROPERTIES INCLUDE_DIRECTORIES "${folders}")
    list(TRANSFORM arg_DEPENDS PREPEND Quillet)
    target_link_libraries(${target} PUBLIC Qt6::Quick ${arg_DEPENDS} ${arg_LIBRARIES} PRIVATE QuilletQmlWarnings)
    quillet_precompile_qt(${target})
endfunction()

# Most of the time a QML target takes to compile goes into the same few Qt headers, in our sources and in what Qt
# generates from the QML files alike. They are compiled once for all such targets, with the flags that these share.
function(quillet_precompile_qt target)
    if(NOT TARGET QuilletQtHeaders)
        file(GENERATE OUTPUT "${PROJECT_BINARY_DIR}/QuilletQtHeaders.cpp" CONTENT "")
        add_library(QuilletQtHeaders STATIC "${PROJECT_BINARY_DIR}/QuilletQtHeaders.cpp")
        target_link_libraries(QuilletQtHeaders PRIVATE Qt6::Quick QuilletQmlWarnings)
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

# The one header of a room that a room above may know: an interface library "Quillet<Room>Door" whose include folder
# holds nothing else. What the room needs at link time comes along.
function(quillet_room_door room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;DEPENDS")
    set(target "Quillet${room}Door")
    set(door "${PROJECT_BINARY_DIR}/rooms/${target}")
    file(MAKE_DIRECTORY "${door}/${room}")
    foreach(header ${arg_HEADERS})
        file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}/${header}" "${door}/${room}/${header}" SYMBOLIC COPY_ON_ERROR)
    endforeach()
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE "$<BUILD_INTERFACE:${door}>")
    list(TRANSFORM arg_DEPENDS PREPEND Quillet)
    target_link_libraries(${target} INTERFACE ${arg_DEPENDS} $<LINK_ONLY:Quillet${room}>)
endfunction()

# Compiles string tables and packs them into a target, as "<prefix>/<file>.qm".
function(quillet_string_tables target resource prefix)
    qt_add_lrelease(${target} TS_FILES ${ARGN} QM_FILES_OUTPUT_VARIABLE tables)
    foreach(table ${tables})
        cmake_path(GET table FILENAME name)
        set_source_files_properties("${table}" PROPERTIES QT_RESOURCE_ALIAS "${name}")
    endforeach()
    qt_add_resources(${target} ${resource} PREFIX ${prefix} FILES ${tables})
endfunction()
