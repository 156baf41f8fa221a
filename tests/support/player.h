#pragma once

#include "support/desk.h"

/// A legal move of blue at random, as the squares of its drag; empty if there is none. Of a chain
/// of jumps it may be any part.
std::vector<int> RandomDrag(const Position& position, Random& random);

/// Makes one drag and lets the computer answer.
void PlayTurn(Desk& desk, const std::vector<int>& squares);
