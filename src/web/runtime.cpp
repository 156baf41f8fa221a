// What the C and C++ libraries call when a promise of the program is broken. Their own functions
// would print, and bring all of printf along.
#ifdef __wasm__

#include <__verbose_abort>

#include "web/page.h"

extern "C" {
[[noreturn]] void __assert_fail(const char* text, const char*, int, const char*) { PageFail(text); }
[[noreturn]] void abort_message(const char* text, ...) { PageFail(text); }
}

_LIBCPP_BEGIN_NAMESPACE_STD
// Newer versions of the library declare it noexcept.
void __libcpp_verbose_abort(const char* text, ...) noexcept(noexcept(__libcpp_verbose_abort(""))) {
  PageFail(text);
}
_LIBCPP_END_NAMESPACE_STD

#endif
