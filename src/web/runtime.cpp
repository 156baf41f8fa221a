// The functions that the C and C++ libraries call after a failed assert and the like. The
// libraries' own versions print, and so would add all of printf to the page.
#ifdef __wasm__

#include <__verbose_abort>

#include "web/page.h"

extern "C" {
[[noreturn]] void __assert_fail(const char* text, const char*, int, const char*) { PageFail(text); }
[[noreturn]] void abort_message(const char* text, ...) { PageFail(text); }
// The name of it in newer versions of the library.
[[noreturn]] void __abort_message(const char* text, ...) { PageFail(text); }
}

_LIBCPP_BEGIN_NAMESPACE_STD
// Newer versions of the library declare it noexcept.
void __libcpp_verbose_abort(const char* text, ...) noexcept(noexcept(__libcpp_verbose_abort(""))) {
  PageFail(text);
}
_LIBCPP_END_NAMESPACE_STD

#endif
