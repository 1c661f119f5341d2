# What `cmake --install` puts where. Three components, a Debian package each: library, development, tool.
include(CMakePackageConfigHelpers)
include(cmake/pkg_config_file.cmake)

# What a player reads. None of these headers includes the XML library.
set(XTTML_PUBLIC_HEADERS
  api/x_ttml.h
  parser/display_item.h
  runtime/exceptions.h
  runtime/export.h
  style/color.h
  style/length.h
  style/styling_attrib.h)

# The document model, for a tool that edits and saves documents. Its headers include the XML library's.
file(GLOB generatedHeaders RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS binding/generated/*.h)
list(APPEND XTTML_PUBLIC_HEADERS
  binding/member_accessors.h
  binding/tables.h
  binding/ttaf1_dfxp.h
  binding/type_base.h
  ${generatedHeaders}
  runtime/info.h
  xmltree/tree_operations.h)

install(TARGETS xttml EXPORT xttml
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/xttml)

# The headers keep their folders, so that one -I serves <x_ttml.h> and the includes that the headers write from
# the root of the source.
foreach(header IN LISTS XTTML_PUBLIC_HEADERS)
  get_filename_component(folder ${header} DIRECTORY)
  string(REGEX REPLACE "^api$" "" folder ${folder})
  install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/xttml/${folder} COMPONENT development)
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/include/x_ttml_version.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/xttml COMPONENT development)

xttml_install_pkg_config_file(COMPONENT development)

set(packageFolder ${CMAKE_INSTALL_LIBDIR}/cmake/xttml)
configure_package_config_file(cmake/xttmlConfig.cmake.in ${PROJECT_BINARY_DIR}/xttmlConfig.cmake
  INSTALL_DESTINATION ${packageFolder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/xttmlConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/xttmlConfig.cmake ${PROJECT_BINARY_DIR}/xttmlConfigVersion.cmake
  DESTINATION ${packageFolder} COMPONENT development)
install(EXPORT xttml NAMESPACE xttml:: FILE xttmlTargets.cmake
  DESTINATION ${packageFolder} COMPONENT development)

install(FILES docs/xttml.3 DESTINATION ${CMAKE_INSTALL_MANDIR}/man3 COMPONENT development)

if(XTTML_BUILD_TOOLS)
  install(TARGETS xttml_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
  install(FILES docs/xttml.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
endif()
