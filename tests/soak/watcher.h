#pragma once

#include <functional>
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
/// must always be:
/// - The tables are sound, and the pictures show what they say.
/// - Blue moves by the rules, once in a turn; green too, takes where it can, and jumps on with the
///   same piece for as long as it can. Nothing else changes the board but New Game.
/// - New Game sets up the start position and stops both timers.
/// - A game ends at once when it must, with the right words, once, and never otherwise. Boxes come
///   only where they are called for.
/// - Only blue pieces are dragged, only in the human's turn, and no drag inherits a path.
/// - At rest the human can move, or the game is over: nothing of a turn is left.
class Watcher {
 public:
  explicit Watcher(Desk& watchedDesk);

  /// To be called when the desk is quiet: nothing of a turn may be left, and the game can go on.
  void CheckRest();

  /// Puts other pieces on the board, in the human's turn.
  void Deal(const Position& position);

  Desk& desk;
  std::function<void(const std::string& line)> Log;  // is told every change; may be empty
  int Moves = 0;                                     // of the human

 private:
  bool IsHumansTurn() const;
  void CheckEvent();
  void CheckTables() const;
  void CheckPictures() const;
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
  int events = 0;            // since the desk was last at rest
};
