# What a program includes, as it is installed. The sources include each other from the root of the source; in a
# program's include path names like runtime/ and style/ are the program's own. So x_ttml.h stands in
# include/xttml and the floors' headers one folder below, include/xttml/xttml/<floor>, and the copies made here
# include each other relative to themselves. Users of the target xttml::xttml read the same copies, which stand
# in XTTML_INCLUDE_FOLDER in the build tree.

# What a player reads. None of these headers includes the XML library.
set(XTTML_PUBLIC_HEADERS
  api/x_ttml.h
  api/x_ttml_items.h
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
  runtime/core_types.h
  runtime/date_time.h
  runtime/duration.h
  runtime/facets.h
  runtime/formatters.h
  runtime/info.h
  runtime/ordering.h
  runtime/parsed_integer.h
  runtime/qname.h
  xmltree/load_options.h
  xmltree/tree_operations.h)

set(XTTML_INCLUDE_FOLDER ${PROJECT_BINARY_DIR}/include/xttml)

# xttml_public_copy(<header> <root> <name>): copies a header to <name>, with <root> as the way from there to the
# floors' headers. A copy that is right already keeps its date.
function(xttml_public_copy header root name)
  file(READ ${header} text)
  string(REPLACE "#include \"api/" "#include \"" text "${text}")
  string(REGEX REPLACE "(#include \")([a-z]+/)" "\\1${root}\\2" text "${text}")
  file(WRITE ${PROJECT_BINARY_DIR}/public_header.h "${text}")
  configure_file(${PROJECT_BINARY_DIR}/public_header.h ${XTTML_INCLUDE_FOLDER}/${name} COPYONLY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
endfunction()

set(copies x_ttml_version.h)
configure_file(cmake/x_ttml_version.h.in ${XTTML_INCLUDE_FOLDER}/x_ttml_version.h @ONLY)
foreach(header IN LISTS XTTML_PUBLIC_HEADERS)
  if(header MATCHES "^api/(.*)$")
    set(name ${CMAKE_MATCH_1})
    set(root xttml/)
  else()
    set(name xttml/${header})
    get_filename_component(folder ${header} DIRECTORY)
    string(REGEX REPLACE "[^/]+/" "../" root ${folder}/)
  endif()
  xttml_public_copy(${header} ${root} ${name})
  list(APPEND copies ${name})
endforeach()

# A header that is public no longer leaves no copy behind.
file(GLOB_RECURSE stale RELATIVE ${XTTML_INCLUDE_FOLDER} ${XTTML_INCLUDE_FOLDER}/*.h)
list(REMOVE_ITEM stale ${copies})
foreach(copy IN LISTS stale)
  file(REMOVE ${XTTML_INCLUDE_FOLDER}/${copy})
endforeach()
