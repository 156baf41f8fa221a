#include <cstdlib>
#include <iostream>

#include "support/player.h"

/// Tells as many whole games as the argument says, each in the form of the recorded ones: the drag,
/// the board and the number of draws so far. They are seeded as any game is, by the time of day:
/// that of game 7 is seven seconds after midnight.
int main(int, char** argv) {
  for (int game = 1; game <= std::atoi(argv[1]); ++game) {
    Desk desk;
    desk.host.Midnight = game;
    desk.OpenBoard();
    std::cout << "game " << game << '\n';
    Random hand;
    hand.Randomize(game);
    while (!desk.form.position.GameOver) {
      const std::vector<int> drag = RandomDrag(desk.form.position, hand);
      PlayTurn(desk, drag);
      for (const int square : drag) std::cout << square << ' ';
      std::cout << "| " << Draw(desk.form.position) << " | " << desk.toolkit.random.DrawCount << '\n';
    }
    std::cout << desk.host.Boxes[0].Text << '\n';
  }
}
