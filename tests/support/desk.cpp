#include "support/desk.h"

#include <array>
#include <stdexcept>

namespace {

const MenuItem* FindItem(const std::vector<MenuItem>& items, std::string_view name) {
  for (const MenuItem& item : items) {
    if (item.Name == name) return &item;
    if (const MenuItem* found = FindItem(item.Items, name)) return found;
  }
  return nullptr;
}

}  // namespace

Desk::Desk() {
  BuildMainWindow(form);
  BuildSplashWindow(splash);
  host.OnShow = [this] {
    if (AfterEvent) AfterEvent();
  };
}

Desk::Desk(const Position& position) : Desk() {
  OpenBoard();
  SetPosition(position);
}

void Desk::OpenBoard() {
  toolkit.Show(form.window);
  RunUntilQuiet();
}

void Desk::SetPosition(const Position& position) {
  form.position = position;
  for (int piece = 1; piece <= Pieces; ++piece) {
    const Square blue = position.BlueSquare[piece];
    const Square green = position.GreenSquare[piece];
    form.imgBlueChecker[piece].Visible = blue != 0;
    form.imgGreenChecker[piece].Visible = green != 0;
    if (blue != 0) PlaceImage(form, form.imgBlueChecker[piece], blue);
    if (green != 0) PlaceImage(form, form.imgGreenChecker[piece], green);
    form.imgBlueChecker[piece].Picture =
        position.BlueKing[piece] ? form.picBlueKingREF.Picture : form.picBlueCheckerREF.Picture;
    form.imgGreenChecker[piece].Picture = PlainGreenPicture(form, piece);
  }
}

void Desk::Draws(std::vector<double> values) {
  // The values behind the given ones name every direction in turn, so no retry goes on for ever.
  toolkit.random.Script = [values = std::move(values), next = std::size_t{0}]() mutable {
    constexpr std::array Others{0.1, 0.7, 0.3, 0.9};
    const std::size_t index = next++;
    return index < values.size() ? values[index] : Others[(index - values.size()) % 4];
  };
}

void Desk::Drag(const std::vector<int>& squares) {
  Press(squares.front());
  for (const int square : squares) Move(square);
  Release(squares.back());
}

void Desk::Pointer(InputEvent::Kind what, Point at) {
  host.Put({.What = what, .Window = &form.window, .At = at});
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
    for (;;) toolkit.DoEvents();
  } catch (const Quiet&) {
    // A turn that sleeps with nothing to wake it would have kept its timer in the handler.
    if (form.tmrPause.InHandler || form.tmrBlink.InHandler) {
      throw std::logic_error("a handler sleeps with nothing to wake it");
    }
  }
}

void Desk::RunUntil(Instant when) {
  bool isReached = false;
  At(when, [&] {
    isReached = true;
    // Nobody but the loop below waits here, so the wait may be left.
    if (!form.tmrPause.InHandler && !host.IsBoxOpen) throw Quiet{};
  });
  try {
    while (!isReached) toolkit.DoEvents();
  } catch (const Quiet&) {
  }
}

Point Desk::Middle(int square) const {
  const Control& label = form.lblSquare[square];
  return {label.Left + label.Width / 2, label.Top + label.Height / 2};
}
