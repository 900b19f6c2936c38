# Installs the library and its list view component with their headers, a CMake
# package (find_package(KivTambroBase) -> KivTambro::Base, KivTambro::ListView)
# and pkg-config files: the component "library". The phone platform it links is not part of it.
include(CMakePackageConfigHelpers)

set(KIVTAMBRO_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/KivTambroBase)

install(TARGETS kivtambro-base kivtambro-listview EXPORT KivTambroBaseTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library)
file(GLOB public_headers ${PROJECT_SOURCE_DIR}/include/*.h)
install(FILES ${public_headers} ${PROJECT_SOURCE_DIR}/listview/TAMBRO_ListView.h
    ${PROJECT_BINARY_DIR}/include/kivtambro_export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kivtambro-base COMPONENT library)

install(EXPORT KivTambroBaseTargets
    NAMESPACE KivTambro::
    DESTINATION ${KIVTAMBRO_CMAKE_DIR} COMPONENT library)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/KivTambroBaseConfig.cmake.in
    ${PROJECT_BINARY_DIR}/KivTambroBaseConfig.cmake
    INSTALL_DESTINATION ${KIVTAMBRO_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KivTambroBaseConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/KivTambroBaseConfig.cmake
    ${PROJECT_BINARY_DIR}/KivTambroBaseConfigVersion.cmake
    DESTINATION ${KIVTAMBRO_CMAKE_DIR} COMPONENT library)

# The .pc file finds the prefix from its own place, so that an install with
# `cmake --install --prefix` elsewhere still describes itself correctly.
file(RELATIVE_PATH KIVTAMBRO_PC_TO_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
foreach(pc kivtambro-base kivtambro-listview)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/${pc}.pc.in ${PROJECT_BINARY_DIR}/${pc}.pc @ONLY)
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/kivtambro-base.pc ${PROJECT_BINARY_DIR}/kivtambro-listview.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT library)
