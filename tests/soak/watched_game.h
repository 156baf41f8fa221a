#pragma once

#include <cstdio>

#include "referee.h"
#include "support/virtual_host.h"
#include "ui/main_window.h"
#include "ui/splash_window.h"

class WatchedGame;

/// Whoever plays: asked whenever the program is about to sleep.
class Hand {
 public:
  virtual ~Hand() = default;

  /// May queue input, after having let some of the time until the next tick pass. With no tick to
  /// come it is asked until it does.
  virtual void Act(WatchedGame& game, std::optional<Instant> until) = 0;

  /// How long the user leaves a message box open.
  virtual Instant BoxTime() = 0;
};

/// The virtual host with a hand that plays as it goes and a referee that sees every event.
class WatchedHost : public VirtualHost {
 public:
  WatchedHost(WatchedGame& watchedGame, Hand& playingHand) : game(watchedGame), hand(playingHand) {}

  void WaitForInput(std::optional<Instant> until) override;
  void ShowMessageBox(const MessageBox& box) override;
  void ShowForms(std::span<Form* const> forms, const Drag& drag) override;

  /// Queues input as the user makes it.
  void Send(const InputEvent& event);

  /// Lets time pass in which nothing happens.
  void Pass(Instant until) { VirtualHost::WaitForInput(until); }

  std::FILE* Log = nullptr;  // where every event is told, if anywhere
  int EventCount = 0;

 private:
  std::optional<InputEvent> TakeDelivered();
  void CheckClick(const InputEvent& input);
  void Tell(const InputEvent* input);

  WatchedGame& game;
  Hand& hand;
  std::deque<InputEvent> sent;  // a copy of the queue, to find out what has left it
  bool isPressedOnRed = false;
  int clickCount = 0;  // up to the last event
  std::string told;    // the last line of the log: ticks that change nothing are left out
};

/// The whole program, from the splash on, under the eyes of a referee.
class WatchedGame {
 public:
  explicit WatchedGame(Hand& hand);

  /// Plays until the program ends or the hand throws. Throws a `Fault` if something goes wrong.
  void Run();

  void Press(Point at) { Send(InputEvent::Kind::Press, at); }
  void Move(Point at) { Send(InputEvent::Kind::Move, at); }
  void Release(Point at) { Send(InputEvent::Kind::Release, at); }
  void Send(InputEvent::Kind what, Point at = {});

  /// Puts other pieces on the board, between two events of the human's turn.
  void Deal(const Position& position);

  /// The clicks that the red background has heard of.
  int ClickCount() const { return clickCount; }

  /// Chooses a menu command by its number: New Game, Exit, then those that open a box.
  void Choose(std::size_t command);
  std::size_t CommandCount() const { return commands.size(); }

  static const char* NameOf(InputEvent::Kind what);

  WatchedHost host;
  Toolkit toolkit{host};
  frmVelmoran form{toolkit};
  frmSplash splash{toolkit, form};
  Referee referee{form};

 private:
  void Collect(const std::vector<MenuItem>& items);

  int clickCount = 0;
  std::vector<const MenuItem*> commands;  // in the order of the menus
};
