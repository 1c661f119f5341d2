# Run by CPack on the installed files of each package: adds the documents that Debian asks for and packs them and
# the man pages.
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  set(root ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share)
  set(documents ${root}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  file(COPY ${CMAKE_CURRENT_LIST_DIR}/copyright DESTINATION ${documents})
  file(WRITE ${documents}/changelog.Debian "xttml (${version}) unstable; urgency=medium\n\n"
    "  * Release ${CPACK_PACKAGE_VERSION}.\n\n -- ${CPACK_DEBIAN_PACKAGE_MAINTAINER}  ${now}\n")
  file(COPY ${CMAKE_CURRENT_LIST_DIR}/../../CHANGELOG.md DESTINATION ${documents})
  file(RENAME ${documents}/CHANGELOG.md ${documents}/changelog)

  file(GLOB pages ${root}/man/man*/*.[0-9])
  execute_process(COMMAND gzip -9n ${documents}/changelog ${documents}/changelog.Debian ${pages} RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "gzip in ${root}: ${failed}")
  endif()
endforeach()
