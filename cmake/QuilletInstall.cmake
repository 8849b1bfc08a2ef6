# cmake --install: libraries, public headers, and what find_package(Quillet) and pkg-config read. Shared and static builds
# can be installed into one prefix; they differ in the names of their files.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(quillet_kind static)
if(BUILD_SHARED_LIBS)
    set(quillet_kind shared)
endif()
set(quillet_package "${CMAKE_INSTALL_LIBDIR}/cmake/Quillet")

# quillet_install(SET NAMESPACE TARGET ...): the targets, and the object libraries with the resources of static ones.
function(quillet_install set namespace)
    set(targets ${ARGN})
    # A shared library finds the others beside itself, wherever they are installed.
    set_target_properties(${ARGN} PROPERTIES INSTALL_RPATH "$ORIGIN")
    if(NOT BUILD_SHARED_LIBS)
        foreach(target ${ARGN})
            get_target_property(resources ${target} QUILLET_RESOURCE_TARGETS)
            if(resources)
                list(APPEND targets ${resources})
            endif()
        endforeach()
    endif()
    install(TARGETS ${targets} EXPORT Quillet${set}
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        OBJECTS DESTINATION "${CMAKE_INSTALL_LIBDIR}/quillet"
        INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
    install(EXPORT Quillet${set} FILE "${set}-${quillet_kind}.cmake" NAMESPACE "${namespace}::" DESTINATION "${quillet_package}")
endfunction()

set_target_properties(QuilletBackend PROPERTIES EXPORT_NAME Backend)
quillet_install(Backend Quillet QuilletBackend)
# The kit is static whatever the others are: nobody ships it.
set_target_properties(QuilletTesting PROPERTIES EXPORT_NAME Testing)
quillet_install(Testing Quillet QuilletTesting)
foreach(folder Platform/Include/Quillet Sources/Include/Quillet Testing/Include/Quillet)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/${folder}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
endforeach()

if(QUILLET_BUILD_UI)
    # Kel stands for a host's own libraries. It is installed only where this build made it.
    get_target_property(alias Kel::KelDS ALIASED_TARGET)
    get_target_property(folder ${alias} SOURCE_DIR)
    if(folder STREQUAL "${PROJECT_SOURCE_DIR}/Kel/KelDS")
        quillet_install(Kel Kel KelCommon KelDSIcons KelDS)
        install(DIRECTORY "${PROJECT_SOURCE_DIR}/Kel/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
            FILES_MATCHING PATTERN "*.hpp" PATTERN Controls EXCLUDE PATTERN Texts EXCLUDE)
    endif()
    set(ui Quillet)
    if(NOT BUILD_SHARED_LIBS)
        list(APPEND ui QuilletScreens)
    endif()
    quillet_install(Quillet Quillet ${ui})
endif()

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/QuilletConfig.cmake.in" QuilletConfig.cmake
    INSTALL_DESTINATION "${quillet_package}")
write_basic_package_version_file(QuilletConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/QuilletConfig.cmake" "${PROJECT_BINARY_DIR}/QuilletConfigVersion.cmake"
    "${PROJECT_SOURCE_DIR}/cmake/QuilletFind.cmake"
    DESTINATION "${quillet_package}")

configure_file("${PROJECT_SOURCE_DIR}/cmake/quillet-backend.pc.in" quillet-backend.pc @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/quillet-backend.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

# One Debian package for those who build a host: libraries of both kinds, headers, the test kit and what they depend on.
# scripts/package makes it out of a shared and a static build.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillet-dev)
set(CPACK_PACKAGE_CONTACT "Quillet <quillet@quillet.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/lib")
string(JOIN ", " CPACK_DEBIAN_PACKAGE_DEPENDS
    libcurl4-openssl-dev libssl-dev zlib1g-dev libsimdjson-dev
    qt6-declarative-dev libgl1-mesa-dev "qt6-svg-plugins | libqt6svg6"
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-templates qml6-module-qtquick-layouts
    qml6-module-qtquick-window qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript)
include(CPack)
