#include <cstdlib>
#include <span>

#include "soak/hand.h"

// The fuzzer's bytes as the chance of a hand. A fault is a crash.

namespace {

struct OutOfBytes {};

/// Small choices take a byte, places on the board two.
int Roll(std::span<const std::uint8_t>& bytes, int sides) {
  int value = 0;
  for (int range = 1; range < sides; range *= 256) {
    if (bytes.empty()) throw OutOfBytes{};
    value = value * 256 + bytes.front();
    bytes = bytes.subspan(1);
  }
  return value % sides;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Desk desk;
  Watcher watcher(desk);
  try {
    PlayGame(watcher,
             [bytes = std::span(data, size)](int sides) mutable { return Roll(bytes, sides); });
  } catch (const OutOfBytes&) {
  } catch (const Fault& fault) {
    std::fprintf(stderr, "fault at event %d: %s\n", watcher.Events, fault.what());
    std::abort();
  }
  return 0;
}
