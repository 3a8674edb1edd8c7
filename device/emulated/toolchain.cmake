# Builds the stand-in phone for one of the phone's processors under Linux, to be run by qemu on a development machine.
# TAVIMO_EMULATED_ROOT is the folder with that system's libraries; scripts/emulate makes it. TAVIMO_EMULATED_PROCESSOR is
# arm64 or armv7, as the phone's tools call them.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TAVIMO_EMULATED_ROOT TAVIMO_EMULATED_PROCESSOR)

if(TAVIMO_EMULATED_PROCESSOR STREQUAL armv7)
  set(CMAKE_SYSTEM_PROCESSOR arm)
  set(system arm-linux-gnueabi)
  set(emulator qemu-arm)
  # The phone's 32-bit code passes numbers in integer registers and computes with them in the coprocessor.
  set(processor_flags "-march=armv7-a -mfpu=vfpv3-d16 -mfloat-abi=softfp")
  # Coordinates are floats there; the stand-in computes with doubles.
  string(APPEND processor_flags " -Wno-narrowing")
  # Folders of this machine's have entries at places that 32 bits do not hold.
  string(APPEND processor_flags " -D_FILE_OFFSET_BITS=64")
else()
  set(CMAKE_SYSTEM_PROCESSOR aarch64)
  set(system aarch64-linux-gnu)
  set(emulator qemu-aarch64)
endif()

if(NOT EXISTS "${TAVIMO_EMULATED_ROOT}/usr/lib/${system}")
  message(FATAL_ERROR "no libraries of ${system} in '${TAVIMO_EMULATED_ROOT}'; scripts/emulate installs them")
endif()

set(CMAKE_C_COMPILER ${system}-gcc-12)
set(CMAKE_CXX_COMPILER ${system}-g++-12)
set(CMAKE_ASM_COMPILER ${system}-gcc-12)
set(CMAKE_C_FLAGS_INIT "${processor_flags}")
set(CMAKE_CXX_FLAGS_INIT "${processor_flags}")
set(CMAKE_ASM_FLAGS_INIT "${processor_flags}")
set(CMAKE_SYSROOT ${TAVIMO_EMULATED_ROOT})
set(CMAKE_FIND_ROOT_PATH ${TAVIMO_EMULATED_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_LIBRARY_ARCHITECTURE ${system})
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${TAVIMO_EMULATED_ROOT})
set(ENV{PKG_CONFIG_LIBDIR}
    ${TAVIMO_EMULATED_ROOT}/usr/lib/${system}/pkgconfig:${TAVIMO_EMULATED_ROOT}/usr/share/pkgconfig)
set(CMAKE_CROSSCOMPILING_EMULATOR ${emulator} -L ${TAVIMO_EMULATED_ROOT})
