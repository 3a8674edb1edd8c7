# Builds the stand-in phone for 64-bit ARM under Linux, the phone's own processor, to be run by qemu on a development
# machine. TAVIMO_EMULATED_ROOT is the folder with that system's libraries; scripts/emulate makes it.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TAVIMO_EMULATED_ROOT)

if(NOT EXISTS "${TAVIMO_EMULATED_ROOT}/usr/lib/aarch64-linux-gnu")
  message(FATAL_ERROR "no libraries for 64-bit ARM in '${TAVIMO_EMULATED_ROOT}'; scripts/emulate installs them")
endif()

set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc-12)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++-12)
set(CMAKE_ASM_COMPILER aarch64-linux-gnu-gcc-12)
set(CMAKE_SYSROOT ${TAVIMO_EMULATED_ROOT})
set(CMAKE_FIND_ROOT_PATH ${TAVIMO_EMULATED_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${TAVIMO_EMULATED_ROOT})
set(ENV{PKG_CONFIG_LIBDIR}
    ${TAVIMO_EMULATED_ROOT}/usr/lib/aarch64-linux-gnu/pkgconfig:${TAVIMO_EMULATED_ROOT}/usr/share/pkgconfig)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L ${TAVIMO_EMULATED_ROOT})
