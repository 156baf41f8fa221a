#pragma once

#include <string_view>
#include <vector>

#include "support/board.h"
#include "support/virtual_host.h"
#include "ui/program.h"

/// Replaces the position, and shows the pieces on their squares.
void PlacePosition(frmVelmoran& form, const Position& position);

/// The whole program on a virtual host, and the input of a user.
class Desk {
 public:
  Desk();

  /// Opens the main window on this position.
  explicit Desk(const Position& position);

  /// Opens the main window without the splash, and lets `tmrPause` have its first tick.
  void OpenBoard();

  /// Queues a drag: a press in the middle of the first square, a movement to the middle of each
  /// square, and the release on the last one.
  void Drag(const std::vector<int>& squares);

  /// Plays a game with a board opened at this second after midnight, which seeds it. Takes a random
  /// legal drag, if possible one after which green cannot jump. Returns a line for each turn: the
  /// drag, the board after green's answer and the number of draws so far. The last line tells the
  /// end of the game, or why it was broken off: after 24 turns, or as a legal drag was refused.
  std::string PlayGame(int second);

  /// Chooses a menu command by its name.
  void Choose(std::string_view name);

  /// Delivers events until no input is queued. The clock stands still.
  void DeliverInput();

  /// Delivers events and ticks until no timer is on and nothing is booked.
  void RunUntilQuiet();

  VirtualHost host;
  Program program{host};
  Toolkit& toolkit = program.toolkit;
  frmVelmoran& form = program.mainForm;
  frmSplash& splash = program.splash;
  std::function<void()> AfterEvent;  // also called after nested events and before each wait

 private:
  bool IsTimerOn() const;
};
