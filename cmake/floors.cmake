# A floor of the library: an object library xttml_<name> made by <name>/CMakeLists.txt with
# target_sources. XTTML_FLOORS lists the floors declared so far, lowest first.
set(XTTML_FLOORS "")

macro(xttml_floor name)
  add_library(xttml_${name} OBJECT)
  target_include_directories(xttml_${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(xttml_${name} PUBLIC XercesC::XercesC)
  list(APPEND XTTML_FLOORS ${name})
  add_subdirectory(${name})
endmacro()

# Links the objects of a floor and of every floor below it into a target, hidden symbols included.
function(xttml_link_floors target top)
  foreach(floor IN LISTS XTTML_FLOORS)
    target_link_libraries(${target} PRIVATE xttml_${floor})
    if(floor STREQUAL top)
      return()
    endif()
  endforeach()
  message(FATAL_ERROR "xttml: unknown floor ${top}")
endfunction()
