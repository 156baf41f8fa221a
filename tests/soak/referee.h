#pragma once

#include <optional>
#include <stdexcept>
#include <string>

#include "game/main_form.h"
#include "grid.h"
#include "toolkit/host.h"

/// The game has broken a rule.
struct Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Where a game can stand between two events, or at a message box.
enum class Phase {
  Opening,      // the human's turn before the first tick of the pause timer
  Human,        // the human's turn
  AllTaken,     // the message that no green piece is left
  Pause,        // before the computer's turn
  NoMove,       // the message that green cannot move
  Stage,        // inside the computer's turn
  LastBlink,    // the computer has moved
  BlueHasLost,  // a message that blue has lost
  Over,         // until a new game
};

const char* NameOf(Phase phase);

/// Watches a game from event to event, and throws a `Fault` at the first thing that is not as it
/// should be: the controls against the tables, the flags against the phases of a turn, and each
/// change of the board against the rules.
class Referee {
 public:
  explicit Referee(const frmVelmoran& form) : form(form) {}

  /// After each event. `input` is what was delivered; empty for a tick, or where an earlier event
  /// ends behind a nested one.
  void AfterEvent(const InputEvent* input, const Drag& drag);

  /// Before a message box opens.
  void AtBox(const MessageBox& box, const Drag& drag);

  /// Before the program sleeps.
  void BeforeWait(bool isTimerDue);

  /// What the drag that comes next must lead to: this board, the human's move made.
  void ExpectMove(const Grid& board) { expected = board; }

  /// Other pieces have been put on the board.
  void AcceptBoard();

  /// Whether the human could play now.
  bool IsHumansTurn() const { return phase == Phase::Opening || phase == Phase::Human; }
  Phase CurrentPhase() const { return phase; }
  const Grid& Board() const { return board; }
  const std::vector<GridMove>& MovesOfHuman();
  int HumanMoveCount() const { return humanMoves; }

 private:
  void CheckTables() const;
  void CheckPath(const InputEvent* input, const Drag& drag) const;
  void CheckDrag(const InputEvent* input, const Drag& drag) const;
  void CheckBlink() const;
  void CheckNewGame();
  void CheckSuccession(Phase next) const;
  void CheckHumanMove(const Grid& now);
  void CheckGreenHop(const Grid& now, Phase next);
  void CheckBoard(Phase next);
  void CheckGameOver(const std::string& text);
  void SetBoard(const Grid& now);
  Phase FindPhase() const;

  const frmVelmoran& form;
  bool isOpen = false;  // the main window has been shown
  bool isMenuBox = false;
  Phase phase = Phase::Opening;
  Position last;  // at the last event
  std::array<int, 6> lastTimers{};
  Grid board;                                         // of `last`
  std::optional<std::vector<GridMove>> movesOfHuman;  // on `board`, once somebody has asked
  std::optional<Cell> chain;  // the green piece that has jumped in this turn
  std::optional<Grid> expected;
  bool isAnnounced = false;  // the end of this game
  int humanMoves = 0;
};
