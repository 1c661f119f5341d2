# Debian packages, one a component: `cpack` in a build for the prefix /usr. scripts/packages makes and checks them.
# Needs CMake 3.19.
set(CPACK_GENERATOR DEB)
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian/add_documents.cmake)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "xttml maintainers <maintainers@xttml.invalid>")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# The packages' descriptions begin with a summary of their own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(aboutLibrary "libxttml reads TTML subtitle documents (TTML 1.0, SMPTE-TT images, CFF-TT
forced display) and tells a media player what is on screen at a given
millisecond.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libxttml${XTTML_ABI})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "TTML subtitles for media players
${aboutLibrary}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libxttml-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "libxttml${XTTML_ABI} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), libxerces-c-dev (>= 3.1)")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "TTML subtitles for media players - development files
${aboutLibrary}

This package holds the headers and what compilers and build systems need to
find the library.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME xttml)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
# dpkg-shlibdeps finds the library of this build, but no package that holds it.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/api)
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "libxttml${XTTML_ABI} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TOOL_DESCRIPTION "show what a media player would show of TTML subtitles
xttml loads a TTML subtitle document and tells which items a media player
would have on screen, and when.")

set(CPACK_DEBIAN_GSTREAMER_PACKAGE_NAME gstreamer1.0-xttml)
set(CPACK_DEBIAN_GSTREAMER_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_GSTREAMER_PACKAGE_DEPENDS
  "libxttml${XTTML_ABI} (>= ${PROJECT_VERSION}), libgstreamer-plugins-base1.0-0 (>= 1.20)")
set(CPACK_DEBIAN_GSTREAMER_DESCRIPTION "TTML subtitles for GStreamer
This plugin holds xttmloverlay, an element that puts TTML subtitles over
video. playbin, and what is built on it, takes it by itself.")

set(CPACK_COMPONENTS_ALL library development)
if(XTTML_BUILD_TOOLS)
  list(APPEND CPACK_COMPONENTS_ALL tool)
endif()
if(XTTML_BUILD_GSTREAMER)
  list(APPEND CPACK_COMPONENTS_ALL gstreamer)
endif()
include(CPack)
