#pragma once

#include <algorithm>
#include <cstdio>
#include <deque>
#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "support/desk.h"
#include "support/rules.h"

/// What is wrong, in words.
struct Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Throws `Fault(fault)` unless `isTrue`.
inline void Demand(bool isTrue, const char* fault) {
  if (!isTrue) throw Fault(fault);
}

constexpr int MostEvents = 100'000;  // many more than any turn has

inline bool HasPiece(const Table<Square, Pieces>& squares) {
  return std::ranges::any_of(squares, [](Square square) { return square != 0; });
}

inline bool HasJump(const std::vector<Move>& moves) { return std::ranges::any_of(moves, IsJump); }

/// The text that must announce the end of the game now. Empty if the game goes on.
inline std::string EndOf(const Position& position) {
  if (!HasPiece(position.BlueSquare)) return "Blue has been captured!  YOU LOSE!!!";
  if (!HasPiece(position.GreenSquare)) return "Green has been captured!  YOU WIN!!!";
  if (position.BlueToMove) {
    return BlueMoves(position).empty() ? "Blue cannot move!  YOU LOSE!!!" : "";
  }
  return GreenHops(position).empty() ? "Green cannot move!  YOU WIN!!!" : "";
}

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
  Watcher(Desk& watchedDesk, bool isLoudNow)
      : desk(watchedDesk), isLoud(isLoudNow), last(StartPosition()) {
    desk.AfterEvent = [this] { CheckEvent(); };
    desk.host.OnBox = [this](const MessageBox& box) { CheckBox(box); };
  }

  /// Call this when the desk is quiet. Checks that the turn is over and that the game can go on.
  void CheckRest() {
    const Position& position = desk.form.position;
    const auto isDragMode = [&](int mode) {
      return std::ranges::count(desk.form.imgBlueChecker, mode, &Control::DragMode) == Pieces;
    };
    Demand(HasSameBoard(position, Crowned(position)), "a man on its far row is not crowned");
    Demand(!desk.form.BlinkStarted, "BlinkStarted is still set after the turn");
    if (position.GameOver) {
      Demand(isDragMode(0) || !HasPiece(position.BlueSquare),
             "a piece can be dragged after the end");
    } else {
      Demand(position.BlueToMove && isDragMode(1) && EndOf(position).empty(),
             "the game cannot go on");
    }
    events = 0;
    desk.host.Boxes.clear();
  }

  /// Replaces the position, in the human's turn.
  void Deal(const Position& position) {
    PlacePosition(desk.form, position);
    last = position;
  }

  /// Adds a line to the log, which has a line for every change. It keeps the last thirteen.
  void Log(const std::string& line) {
    if (isLoud) std::puts(line.c_str());
    log.push_back(line);
    if (log.size() > 13) log.pop_front();
  }

  /// Prints the log, unless that has been done.
  void PrintLog() const {
    if (isLoud) return;
    for (const std::string& line : log) std::puts(line.c_str());
  }

  Desk& desk;
  int Moves = 0;  // made by the human

 private:
  bool IsHumansTurn() const {
    const frmVelmoran& form = desk.form;
    return form.window.Visible && form.position.BlueToMove && !form.position.GameOver &&
           !form.tmrBlink.Enabled && form.imgBlueChecker[1].DragMode == 1;
  }

  void CheckEvent() {
    Demand(++events < MostEvents, "the turn does not end");
    if (!desk.form.window.Visible) return;
    LogPosition();
    CheckTables();
    CheckPictures();
    CheckBoard();
    Demand(desk.form.position.GameOver == isAnnounced,
           "GameOver is set without an announcement, or not set after it");
    CheckDrag();
    last = desk.form.position;
    wasHumansTurn = IsHumansTurn();
    lastDrag = desk.host.ShownDrag;
  }

  void CheckTables() const {
    const Position& position = desk.form.position;
    Table<int, Squares> pieces;
    for (const auto& table : {position.BlueSquare, position.GreenSquare}) {
      for (const Square square : table) {
        Demand(0 <= square && square <= Squares, "a piece stands off the board");
        Demand(square == 0 || ++pieces[square] == 1, "two pieces stand on one square");
      }
    }
    bool isFree = false;
    for (const Square square : position.JumpPath) {
      Demand(square == 0 || !isFree, "the path has a gap");
      isFree = square == 0;
    }
  }

  /// Each piece is shown on its square with the picture of its rank. A captured one is hidden.
  void CheckPictures() const {
    const frmVelmoran& form = desk.form;
    const auto checkPlace = [&](Square square, const Control& image) {
      Demand(image.Visible == (square != 0), "a captured piece is shown, or another one is hidden");
      if (square == 0) return;
      const Control& label = form.lblSquare[square];
      Demand(image.Left == label.Left && image.Top == label.Top,
             "a piece is not shown on its square");
    };
    const Position& position = form.position;
    for (int piece = 1; piece <= Pieces; ++piece) {
      const Control& blue = form.imgBlueChecker[piece];
      const Control& green = form.imgGreenChecker[piece];
      checkPlace(position.BlueSquare[piece], blue);
      checkPlace(position.GreenSquare[piece], green);
      const Control& blueBox =
          position.BlueKing[piece] ? form.picBlueKingREF : form.picBlueCheckerREF;
      const Control& lit = position.GreenKing[piece] ? form.picGreenKingHighlightREF
                                                     : form.picGreenCheckerHighlightREF;
      const bool isLit =
          form.tmrBlink.Enabled && form.BlinkChecker == piece && form.BlinkCount % 2 == 1;
      Demand(blue.Picture == blueBox.Picture &&
                 green.Picture == (isLit ? lit.Picture : PlainGreenPicture(form, piece)),
             "a piece has the picture of another rank, or is lit at a wrong time");
    }
  }

  /// Every change of the board is a legal move of the side whose turn it is, or a new game.
  void CheckBoard() {
    const Position& now = desk.form.position;
    const bool isTurnOver = now.BlueToMove != last.BlueToMove;
    if (now.NewGameRequested && !last.NewGameRequested) {
      Demand(HasSameBoard(now, StartPosition()),
             "a new game does not begin with the start position");
      Demand(!desk.form.tmrPause.Enabled && !desk.form.tmrBlink.Enabled,
             "New Game leaves a timer on");
      isAnnounced = false;
      chain = 0;
    } else if (HasSameBoard(now, last)) {
      Demand(!isTurnOver, "a turn ends without a move");
    } else if (last.BlueToMove && isTurnOver) {
      ++Moves;
      const auto isThis = [&](const Move& move) {
        return HasSameBoard(now, Crowned(After(last, move)));
      };
      Demand(std::ranges::any_of(BlueMoves(last), isThis), "the human's move is illegal");
      chain = 0;
    } else if (last.BlueToMove) {
      Demand(HasSameBoard(now, Crowned(last)) && !wasHumansTurn, "the board changes out of turn");
    } else {
      CheckGreenHop();
    }
  }

  void CheckGreenHop() {
    const Position& now = desk.form.position;
    const std::vector<Move> hops = GreenHops(last);
    const auto isThis = [&](const Move& hop) { return HasSameBoard(now, After(last, hop)); };
    const auto hop = std::ranges::find_if(hops, isThis);
    Demand(hop != hops.end(), "green's move is illegal");
    Demand(IsJump(*hop) || !HasJump(hops), "green steps though it can jump");
    Demand(chain == 0 || (chain == hop->front() && IsJump(*hop)),
           "green goes on with another piece or with a step");
    chain = hop->back();
    Demand(now.GreenSquare[desk.form.BlinkChecker] == chain,
           "the piece that blinks is not the one that moves");
    const auto isNext = [&](const Move& next) { return IsJump(next) && next.front() == chain; };
    const bool isLast = !IsJump(*hop) || std::ranges::none_of(GreenHops(now), isNext);
    Demand(isLast == now.BlueToMove, "green stops a chain too early, or its turn goes on");
  }

  void CheckDrag() const {
    const bool isPath = desk.form.position.JumpPath[1] != 0;
    Demand(!isPath || IsHumansTurn(), "there is a path outside the human's turn");
    const Drag& drag = desk.host.ShownDrag;
    if (!drag.Source) return;
    Demand(IsHumansTurn() && drag.Source->Visible && drag.Source->Name == "imgBlueChecker",
           "this may not be dragged now");
    const bool isNew = drag.Source != lastDrag.Source || drag.Start != lastDrag.Start;
    Demand(!isNew || !isPath, "a drag starts with a path");
  }

  void CheckBox(const MessageBox& box) {
    Log("             box " + box.Title + ": " + box.Text.substr(0, box.Text.find('\r')));
    const Position& position = desk.form.position;
    Demand(!desk.host.ShownDrag.Source, "a drag goes on under a message box");
    if (box.Title == "Game Over") {
      Demand(!std::exchange(isAnnounced, true), "the end of a game is announced twice");
      Demand(box.Text == EndOf(position) && box.Icon == MessageIcon::Stop,
             "this is not how the game ends now");
    } else if (box.Title == "Capture Required") {
      Demand(IsHumansTurn() && HasJump(BlueMoves(position)),
             "a capture is demanded though none is possible");
    } else {
      Demand(box.Icon == MessageIcon::Information, "there is no reason for this message box");
    }
  }

  /// Logs the position if it has changed, or if a drag has moved.
  void LogPosition() {
    if (desk.form.position == last && desk.host.ShownDrag.Pointer == lastDrag.Pointer) return;
    std::ostringstream line;
    line << std::setw(8) << desk.host.Now().count() / 1000 << " ms  ";
    const Position& position = desk.form.position;
    line << Draw(position) << (position.BlueToMove ? " blue" : " green");
    for (const Square square : position.JumpPath) {
      if (square != 0) line << ' ' << square;
    }
    Log(line.str());
  }

  const bool isLoud;
  std::deque<std::string> log;
  Position last;  // after the event before
  Drag lastDrag;
  bool wasHumansTurn = false;
  int chain = 0;             // where the green piece stands that has moved in this turn; 0: none
  bool isAnnounced = false;  // whether the end of this game is
  int events = 0;            // since the desk was last at rest
};
