# Cross-building for 64-bit ARM with Debian's toolchain:
#
#     cmake -S . -B build-arm64 -DCMAKE_TOOLCHAIN_FILE=cmake/aarch64-linux-gnu.cmake -DXTTML_ARM64_ROOT=<folder>
#
# XTTML_ARM64_ROOT holds the target's packages unpacked (libxerces-c-dev and what it depends on); leave it out where
# they are installed as foreign packages. scripts/cross-arm64 makes such a folder. With qemu-user the programs of the
# build run on the building machine.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)

set(XTTML_ARM64_ROOT "" CACHE PATH "Where the target's packages are unpacked")
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES XTTML_ARM64_ROOT)
if(XTTML_ARM64_ROOT)
  set(CMAKE_FIND_ROOT_PATH ${XTTML_ARM64_ROOT})
  set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
  set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
  foreach(folder lib usr/lib)
    string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT " -Wl,-rpath-link,${XTTML_ARM64_ROOT}/${folder}/aarch64-linux-gnu")
  endforeach()
  set(CMAKE_SHARED_LINKER_FLAGS_INIT "${CMAKE_EXE_LINKER_FLAGS_INIT}")
endif()

find_program(XTTML_QEMU_AARCH64 NAMES qemu-aarch64 qemu-aarch64-static)
mark_as_advanced(XTTML_QEMU_AARCH64)
if(XTTML_QEMU_AARCH64)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${XTTML_QEMU_AARCH64})
  if(XTTML_ARM64_ROOT)
    list(APPEND CMAKE_CROSSCOMPILING_EMULATOR -L ${XTTML_ARM64_ROOT})
  endif()
endif()
