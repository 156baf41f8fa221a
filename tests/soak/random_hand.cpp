#include "random_hand.h"

#include <array>

namespace {

using namespace std::chrono_literals;
using Kind = InputEvent::Kind;

constexpr int CellSide = 65 * TwipsPerPixel;
constexpr int BoardSide = 8 * CellSide;
constexpr int MostMoves = 150;  // kings may chase each other for ever
constexpr std::size_t NewGame = 0;
constexpr std::size_t Exit = 1;

}  // namespace

int Dice::Roll(int sides) {
  // The mixing of SplitMix64: every seed, small ones included, gives a sequence of its own.
  std::uint64_t mixed = state += 0x9e3779b97f4a7c15;
  mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9;
  mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111eb;
  mixed ^= mixed >> 31;
  return static_cast<int>((mixed >> 32) * static_cast<std::uint64_t>(sides) >> 32);
}

void RandomHand::Act(WatchedGame& game, std::optional<Instant> until) {
  const Referee& referee = game.referee;
  const bool isSplash = !game.form.window.Visible;
  if (!isSplash && referee.CurrentPhase() == Phase::Over) return AfterTheEnd(game);
  if (until) {
    // Most ticks come undisturbed. Sometimes the hand and the tick come at the same instant.
    const bool isOpening = !isSplash && referee.IsHumansTurn();
    if (!dice.Chance(isSplash || isOpening ? 30 : 1)) return;
    const Instant now = game.host.Now();
    const auto rest = static_cast<int>((*until - now).count());
    game.host.Pass(now + Instant(dice.Chance(20) ? rest : dice.Roll(rest)));
    return isOpening ? PlayTurn(game) : Disturb(game);
  }
  PlayTurn(game);
}

Instant RandomHand::BoxTime() {
  constexpr auto Times =
      std::to_array<Instant>({0ms, 0ms, 1ms, 150ms, 200ms, 499ms, 500ms, 3s, 1h});
  return Times[static_cast<std::size_t>(dice.Roll(static_cast<int>(Times.size())))];
}

void RandomHand::PlayTurn(WatchedGame& game) {
  const bool isFirst =
      game.referee.CurrentPhase() == Phase::Human && game.referee.HumanMoveCount() == 0;
  if (isFirst && dice.Chance(40)) Deal(game);
  const int chance = dice.Roll(1000);
  if (chance < 3) {
    game.Choose(NewGame);
  } else if (chance < 4 || game.referee.HumanMoveCount() >= MostMoves) {
    dice.Chance(50) ? game.Choose(Exit) : game.Send(Kind::Close);
  } else if (chance < 10) {
    OpenHelp(game);
  } else if (chance < 40) {
    DragCutOff(game);
  } else if (chance < 120) {
    DragSilly(game);
  } else {
    DragByTheRules(game);
  }
}

/// Most games end before there are many kings, so some begin with them.
void RandomHand::Deal(WatchedGame& game) {
  Position position = game.form.position;
  position.BlueSquare = position.GreenSquare = {};
  position.JumpPath = {};  // what a refused drop has left is about other pieces
  const int crowded = 20 + dice.Roll(60);
  for (int square = 1, blue = 0, green = 0; square <= Squares; ++square) {
    if (!dice.Chance(crowded)) continue;
    const bool isBlue = dice.Chance(50);
    int& piece = isBlue ? blue : green;
    if (piece == Pieces) continue;
    ++piece;
    const bool isKing = dice.Chance(40) || square <= 4 || square >= 29;
    (isBlue ? position.BlueSquare : position.GreenSquare)[piece] = static_cast<Square>(square);
    (isBlue ? position.BlueKing : position.GreenKing)[piece] = isKing;
  }
  const Grid board = GridOf(position);
  if (HasGreen(board) && !HumanMoves(board).empty()) game.Deal(position);
}

/// While the computer moves, or over the splash.
void RandomHand::Disturb(WatchedGame& game) {
  const bool isSplash = !game.form.window.Visible;
  const int chance = dice.Roll(100);
  if (chance < 2) {
    game.Send(Kind::Close);
  } else if (isSplash || chance < 60) {
    DragSilly(game);
  } else if (chance < 85) {
    OpenHelp(game);
  } else {
    game.Choose(NewGame);
    if (dice.Chance(20)) game.Choose(NewGame);
    // Queued together, the drag must find the interrupted turn gone.
    if (dice.Chance(70)) DragSilly(game);
  }
}

void RandomHand::AfterTheEnd(WatchedGame& game) {
  const int chance = dice.Roll(100);
  if (chance < 10) {
    OpenHelp(game);
  } else if (chance < 30) {
    DragSilly(game);
  } else if (chance < 45 && game.referee.HumanMoveCount() < MostMoves) {
    game.Choose(NewGame);
  } else {
    dice.Chance(50) ? game.Choose(Exit) : game.Send(Kind::Close);
  }
}

void RandomHand::DragByTheRules(WatchedGame& game) {
  const GridMove move = ChooseMove(game.referee);
  game.referee.ExpectMove(Crowned(After(game.referee.Board(), move), 'b'));
  MoveAlong(game, move);
  game.Release(PointIn(move.To()));
}

/// A drag that would be right, but ends without a drop; its release comes late or never.
void RandomHand::DragCutOff(WatchedGame& game) {
  const GridMove move = ChooseMove(game.referee);
  MoveAlong(game, move);
  switch (dice.Roll(6)) {
    case 0:
      game.Release(PointOutside());
      break;
    case 1:
      game.Send(Kind::CancelDrag);
      break;
    case 2:
      OpenHelp(game);
      break;
    case 3:
      game.Press(PointAnywhere());
      break;
    case 4:
      game.Choose(NewGame);
      break;
    default:
      return;  // nobody tells that the button is up again
  }
  if (dice.Chance(50)) game.Release(PointIn(move.To()));
}

/// From one piece by hops to another, or from anywhere to anywhere.
void RandomHand::DragSilly(WatchedGame& game) {
  if (dice.Chance(50)) return DragAmongPieces(game);
  const int points = dice.Roll(5);
  if (dice.Chance(90)) game.Press(PointAnywhere());
  for (int k = 0; k < points; ++k) game.Move(dice.Chance(85) ? PointAnywhere() : PointOutside());
  if (dice.Chance(90)) game.Release(PointAnywhere());
}

void RandomHand::DragAmongPieces(WatchedGame& game) {
  const auto near = [&](Cell cell, int away) {
    const auto move = [&](int place) { return place + (dice.Chance(50) ? away : -away); };
    return Cell{move(cell.Row), move(cell.Column)};
  };
  const Cell from = CellOfPiece(game);
  Cell cell = from;
  game.Press(PointIn(cell));
  for (int hops = dice.Roll(3); hops > 0; --hops) game.Move(PointIn(cell = near(cell, 2)));
  // Back beside the start there is often a friend.
  const std::array<Cell, 3> ends{cell, CellOfPiece(game), near(from, 1)};
  game.Release(PointIn(ends[static_cast<std::size_t>(dice.Roll(3))]));
}

void RandomHand::OpenHelp(WatchedGame& game) {
  if (!game.form.window.Visible) return;
  game.Choose(2 + static_cast<std::size_t>(dice.Roll(static_cast<int>(game.CommandCount()) - 2)));
}

/// Presses on the piece and passes its stops, the last one sometimes only by the release.
void RandomHand::MoveAlong(WatchedGame& game, const GridMove& move) {
  game.Press(PointIn(move.From()));
  for (int k = 1; k < move.Count; ++k) {
    const Cell stop = move.Stops[static_cast<std::size_t>(k)];
    if (k == move.Count - 1 && dice.Chance(30)) break;
    for (int times = dice.Roll(8) == 0 ? 3 : 1; times > 0; --times) game.Move(PointIn(stop));
  }
}

GridMove RandomHand::ChooseMove(Referee& referee) {
  const std::vector<GridMove>& moves = referee.MovesOfHuman();
  return moves[static_cast<std::size_t>(dice.Roll(static_cast<int>(moves.size())))];
}

/// Where a blue piece stands, or a corner for one that has been captured.
Cell RandomHand::CellOfPiece(const WatchedGame& game) {
  const Square square = game.form.position.BlueSquare[1 + dice.Roll(Pieces)];
  return square == 0 ? Cell{} : CellOf(square);
}

Point RandomHand::PointIn(Cell cell) {
  return {cell.Column * CellSide + dice.Roll(CellSide),
          (7 - cell.Row) * CellSide + dice.Roll(CellSide)};
}

Point RandomHand::PointAnywhere() { return {dice.Roll(BoardSide), dice.Roll(BoardSide)}; }

Point RandomHand::PointOutside() {
  const int away = -1 - dice.Roll(CellSide);
  switch (dice.Roll(4)) {
    case 0:
      return {away, dice.Roll(BoardSide)};
    case 1:
      return {dice.Roll(BoardSide), away};
    case 2:
      return {BoardSide - 1 - away, dice.Roll(BoardSide)};
    default:
      return {dice.Roll(BoardSide), BoardSide - 1 - away};
  }
}
