#include <cstdlib>
#include <iostream>

#include "support/desk.h"

/// Tells as many whole games as the argument says, in the form of the recorded ones. They are
/// seeded as any game is, by the time of day: that of game 7 is seven seconds after midnight.
int main(int, char** argv) {
  for (int game = 1; game <= std::atoi(argv[1]); ++game) {
    Desk desk;
    desk.host.Midnight = game;
    desk.OpenBoard();
    std::cout << "game " << game << '\n' << desk.PlayGame(static_cast<unsigned>(game));
  }
}
