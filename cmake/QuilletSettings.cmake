# Settings that hold for every target of the project.

if(NOT QUILLET_SIGNING_SECRET MATCHES "^[0-9][0-9][0-9][0-9][0-9][0-9]$")
    message(FATAL_ERROR "QUILLET_SIGNING_SECRET must be six decimal digits.")
endif()
foreach(environment DEV HML PRD)
    # A scheme, a port or a path would end up inside every URL: only a bare host name will do.
    if(NOT QUILLET_GATEWAY_HOST_${environment} MATCHES "^[A-Za-z0-9]([A-Za-z0-9.-]*[A-Za-z0-9])?$")
        message(FATAL_ERROR "QUILLET_GATEWAY_HOST_${environment} must be a bare host name.")
    endif()
endforeach()

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

set(CMAKE_CXX_STANDARD 23)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

# ccache keeps precompiled headers apart only if it is told that their time stamps do not matter. Paths are compared as they
# are below this folder, so that another clone, or a copy with a fault in it, need not compile all again.
find_program(QUILLET_CCACHE ccache)
if(QUILLET_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_NOHASHDIR=1
        "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" "${QUILLET_CCACHE}")
endif()

# What a host ships tells nobody where it was built: __FILE__ begins at the project's own folder.
add_compile_options("-fmacro-prefix-map=${PROJECT_BINARY_DIR}/=" "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=")

if(QUILLET_SANITIZE)
    add_compile_options("-fsanitize=${QUILLET_SANITIZE}" -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options("-fsanitize=${QUILLET_SANITIZE}")
endif()

# Warnings belong to our own targets, never to those who link them. What Qt's QML compiler generates shadows names by
# design and cannot be told apart from a target's own sources, so a target with QML goes without that one warning.
add_library(QuilletQmlWarnings INTERFACE)
target_compile_options(QuilletQmlWarnings INTERFACE
    -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wswitch
    $<$<BOOL:${QUILLET_WARNINGS_AS_ERRORS}>:-Werror>)
add_library(QuilletWarnings INTERFACE)
target_compile_options(QuilletWarnings INTERFACE -Wshadow)
target_link_libraries(QuilletWarnings INTERFACE QuilletQmlWarnings)
