# The target `reference`: the documentation of the public headers as HTML in reference/html.
find_program(XTTML_DOXYGEN doxygen)
mark_as_advanced(XTTML_DOXYGEN)
if(NOT XTTML_DOXYGEN)
  return()
endif()

configure_file(docs/Doxyfile.in Doxyfile @ONLY)
add_custom_target(reference COMMAND ${XTTML_DOXYGEN} ${PROJECT_BINARY_DIR}/Doxyfile)
