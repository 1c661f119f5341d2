# What `cmake --install` puts where. A component is a Debian package: library, development, tool, gstreamer.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)
include(cmake/pkg_config_file.cmake)

install(TARGETS xttml EXPORT xttml
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/xttml)

install(DIRECTORY ${XTTML_INCLUDE_FOLDER}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/xttml COMPONENT development)

xttml_install_pkg_config_file(COMPONENT development)

set(XTTML_PACKAGE_DEPENDENCIES "")
if(XTTML_KIND STREQUAL STATIC)
  set(XTTML_PACKAGE_DEPENDENCIES "include(CMakeFindDependencyMacro)\nfind_dependency(XercesC)\n")
endif()
set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/xttml)
configure_package_config_file(cmake/xttmlConfig.cmake.in ${PROJECT_BINARY_DIR}/xttmlConfig.cmake
  INSTALL_DESTINATION ${packageFolder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/xttmlConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/xttmlConfig.cmake ${PROJECT_BINARY_DIR}/xttmlConfigVersion.cmake
  DESTINATION ${packageFolder} COMPONENT development)
install(EXPORT xttml NAMESPACE xttml:: FILE xttmlTargets.cmake
  DESTINATION ${packageFolder} COMPONENT development)

install(FILES docs/xttml.3 docs/xttml_items.3 DESTINATION ${CMAKE_INSTALL_MANDIR}/man3 COMPONENT development)

if(XTTML_BUILD_TOOLS)
  install(TARGETS xttml_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
  install(FILES docs/xttml.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
  install(FILES tools/xttml/completion/xttml.bash RENAME xttml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tool)
endif()
if(XTTML_BUILD_GSTREAMER)
  install(TARGETS gstxttml LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/gstreamer-1.0 COMPONENT gstreamer)
endif()
