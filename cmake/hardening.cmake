# What makes a fault in the library hard to exploit in the player's process. The fortified C library needs an
# optimising build; the sanitizers bring checks of their own.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

if(XTTML_HARDEN AND NOT XTTML_SANITIZE)
  set(notDebug "$<NOT:$<CONFIG:Debug>>")
  add_compile_options(
    "$<${notDebug}:-fstack-protector-strong>"
    "$<${notDebug}:-U_FORTIFY_SOURCE>"
    "$<${notDebug}:-D_FORTIFY_SOURCE=2>")
  add_link_options("$<${notDebug}:LINKER:-z,relro,-z,now,-z,noexecstack>")
endif()
