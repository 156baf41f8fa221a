#pragma once

#include <cstdint>

#include "soak/watcher.h"

/// Plays the game of this seed until the program ends. The hand mostly keeps to the rules, and now
/// and then does anything else that a hand can do. Throws a `Fault` if something goes wrong.
void PlayGame(Watcher& watcher, std::uint64_t seed);
