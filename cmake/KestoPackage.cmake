# What the install hands a host: the CMake package (KestoTool::KestoTool, and KestoTool::Qt when
# the Qt back end is built), kestotool.pc, and the Debian packages CPack makes of them.
include(CMakePackageConfigHelpers)

set(KESTO_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/KestoTool)
install(EXPORT KestoToolTargets NAMESPACE KestoTool:: DESTINATION ${KESTO_CMAKE_DIR} COMPONENT dev)
if(KESTO_WITH_QT)
  install(EXPORT KestoToolQtTargets NAMESPACE KestoTool:: DESTINATION ${KESTO_CMAKE_DIR} COMPONENT dev)
endif()
configure_package_config_file(cmake/KestoToolConfig.cmake.in ${PROJECT_BINARY_DIR}/KestoToolConfig.cmake
  INSTALL_DESTINATION ${KESTO_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KestoToolConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KestoToolConfig.cmake ${PROJECT_BINARY_DIR}/KestoToolConfigVersion.cmake
  DESTINATION ${KESTO_CMAKE_DIR} COMPONENT dev)

# The .pc file finds its prefix from where it lies, so that an installed tree can be moved.
file(RELATIVE_PATH KESTO_PC_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" KESTO_PC_TO_PREFIX "${KESTO_PC_TO_PREFIX}")
configure_file(cmake/kestotool.pc.in ${PROJECT_BINARY_DIR}/kestotool.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kestotool.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
install(FILES CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT dev)

# Debian packages: libkestotool0 (the library and its archive), libkestotool-dev (headers, the
# CMake package, kestotool.pc, the Qt back end) and, with Qt, kestodraw (the program, its menu
# entry, file type and icon). scripts/package builds them.
set(CPACK_PACKAGE_NAME kestotool)
set(CPACK_PACKAGE_VENDOR "KestoTool developers")
set(CPACK_PACKAGE_CONTACT "KestoTool developers <kestotool@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "fill and transparency editing tools for vector drawing hosts")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime dev)
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
if(KESTO_WITH_QT)
  list(APPEND CPACK_COMPONENTS_ALL app)
  set(CPACK_COMPONENT_APP_DEPENDS runtime)
endif()
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libkestotool${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "KestoTool fill and transparency tools (shared library)
 The on-canvas tools that edit a vector object's fill or transparency by its handles, their
 context toolbar, hint lines and editor dialogs, with the fill model that renders every kind.")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME libkestotool-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_DESCRIPTION "KestoTool fill and transparency tools (development files)
 Headers, the CMake package (find_package(KestoTool)), kestotool.pc and the Qt 6 back end
 (KestoTool::Qt) for hosts of libkestotool.")
if(KESTO_WITH_QT)
  set(CPACK_DEBIAN_DEV_PACKAGE_RECOMMENDS qt6-base-dev)
  set(CPACK_DEBIAN_APP_PACKAGE_NAME kestodraw)
  set(CPACK_DEBIAN_APP_PACKAGE_SECTION graphics)
  set(CPACK_DEBIAN_APP_PACKAGE_SHLIBDEPS ON)
  # dpkg-shlibdeps finds libKestoTool in the build (its own package, libkestotool0, is a
  # dependency of the component already).
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
  set(CPACK_DEBIAN_APP_PACKAGE_RECOMMENDS "qt6-qpa-plugins, qt6-translations-l10n")
  set(CPACK_DEBIAN_APP_DESCRIPTION "small vector drawing program built on KestoTool's fill tools
 Draw shapes and edit their fills and transparencies by their handles on the canvas: linear,
 radial, elliptical, conical and square gradients, three- and four-colour, plasma, bitmap and
 vector fills. Saves .kdraw drawings; exports PNG, SVG and PDF; imports SVG.")
endif()
include(CPack)
