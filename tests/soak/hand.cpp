#include "soak/hand.h"

#include <array>

namespace {

using namespace std::chrono_literals;
using Kind = InputEvent::Kind;

constexpr int CellSide = 65 * TwipsPerPixel;
constexpr int MostRounds = 80;  // kings may chase each other for ever

}  // namespace

void Hand::PlayGame() {
  try {
    desk.host.Midnight = Roll(256);  // it seeds the computer's chance
    desk.toolkit.Show(Roll(10) == 0 ? desk.splash.window : desk.form.window);
    for (int round = 0; round < MostRounds; ++round) {
      if (round == 1 && Roll(3) != 0) Deal();
      PlayRound();
    }
    Leave();
  } catch (const ProgramEnded&) {
  }
}

/// Something to do for the human, what comes of it, and now and then more in between.
void Hand::PlayRound() {
  constexpr auto BoxTimes = std::to_array<Instant>({0ms, 1ms, 150ms, 200ms, 500ms, 3s, 1h});
  desk.host.BoxTime = BoxTimes[static_cast<std::size_t>(Roll(BoxTimes.size()))];
  for (int more = Roll(12); more > 9; --more) {
    const Instant exactly = 100ms * Roll(50);  // a tick may come at the same instant
    desk.In(exactly + (Roll(2) == 0 ? 0ms : 1ms * Roll(100)), [this] { Disturb(); });
  }
  if (desk.form.position.GameOver) {
    Roll(3) == 0 ? DragAnyhow() : Roll(4) == 0 ? Choose("mnuGame") : Leave();
  } else if (desk.form.window.Visible) {
    PlayTurn();
  }
  desk.RunUntilQuiet();
  watcher.CheckRest();
}

void Hand::PlayTurn() {
  const std::vector<Move> moves = BlueMoves(desk.form.position);
  const Move& move = moves[static_cast<std::size_t>(Roll(static_cast<int>(moves.size())))];
  const int what = Roll(100);
  if (what < 1) {
    Choose("mnuGame");
  } else if (what < 2) {
    OpenHelp();
  } else if (what < 6) {
    DragCutOff(move);
  } else if (what < 14) {
    DragAnyhow();
  } else {
    DragByTheRules(move);
  }
}

/// Most games end before there are many kings, so some begin with them.
void Hand::Deal() {
  std::mt19937 generator(static_cast<unsigned>(Roll(65536)));
  const auto chance = [&](std::uint64_t percent) { return generator() % 100 < percent; };
  const std::uint64_t crowded = 10 + generator() % 70;
  int left[] = {Pieces, Pieces};
  std::string picture;
  for (int place = 0; place < Squares; ++place) {
    const int side = chance(50) ? 1 : 0;
    const bool isKing = chance(40) || place < 4 || place >= 28;
    const bool isHeld = chance(crowded) && left[side]-- > 0;
    picture += !isHeld ? '.' : side == 0 ? (isKing ? 'B' : 'b') : (isKing ? 'G' : 'g');
  }
  const Position position = Board(picture);
  if (left[1] < Pieces && !BlueMoves(position).empty()) watcher.Deal(position);
}

void Hand::DragByTheRules(const Move& move) {
  const Position& position = desk.form.position;
  const Position expected = Crowned(After(position, move));
  Follow(move);
  Send(Kind::Release, PointOn(move.back()));
  desk.DeliverInput();
  Demand(HasSameBoard(position, expected), "a legal drag is refused or leads to another move");
  Demand(position.GameOver || desk.form.tmrPause.Enabled, "green is not asked to move");
}

/// A drag that would be right, but ends without a drop; its release comes late.
void Hand::DragCutOff(const Move& move) {
  Follow(move);
  switch (Roll(4)) {
    case 0:
      Send(Kind::Release, {Roll(2) == 0 ? -1 : 8 * CellSide, Roll(8 * CellSide)});
      break;
    case 1:
      Send(Kind::CancelDrag);
      break;
    case 2:
      OpenHelp();
      break;
    default:
      Choose("mnuGame");
  }
  desk.DeliverInput();
  Demand(!desk.host.ShownDrag.Source, "a drag outlives what ends it");
  const Position before = desk.form.position;
  Send(Kind::Release, PointOn(move.back()));
  desk.DeliverInput();
  Demand(HasSameBoard(desk.form.position, before), "a late release drops a piece");
}

/// From a piece by hops of one square or two, or from anywhere to anywhere.
void Hand::DragAnyhow() {
  const int square = desk.form.position.BlueSquare[1 + Roll(Pieces)];
  Point at = square != 0 && Roll(4) != 0 ? PointOn(square) : PointAnywhere();
  const auto hop = [&] { return (Roll(2) == 0 ? 1 : -1) * CellSide; };
  Send(Kind::Press, at);
  for (int hops = Roll(5); hops > 0; --hops) {
    const int cells = 1 + Roll(2);
    at = Roll(5) == 0 ? PointAnywhere() : Point{at.X + cells * hop(), at.Y + cells * hop()};
    Send(Kind::Move, at);
  }
  if (Roll(8) != 0) Send(Kind::Release, square != 0 && Roll(6) == 0 ? PointOn(square) : at);
}

/// While the computer moves, or over the splash.
void Hand::Disturb() {
  const int what = Roll(100);
  if (what < 2) {
    Send(Kind::Close);
  } else if (what < 50 || !desk.form.window.Visible) {
    DragAnyhow();
  } else if (what < 70) {
    OpenHelp();
  } else {
    Choose("mnuGame");
    if (Roll(5) == 0) Choose("mnuGame");
    // Queued together, the drag must find the interrupted turn gone.
    if (Roll(2) == 0) desk.Drag({9, 13});
  }
}

void Hand::Leave() {
  Roll(2) == 0 ? Choose("mnuExit") : Send(Kind::Close);
  desk.DeliverInput();
  throw Fault("the program outlives its end");
}

/// Presses on the piece and passes its stops, the last one sometimes only by the release.
void Hand::Follow(const Move& move) {
  Send(Kind::Press, PointOn(move.front()));
  const std::size_t stops = move.size() - (Roll(3) == 0 ? 1 : 0);
  for (std::size_t k = 1; k < stops; ++k) Send(Kind::Move, PointOn(move[k]));
}

void Hand::Send(Kind what, Point at) {
  if (watcher.Log) std::fprintf(watcher.Log, "  input %d at %d,%d\n", int(what), at.X, at.Y);
  Form* window = desk.form.window.Visible ? &desk.form.window : &desk.splash.window;
  desk.host.Put({.What = what, .Window = window, .At = at});
}

void Hand::Choose(const char* command) {
  if (watcher.Log) std::fprintf(watcher.Log, "  %s\n", command);
  desk.Choose(command);
}

void Hand::OpenHelp() {
  constexpr auto Commands =
      std::to_array({"mnuControls", "mnuAbout", "mnuPart1", "mnuPart2", "mnuPart3"});
  Choose(Commands[static_cast<std::size_t>(Roll(Commands.size()))]);
}

Point Hand::PointOn(int square) {
  const Control& label = desk.form.lblSquare[square];
  return {label.Left + Roll(label.Width), label.Top + Roll(label.Height)};
}

/// On the window, or up to a cell beside it.
Point Hand::PointAnywhere() {
  return {Roll(10 * CellSide) - CellSide, Roll(10 * CellSide) - CellSide};
}
