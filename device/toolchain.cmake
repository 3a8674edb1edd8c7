# Builds for the phone from Linux: clang 14 for one of its processors, iOS 7.0 and later. TAVIMO_DEVICE_ARCH is arm64 or
# armv7; TAVIMO_DEVICE_HEADERS is the folder that device/fetch_headers filled.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TAVIMO_DEVICE_ARCH TAVIMO_DEVICE_HEADERS)
# Nothing can be linked before the stubs are known.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

if(NOT TAVIMO_DEVICE_ARCH MATCHES "^(arm64|armv7)$")
  message(FATAL_ERROR "TAVIMO_DEVICE_ARCH is '${TAVIMO_DEVICE_ARCH}'; it has to be arm64 or armv7")
endif()
if(NOT EXISTS "${TAVIMO_DEVICE_HEADERS}/libcxx/include/algorithm")
  message(FATAL_ERROR "no headers of the phone in '${TAVIMO_DEVICE_HEADERS}'; scripts/package fetches them")
endif()

set(CMAKE_SYSTEM_PROCESSOR ${TAVIMO_DEVICE_ARCH})
set(CMAKE_CXX_COMPILER clang++-14)
set(CMAKE_CXX_COMPILER_TARGET ${TAVIMO_DEVICE_ARCH}-apple-ios7.0)
set(CMAKE_AR llvm-ar-14)
set(CMAKE_RANLIB llvm-ranlib-14)
set(CMAKE_INSTALL_NAME_TOOL llvm-install-name-tool-14)
# The target names the release already.
set(CMAKE_OSX_DEPLOYMENT_TARGET "")
set(CMAKE_OSX_SYSROOT "")

execute_process(COMMAND clang++-14 -print-resource-dir OUTPUT_VARIABLE resources OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
set(CMAKE_CXX_FLAGS_INIT "-nostdinc -nostdinc++ -isystem ${TAVIMO_DEVICE_HEADERS}/libcxx/include -isystem ${resources}/include")
# The 64-bit headers serve the 32-bit phone, too: what the plug-in includes of them tells the two apart by itself.
foreach(folder aarch64-macos.11-none any-macos.11-any any-macos-any)
  string(APPEND CMAKE_CXX_FLAGS_INIT " -isystem ${TAVIMO_DEVICE_HEADERS}/libc/include/${folder}")
endforeach()
