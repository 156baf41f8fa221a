#pragma once

#include <cstdio>
#include <stdexcept>

#include "support/desk.h"
#include "support/rules.h"

/// The game has broken a rule.
struct Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Throws a fault of these words unless it is true.
void Demand(bool isTrue, const char* what);

/// Watches a desk from event to event, and throws a `Fault` at the first thing that is not as it
/// must always be.
class Watcher {
 public:
  explicit Watcher(Desk& watchedDesk);

  /// To be called when the desk is quiet: nothing of a turn may be left, and the game can go on.
  void CheckRest();

  /// Puts other pieces on the board, in the human's turn.
  void Deal(const Position& position);

  Desk& desk;
  std::FILE* Log = nullptr;  // where every change is told, if anywhere
  int Moves = 0;             // of the human
  int Events = 0;

 private:
  bool IsHumansTurn() const;
  void CheckEvent();
  void CheckBoard();
  void CheckGreenHop();
  void CheckDrag() const;
  void CheckBox(const MessageBox& box);
  void Tell() const;

  Position last;  // at the event before
  Drag lastDrag;
  bool wasHumansTurn = false;
  int chain = 0;             // the square of the green piece that has jumped in this turn
  bool isAnnounced = false;  // the end of this game
  int lastRest = 0;          // events up to then
};
