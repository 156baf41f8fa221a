#include "watched_game.h"

#include "support/desk.h"

namespace {

constexpr int MostEvents = 1'000'000;  // far above any game: who gets there turns in a circle

/// The board on one line, the top row first.
std::string Draw(const Grid& board) {
  std::string rows;
  for (int row = 7; row >= 0; --row) {
    for (int column = row % 2; column < 8; column += 2) rows += board[{row, column}];
    if (row > 0) rows += ' ';
  }
  return rows;
}

/// Whether the point lies on one of the cells that are no squares.
bool IsRed(Point point) {
  constexpr int Side = 65 * TwipsPerPixel;
  if (!Contains({0, 0, 8 * Side, 8 * Side}, point)) return false;
  return (point.X / Side + point.Y / Side) % 2 == 0;
}

}  // namespace

void WatchedHost::WaitForInput(std::optional<Instant> until) {
  game.referee.BeforeWait(until.has_value());
  do {
    hand.Act(game, until);
  } while (!until && Queue.empty());
  if (Queue.empty()) Pass(*until);
}

void WatchedHost::ShowMessageBox(const MessageBox& box) {
  if (Log) std::fprintf(Log, "             box \"%s\": %s\n", box.Title.c_str(), box.Text.c_str());
  game.referee.AtBox(box, ShownDrag);
  BoxTime = hand.BoxTime();
  VirtualHost::ShowMessageBox(box);
  Boxes.clear();
}

void WatchedHost::ShowForms(std::span<Form* const> forms, const Drag& drag) {
  VirtualHost::ShowForms(forms, drag);
  const std::optional<InputEvent> delivered = TakeDelivered();
  const InputEvent* input = delivered ? &*delivered : nullptr;
  if (++EventCount > MostEvents) throw Fault("the game has no end");
  if (Log) Tell(input);
  if (input) CheckClick(*input);
  game.referee.AfterEvent(input, drag);
}

/// A click is a press and the release after it, both on the background.
void WatchedHost::CheckClick(const InputEvent& input) {
  const bool isClick = game.ClickCount() != clickCount;
  clickCount = game.ClickCount();
  bool isDue = false;
  if (input.What == InputEvent::Kind::Press || input.What == InputEvent::Kind::Release) {
    const bool isRed = input.Window == &game.form.window && IsRed(input.At);
    isDue = input.What == InputEvent::Kind::Release && isPressedOnRed && isRed;
    isPressedOnRed = input.What == InputEvent::Kind::Press && isRed;
  }
  if (isClick != isDue) throw Fault("a click that was none, or none that was one");
}

void WatchedHost::Send(const InputEvent& event) {
  Put(event);
  sent.push_back(event);
}

std::optional<InputEvent> WatchedHost::TakeDelivered() {
  if (sent.size() == Queue.size()) return std::nullopt;
  const InputEvent event = sent.front();
  sent.pop_front();
  return event;
}

void WatchedHost::Tell(const InputEvent* input) {
  const frmVelmoran& form = game.form;
  std::string what = "tick";
  if (input) {
    const bool isMenu = input->What == InputEvent::Kind::MenuCommand;
    what = isMenu ? input->Command->Name : WatchedGame::NameOf(input->What);
    what += ' ' + std::to_string(input->At.X) + ',' + std::to_string(input->At.Y);
  }
  std::string path;
  for (const Square square : form.position.JumpPath) {
    if (square != 0) path += ' ' + std::to_string(square);
  }
  const std::string board = Draw(GridOf(form.position)) +
                            (form.position.BlueToMove ? " blue" : " green") +
                            (form.position.GameOver ? " over" : "") + " path" + path;
  if (!input && board == told) return;
  told = board;
  std::fprintf(Log, "%6d %8lld ms %-20s %s\n", EventCount,
               static_cast<long long>(Now().count() / 1000), what.c_str(), board.c_str());
}

WatchedGame::WatchedGame(Hand& hand) : host(*this, hand) {
  BuildMainWindow(form);
  BuildSplashWindow(splash);
  Collect(form.window.Menu);
  form.lblBackroundEvents.Click = [this, click = form.lblBackroundEvents.Click](int index) {
    ++clickCount;
    click(index);
  };
}

void WatchedGame::Run() {
  try {
    toolkit.Show(splash.window);
    for (;;) toolkit.DoEvents();
  } catch (const ProgramEnded&) {
  }
}

void WatchedGame::Send(InputEvent::Kind what, Point at) {
  Form* window = form.window.Visible ? &form.window : &splash.window;
  host.Send({.What = what, .Window = window, .At = at});
}

void WatchedGame::Choose(std::size_t command) {
  host.Send({.What = InputEvent::Kind::MenuCommand,
             .Window = &form.window,
             .Command = commands[command]});
}

void WatchedGame::Deal(const Position& position) {
  PlacePosition(form, position);
  referee.AcceptBoard();
}

const char* WatchedGame::NameOf(InputEvent::Kind what) {
  constexpr auto Names =
      std::to_array<const char*>({"press", "move", "release", "cancel", "menu", "close"});
  return Names[static_cast<std::size_t>(what)];
}

void WatchedGame::Collect(const std::vector<MenuItem>& items) {
  for (const MenuItem& item : items) {
    if (item.Click) commands.push_back(&item);
    Collect(item.Items);
  }
}
