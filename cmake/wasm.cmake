# The toolchain of the page: the newest clang of Debian's, from 19 on, that has a C++ library for
# WebAssembly. CMake learned the name of this system later than Debian 12 has it.
file(GLOB libraries LIST_DIRECTORIES true
  /usr/lib/llvm-19/include/wasm32-wasi /usr/lib/llvm-[2-9][0-9]/include/wasm32-wasi)
if(NOT libraries)
  message(FATAL_ERROR "The page needs clang 19 or newer with libc++ for WebAssembly, which ./web "
    "installs on Debian")
endif()
list(SORT libraries ORDER DESCENDING)
list(GET libraries 0 newest)
cmake_path(SET CMAKE_CXX_COMPILER NORMALIZE ${newest}/../../bin/clang++)
# Clang 22 calls this name of the target deprecated, but Debian's library still has it.
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_FLAGS_INIT -Wno-deprecated)
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
