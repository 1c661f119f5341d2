# Pango and Cairo, which render/ draws with. It is built where the tool is and the two are found; asked for, it is
# built or the configuration fails.
if(XTTML_BUILD_RENDER OR (XTTML_BUILD_TOOLS AND NOT CMAKE_CROSSCOMPILING)) # pkg-config finds this machine's
  find_package(PkgConfig QUIET)
  if(PKG_CONFIG_FOUND)
    pkg_check_modules(PANGOCAIRO QUIET IMPORTED_TARGET pangocairo>=1.44)
  endif()
endif()
set(canRender OFF)
if(PANGOCAIRO_FOUND)
  set(canRender ON)
endif()
option(XTTML_BUILD_RENDER "Build what draws display items; needs Pango and Cairo" ${canRender})
if(XTTML_BUILD_RENDER AND NOT PANGOCAIRO_FOUND)
  message(FATAL_ERROR "xttml: XTTML_BUILD_RENDER needs pkg-config and pangocairo 1.44 or later")
endif()
