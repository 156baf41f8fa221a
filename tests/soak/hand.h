#pragma once

#include <functional>

#include "soak/watcher.h"

/// A hand that plays one whole game from the splash or the opening on. It mostly plays by the
/// rules, and now and then does anything else that a hand can do.
class Hand {
 public:
  /// `chance` gives a whole number from 0 to `sides` - 1.
  Hand(Watcher& watchedGame, std::function<int(int sides)> chance)
      : watcher(watchedGame), desk(watchedGame.desk), Roll(std::move(chance)) {}

  /// Plays until the program ends. Throws a `Fault` if something goes wrong.
  void PlayGame();

 private:
  void PlayRound();
  void PlayTurn();
  void Deal();
  void DragByTheRules(const Move& move);
  void DragCutOff(const Move& move);
  void DragAnyhow();
  void Disturb();
  void Leave();

  void Follow(const Move& move);
  void Send(InputEvent::Kind what, Point at = {});
  void Choose(const char* command);
  void OpenHelp();
  Point PointOn(int square);
  Point PointAnywhere();

  Watcher& watcher;
  Desk& desk;
  std::function<int(int sides)> Roll;
};
