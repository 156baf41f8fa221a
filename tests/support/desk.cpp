#include "support/desk.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "support/rules.h"

namespace {

const MenuItem* FindItem(const std::vector<MenuItem>& items, std::string_view name) {
  for (const MenuItem& item : items) {
    if (item.Name == name) return &item;
    if (const MenuItem* found = FindItem(item.Items, name)) return found;
  }
  return nullptr;
}

/// The legal moves of blue after which green cannot jump; all legal moves if there are none such.
std::vector<Move> CarefulMoves(const Position& position) {
  std::vector<Move> moves = BlueMoves(position);
  std::vector<Move> careful;
  std::ranges::copy_if(moves, std::back_inserter(careful), [&](const Move& move) {
    return std::ranges::none_of(GreenHops(Crowned(After(position, move))), IsJump);
  });
  return careful.empty() ? moves : careful;
}

}  // namespace

Desk::Desk() {
  host.OnShow = [this] {
    if (AfterEvent) AfterEvent();
  };
}

Desk::Desk(const Position& position) : Desk() {
  OpenBoard();
  PlacePosition(form, position);
}

void Desk::OpenBoard() {
  toolkit.Show(form.window);
  RunUntilQuiet();
}

void PlacePosition(frmVelmoran& form, const Position& position) {
  form.position = position;
  const auto show = [&form](Control& image, Square square, const Picture* picture) {
    image.Visible = square != 0;
    if (square != 0) PlaceImage(form, image, square);
    image.Picture = picture;
  };
  for (int piece = 1; piece <= Pieces; ++piece) {
    const Control& blue = position.BlueKing[piece] ? form.picBlueKingREF : form.picBlueCheckerREF;
    show(form.imgBlueChecker[piece], position.BlueSquare[piece], blue.Picture);
    show(form.imgGreenChecker[piece], position.GreenSquare[piece], PlainGreenPicture(form, piece));
  }
}

void Desk::Drag(const std::vector<int>& squares) {
  const auto send = [this](InputEvent::Kind what, int square) {
    const Control& label = form.lblSquare[square];
    const Point middle{label.Left + label.Width / 2, label.Top + label.Height / 2};
    host.Put({.What = what, .Window = &form.window, .At = middle});
  };
  send(InputEvent::Kind::Press, squares.front());
  for (const int square : squares) send(InputEvent::Kind::Move, square);
  send(InputEvent::Kind::Release, squares.back());
}

std::string Desk::PlayGame(int second) {
  constexpr int MostTurns = 24;
  host.Midnight = second;
  OpenBoard();
  Random hand;
  hand.Randomize(second);
  std::string game;
  for (int turn = 0; turn < MostTurns && !form.position.GameOver; ++turn) {
    const auto moves = CarefulMoves(form.position);
    const Move& move = moves[std::size_t(hand.Draw(static_cast<int>(moves.size())))];
    const Position expected = Crowned(After(form.position, move));
    Drag(move);
    DeliverInput();
    for (const int square : move) game += std::to_string(square) + ' ';
    if (!HasSameBoard(form.position, expected)) {
      return game + "is legal, but is refused or leads to " + ::Draw(form.position) + '\n';
    }
    RunUntilQuiet();
    game += "| " + ::Draw(form.position) + " | " + std::to_string(toolkit.random.DrawCount) + '\n';
  }
  return game + (form.position.GameOver ? host.Boxes.back().Text : "no end") + '\n';
}

void Desk::Choose(std::string_view name) {
  const MenuItem* item = FindItem(form.window.Menu, name);
  if (!item) throw std::invalid_argument("no such menu command");
  host.Put({.What = InputEvent::Kind::MenuCommand, .Window = &form.window, .Command = item});
}

void Desk::DeliverInput() {
  while (!host.Queue.empty()) toolkit.DoEvents();
}

void Desk::RunUntilQuiet() {
  try {
    while (host.HasWork() || IsTimerOn()) toolkit.DoEvents();
  } catch (const Quiet&) {
    // The handler of a turn that waits for ever has not returned.
    if (form.tmrPause.InHandler || form.tmrBlink.InHandler) {
      throw std::logic_error("a handler waits for ever");
    }
  }
}

bool Desk::IsTimerOn() const {
  return form.tmrPause.Enabled || form.tmrBlink.Enabled ||
         (splash.window.Visible && splash.tmrTimer.Enabled);
}
