# The toolchain of the page: Debian's newest clang, from 19 on, that has a C++ library for
# WebAssembly. The system is Generic because the CMake of Debian 12 does not know WASI.
file(GLOB libraries LIST_DIRECTORIES true
  /usr/lib/llvm-19/include/wasm32-wasi /usr/lib/llvm-[2-9][0-9]/include/wasm32-wasi)
if(NOT libraries)
  message(FATAL_ERROR "The page needs clang 19 or newer with libc++ for WebAssembly, which ./web "
    "installs on Debian")
endif()
list(SORT libraries ORDER DESCENDING)
list(GET libraries 0 newest)
cmake_path(SET CMAKE_CXX_COMPILER NORMALIZE ${newest}/../../bin/clang++)
# Clang 22 warns that this target name is deprecated, but Debian's library still uses it.
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_FLAGS_INIT -Wno-deprecated)
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
