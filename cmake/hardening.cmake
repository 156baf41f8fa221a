# Flags of a program that strangers run: what Debian's own packages are built with, as far as compiler
# and linker know them. What a packager has set stays as it is. Sanitizers look for the same mistakes
# by other means.
option(VELMORAN_HARDENING "Build with the flags that make faults harder to exploit" ON)
if(NOT VELMORAN_HARDENING OR VELMORAN_SANITIZE)
  return()
endif()

include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_compile_options(-Wformat -Werror=format-security)

set(flags -fstack-protector-strong -fcf-protection)
# For Windows g++ 12 takes this one and then breaks down over it.
if(NOT WIN32)
  list(APPEND flags -fstack-clash-protection)
endif()
foreach(flag ${flags})
  string(MAKE_C_IDENTIFIER "VELMORAN_HAS${flag}" known)
  check_cxx_compiler_flag(${flag} ${known})
  if(${known})
    add_compile_options(${flag})
  endif()
endforeach()

foreach(flag -Wl,-z,relro -Wl,-z,now)
  string(MAKE_C_IDENTIFIER "VELMORAN_HAS${flag}" known)
  check_linker_flag(CXX ${flag} ${known})
  if(${known})
    add_link_options(${flag})
  endif()
endforeach()

# The C library checks its callers only in optimized code, and warns in any other. Some compilers
# come with a level of their own.
string(TOUPPER "${CMAKE_BUILD_TYPE}" config)
set(CMAKE_REQUIRED_FLAGS "-O2 ${CMAKE_CXX_FLAGS_${config}}")
check_cxx_source_compiles("
  #ifdef _FORTIFY_SOURCE
  #error It is set already.
  #endif
  int main() {}" VELMORAN_SETS_FORTIFY_LEVEL)
unset(CMAKE_REQUIRED_FLAGS)
if(VELMORAN_SETS_FORTIFY_LEVEL)
  add_compile_options("$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=2>")
endif()
