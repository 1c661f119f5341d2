# Cross-building with Debian's toolchain for another of its machines:
#
#     cmake -S . -B build-arm64 -DCMAKE_TOOLCHAIN_FILE=cmake/cross.cmake -DXTTML_CROSS_MACHINE=arm64 \
#         -DXTTML_CROSS_ROOT=<folder>
#
# XTTML_CROSS_ROOT holds the target's packages unpacked (libxerces-c-dev and what it depends on); leave it out where
# they are installed as foreign packages. scripts/cross makes such a folder. With qemu-user the programs of the build
# run on the building machine.
set(XTTML_CROSS_MACHINE "" CACHE STRING "Which machine to build for, by Debian's name")
set(XTTML_CROSS_ROOT "" CACHE PATH "Where the target's packages are unpacked")
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES XTTML_CROSS_MACHINE XTTML_CROSS_ROOT)

# Debian's name, the compiler's, the kernel's, qemu's
set(machines
  "arm64 aarch64-linux-gnu     aarch64 aarch64"
  "armhf arm-linux-gnueabihf   armv7l  arm"
  "s390x s390x-linux-gnu       s390x   s390x")
foreach(machine IN LISTS machines)
  if(machine MATCHES "^${XTTML_CROSS_MACHINE} +([^ ]+) +([^ ]+) +([^ ]+)$")
    set(CMAKE_LIBRARY_ARCHITECTURE ${CMAKE_MATCH_1})
    set(CMAKE_SYSTEM_PROCESSOR ${CMAKE_MATCH_2})
    set(emulator qemu-${CMAKE_MATCH_3})
  endif()
endforeach()
if(NOT CMAKE_LIBRARY_ARCHITECTURE)
  message(FATAL_ERROR "xttml: XTTML_CROSS_MACHINE is none of those in cmake/cross.cmake: ${XTTML_CROSS_MACHINE}")
endif()

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_C_COMPILER ${CMAKE_LIBRARY_ARCHITECTURE}-gcc)
set(CMAKE_CXX_COMPILER ${CMAKE_LIBRARY_ARCHITECTURE}-g++)
if(XTTML_CROSS_ROOT)
  set(CMAKE_FIND_ROOT_PATH ${XTTML_CROSS_ROOT})
  set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
  set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
  set(CMAKE_EXE_LINKER_FLAGS_INIT "")
  foreach(folder lib usr/lib)
    string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT
      " -Xlinker -rpath-link -Xlinker \"${XTTML_CROSS_ROOT}/${folder}/${CMAKE_LIBRARY_ARCHITECTURE}\"")
  endforeach()
  set(CMAKE_SHARED_LINKER_FLAGS_INIT "${CMAKE_EXE_LINKER_FLAGS_INIT}")
endif()

find_program(XTTML_CROSS_EMULATOR NAMES ${emulator} ${emulator}-static)
mark_as_advanced(XTTML_CROSS_EMULATOR)
if(XTTML_CROSS_EMULATOR)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${XTTML_CROSS_EMULATOR})
  if(XTTML_CROSS_ROOT)
    list(APPEND CMAKE_CROSSCOMPILING_EMULATOR -L ${XTTML_CROSS_ROOT})
  endif()
endif()
