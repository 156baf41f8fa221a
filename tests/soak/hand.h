#pragma once

#include <functional>

#include "soak/watcher.h"

/// Gives a whole number from 0 to `sides` - 1.
using Chance = std::function<int(int sides)>;

/// Plays one whole game with a hand that mostly goes by the rules, and now and then does anything
/// else that a hand can do, until the program ends. Throws a `Fault` if something goes wrong.
void PlayGame(Watcher& watcher, const Chance& chance);
