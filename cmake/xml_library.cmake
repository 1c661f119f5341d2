# The XML library, and whether xmltree/document_parser.cpp may link the nodes of documents itself: it relies on
# their insides, which stay the same within a series, and was checked with these. Any other series links them its
# own way; before 3.2 there is nothing to gain, since that way needs no dynamic_cast.
set(XTTML_LINKED_SERIES 3.2 3.3)

# Found here it is made global, for the static library's users in a build that includes this one.
if(TARGET XercesC::XercesC)
  set(hostsOwn TRUE)
endif()
find_package(XercesC 3.1 REQUIRED)
if(NOT hostsOwn)
  set_target_properties(XercesC::XercesC PROPERTIES IMPORTED_GLOBAL TRUE)
endif()
string(REGEX MATCH "^[0-9]+\\.[0-9]+" series "${XercesC_VERSION}")
if(series IN_LIST XTTML_LINKED_SERIES)
  set(XTTML_LINKS_NODES TRUE)
  add_compile_definitions(XTTML_LINKS_NODES)
else()
  message(STATUS "xttml: Xerces-C ${XercesC_VERSION} links the nodes of documents its own way")
endif()
