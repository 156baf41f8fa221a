#pragma once

#include <string_view>
#include <vector>

#include "support/board.h"
#include "support/virtual_host.h"
#include "ui/program.h"

/// Plays on from this position: places the pieces and shows them.
void PlacePosition(frmVelmoran& form, const Position& position);

/// The whole program on a virtual host, and a hand that plays on it.
class Desk {
 public:
  Desk();

  /// Opens the main window on this position.
  explicit Desk(const Position& position);

  /// Opens the main window without a splash. The board is ready, and `tmrPause` has had its tick.
  void OpenBoard();

  /// Hands out these random values in turn, then values from all over the range.
  void Draws(std::vector<double> values);

  /// One drag from the middle of the first square over those of the others, with one movement to
  /// each, let go on the last.
  void Drag(const std::vector<int>& squares);

  /// Makes one drag and lets the computer answer.
  void PlayTurn(const std::vector<int>& squares);

  /// Plays one turn with a legal drag. Returns the drag, the board after green's answer and the
  /// number of draws so far, on one line. Throws if the drag is refused or leads elsewhere.
  std::string PlayLegalTurn(const std::vector<int>& squares);

  /// Opens the board at so many seconds after midnight, which seeds the game, and plays. The hand
  /// takes at random one of the legal drags after which green cannot jump, if there is one. Returns
  /// a line for each turn, and then how the game ends: "no end" if it does not within 60 turns.
  std::string PlayGame(int second);

  void Press(int square) { Pointer(InputEvent::Kind::Press, Middle(square)); }
  void Move(int square) { Pointer(InputEvent::Kind::Move, Middle(square)); }
  void Release(int square) { Pointer(InputEvent::Kind::Release, Middle(square)); }
  void Pointer(InputEvent::Kind what, Point at);
  void CancelDrag() { Pointer(InputEvent::Kind::CancelDrag, {}); }

  /// Chooses a menu command by its name.
  void Choose(std::string_view name);

  void At(Instant when, std::function<void()> action) { host.At(when, std::move(action)); }

  /// Books an action for so much later than now.
  void In(Instant delay, std::function<void()> action) {
    At(host.Now() + delay, std::move(action));
  }

  /// Delivers the input that is queued now, and no tick that is not due.
  void DeliverInput();

  /// Delivers events and ticks until nothing is left to come.
  void RunUntilQuiet();

  /// The middle of a square.
  Point Middle(int square) const;

  VirtualHost host;
  Program program{host};
  Toolkit& toolkit = program.toolkit;
  frmVelmoran& form = program.mainForm;
  frmSplash& splash = program.splash;
  std::function<void()> AfterEvent;  // nested events included; also comes before each wait

 private:
  bool IsTimerOn() const;
};
