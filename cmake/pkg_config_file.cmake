# Installs xttml.pc. The prefix is the one that `cmake --install` is given; the directories may be absolute or
# relative to it.
set(XTTML_PC_TEMPLATE ${CMAKE_CURRENT_LIST_DIR}/xttml.pc.in)

function(xttml_install_pkg_config_file)
  set(XTTML_PC_PREFIX "@CMAKE_INSTALL_PREFIX@")
  foreach(folder INCLUDEDIR LIBDIR)
    set(XTTML_PC_${folder} "${CMAKE_INSTALL_${folder}}")
    if(NOT IS_ABSOLUTE "${CMAKE_INSTALL_${folder}}")
      set(XTTML_PC_${folder} "\${prefix}/${CMAKE_INSTALL_${folder}}")
    endif()
  endforeach()
  set(template ${PROJECT_BINARY_DIR}/xttml.pc.in)
  set(installed ${PROJECT_BINARY_DIR}/xttml.pc)
  configure_file(${XTTML_PC_TEMPLATE} ${template} @ONLY)
  install(CODE "configure_file(\"${template}\" \"${installed}\" @ONLY)" ${ARGN})
  install(FILES ${installed} DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig ${ARGN})
endfunction()
