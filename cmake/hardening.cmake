# What makes a fault in the library hard to exploit in the player's process. The fortified C library needs an
# optimising build; the sanitizers bring checks of their own.
include(CheckCXXSourceCompiles)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

if(XTTML_HARDEN AND NOT XTTML_SANITIZE)
  set(notDebug "$<NOT:$<CONFIG:Debug>>")
  add_compile_options("$<${notDebug}:-fstack-protector-strong>")
  add_link_options("$<${notDebug}:LINKER:-z,relro,-z,now,-z,noexecstack>")

  # What the compiler or its flags say already, a distribution's higher level for instance, stands.
  unset(XTTML_FORTIFIED_BY_COMPILER CACHE) # the flags may be others than the last time
  set(CMAKE_REQUIRED_QUIET ON)
  set(CMAKE_REQUIRED_FLAGS -O2)
  check_cxx_source_compiles("#ifndef _FORTIFY_SOURCE\n#error\n#endif\nint main() {}" XTTML_FORTIFIED_BY_COMPILER)
  unset(CMAKE_REQUIRED_FLAGS)
  unset(CMAKE_REQUIRED_QUIET)
  if(NOT XTTML_FORTIFIED_BY_COMPILER)
    set(optimised "$<OR:$<CONFIG:Release>,$<CONFIG:RelWithDebInfo>,$<CONFIG:MinSizeRel>>")
    add_compile_options("$<${optimised}:-D_FORTIFY_SOURCE=2>")
  endif()
endif()
