# The target `reference`: the documentation of the installed headers as HTML in reference/html.
find_program(XTTML_DOXYGEN doxygen)
mark_as_advanced(XTTML_DOXYGEN)
if(NOT XTTML_DOXYGEN)
  return()
endif()

list(TRANSFORM XTTML_PUBLIC_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/ OUTPUT_VARIABLE input)
list(JOIN input " " XTTML_REFERENCE_INPUT)
string(APPEND XTTML_REFERENCE_INPUT " ${PROJECT_BINARY_DIR}/include/x_ttml_version.h")
configure_file(docs/Doxyfile.in Doxyfile @ONLY)
add_custom_target(reference COMMAND ${XTTML_DOXYGEN} ${PROJECT_BINARY_DIR}/Doxyfile)
