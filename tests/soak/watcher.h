#pragma once

#include <deque>
#include <stdexcept>

#include "support/desk.h"
#include "support/rules.h"

/// What is wrong, in words.
struct Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Throws `Fault(fault)` unless `isTrue`.
void Demand(bool isTrue, const char* fault);

/// Checks a desk after each event, and throws a `Fault` if one of these does not hold:
/// - The tables are sound, and the pictures show what they say.
/// - Blue makes one legal move in a turn. Green moves by the rules, jumps if it can, and jumps on
///   with the same piece as long as it can. Only moves and New Game change the board.
/// - New Game sets up the start position and stops both timers.
/// - A game ends exactly when it must, and says so once, with the right text. Each message box has
///   its reason.
/// - Only blue pieces are dragged, and only in the human's turn. No drag starts with a path.
/// - At rest the human can move, or the game is over.
class Watcher {
 public:
  /// If it is loud, it prints its log at once.
  Watcher(Desk& watchedDesk, bool isLoud);

  /// Call this when the desk is quiet. Checks that the turn is over and that the game can go on.
  void CheckRest();

  /// Replaces the position, in the human's turn.
  void Deal(const Position& position);

  /// Adds a line to the log, which has a line for every change. It keeps the last thirteen.
  void Log(const std::string& line);

  /// Prints the log, unless that has been done.
  void PrintLog() const;

  Desk& desk;
  int Moves = 0;  // made by the human

 private:
  bool IsHumansTurn() const;
  void CheckEvent();
  void CheckTables() const;
  void CheckPictures() const;
  void CheckBoard();
  void CheckGreenHop();
  void CheckDrag() const;
  void CheckBox(const MessageBox& box);
  void LogPosition();

  const bool isLoud;
  std::deque<std::string> log;
  Position last;  // after the event before
  Drag lastDrag;
  bool wasHumansTurn = false;
  int chain = 0;             // where the green piece stands that has moved in this turn; 0: none
  bool isAnnounced = false;  // whether the end of this game is
  int events = 0;            // since the desk was last at rest
};
