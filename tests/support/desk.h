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

  /// Makes the game draw these random values, and then values from the whole range in turn.
  void Draws(std::vector<double> values);

  /// Queues a drag: a press in the middle of the first square, a movement to the middle of each
  /// square, and the release on the last one.
  void Drag(const std::vector<int>& squares);

  /// Makes one drag and lets the computer answer.
  void PlayTurn(const std::vector<int>& squares);

  /// Plays one turn with a legal drag. Returns one line: the drag, the board after green's answer
  /// and the number of draws so far. Throws if the drag is refused or makes another move.
  std::string PlayLegalTurn(const std::vector<int>& squares);

  /// Plays a game with a board opened at this second after midnight, which seeds it. Takes a random
  /// legal drag, if possible one after which green cannot jump. Returns a line for each turn, and
  /// one for the end of the game: "no end" after 60 turns.
  std::string PlayGame(int second);

  void Press(int square) { Pointer(InputEvent::Kind::Press, Middle(square)); }
  void Move(int square) { Pointer(InputEvent::Kind::Move, Middle(square)); }
  void Release(int square) { Pointer(InputEvent::Kind::Release, Middle(square)); }
  void Pointer(InputEvent::Kind what, Point at);
  void CancelDrag() { Pointer(InputEvent::Kind::CancelDrag, {}); }

  /// Chooses a menu command by its name.
  void Choose(std::string_view name);

  void At(Instant when, std::function<void()> action) { host.At(when, std::move(action)); }

  /// Books an action after a delay from now.
  void In(Instant delay, std::function<void()> action) {
    At(host.Now() + delay, std::move(action));
  }

  /// Delivers events until no input is queued. The clock stands still.
  void DeliverInput();

  /// Delivers events and ticks until no timer is on and nothing is booked.
  void RunUntilQuiet();

  /// The point in the middle of a square.
  Point Middle(int square) const;

  VirtualHost host;
  Program program{host};
  Toolkit& toolkit = program.toolkit;
  frmVelmoran& form = program.mainForm;
  frmSplash& splash = program.splash;
  std::function<void()> AfterEvent;  // also called after nested events and before each wait

 private:
  bool IsTimerOn() const;
};
