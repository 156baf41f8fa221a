#pragma once

#include <cstdint>

#include "watched_game.h"

/// Chance of its own, quick to seed, so that the hand takes nothing from the game's sequence.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state(seed) {}

  /// A whole number from 0 to `sides` - 1.
  int Roll(int sides);

  /// True `percent` times in a hundred.
  bool Chance(int percent) { return Roll(100) < percent; }

 private:
  std::uint64_t state;
};

/// A human who mostly plays by the rules, and now and then does anything else that a hand can do.
class RandomHand : public Hand {
 public:
  explicit RandomHand(std::uint64_t seed) : dice(seed) {}

  void Act(WatchedGame& game, std::optional<Instant> until) override;
  Instant BoxTime() override;

 private:
  void PlayTurn(WatchedGame& game);
  void Deal(WatchedGame& game);
  void Disturb(WatchedGame& game);
  void AfterTheEnd(WatchedGame& game);
  void DragByTheRules(WatchedGame& game);
  void DragCutOff(WatchedGame& game);
  void DragSilly(WatchedGame& game);
  void DragAmongPieces(WatchedGame& game);
  void OpenHelp(WatchedGame& game);
  void MoveAlong(WatchedGame& game, const GridMove& move);

  GridMove ChooseMove(Referee& referee);
  Cell CellOfPiece(const WatchedGame& game);
  Point PointIn(Cell cell);
  Point PointAnywhere();
  Point PointOutside();

  Dice dice;
};
