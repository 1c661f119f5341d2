# The warnings every target is built with (a build that includes this one sets its own), and the sanitizers and line
# counters when asked for.
if(XTTML_ON_ITS_OWN)
  add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion)
endif()
if(XTTML_WARNINGS_AS_ERRORS)
  add_compile_options(-Werror)
endif()
if(XTTML_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(XTTML_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
if(XTTML_BUILD_FUZZERS)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Offset times are rounded after every product and every sum, on every machine.
add_compile_options(-ffp-contract=off)
