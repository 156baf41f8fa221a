# Flags of a program that strangers run: what Debian's own packages are built with, and the same bytes
# from the same commit wherever it is built. Sanitizers look for the same mistakes by other means.
if(VELMORAN_SANITIZE)
  return()
endif()

include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_compile_options(-Wformat -Werror=format-security -fstack-protector-strong)
# Not every processor has these two.
check_cxx_compiler_flag(-fstack-clash-protection VELMORAN_HAS_STACK_CLASH_PROTECTION)
if(VELMORAN_HAS_STACK_CLASH_PROTECTION)
  add_compile_options(-fstack-clash-protection)
endif()
check_cxx_compiler_flag(-fcf-protection VELMORAN_HAS_CF_PROTECTION)
if(VELMORAN_HAS_CF_PROTECTION)
  add_compile_options(-fcf-protection)
endif()
# The C library checks its callers only in optimized code, and warns in any other.
add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
add_link_options(-Wl,-z,relro -Wl,-z,now)

# The asserts name their files. Other builds keep the whole path: debuggers and coverage look for it.
add_compile_options($<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>)
