#include "referee.h"

#include <algorithm>
#include <string_view>

namespace {

void Demand(bool isTrue, const char* what) {
  if (!isTrue) throw Fault(what);
}

constexpr int Either = 2;

/// How the flags and timers stand in a phase: 0 off, 1 on.
struct PhaseRow {
  Phase Is;
  int BlueToMove, DragMode, Pause, Blink, GameOver, BlinkStarted, InPause, InBlink;
};

constexpr auto PhaseTable = std::to_array<PhaseRow>({
    {Phase::Opening, 1, 1, 1, 0, 0, 0, 0, 0},
    {Phase::Human, 1, 1, 0, 0, 0, 0, Either, 0},
    {Phase::AllTaken, 0, 1, 0, 0, 0, 0, 0, 0},
    {Phase::Pause, 0, 0, 1, 0, 0, 0, 0, 0},
    {Phase::NoMove, 0, 0, 1, 0, 0, 0, 1, 0},
    {Phase::Stage, 0, 0, 1, Either, 0, 1, 1, 0},
    {Phase::LastBlink, 1, 0, 0, 1, 0, 0, 0, 0},
    {Phase::BlueHasLost, 1, 1, 0, 0, 0, 0, 0, 1},
    {Phase::Over, Either, 0, 0, 0, 1, 0, 0, 0},
    {Phase::Over, 1, 1, 0, 0, 1, 0, 0, 0},  // where no blue piece is left to drag
});

/// What may follow a phase, apart from itself and from the start of a new game.
struct Succession {
  Phase From, To;
};

constexpr auto Successions = std::to_array<Succession>({
    {Phase::Opening, Phase::Human},
    {Phase::Opening, Phase::Pause},
    {Phase::Human, Phase::Pause},
    {Phase::Human, Phase::AllTaken},
    {Phase::AllTaken, Phase::Over},
    {Phase::Pause, Phase::Stage},
    {Phase::Pause, Phase::NoMove},
    {Phase::NoMove, Phase::Over},
    {Phase::Stage, Phase::LastBlink},
    {Phase::LastBlink, Phase::Human},
    {Phase::LastBlink, Phase::BlueHasLost},
    {Phase::BlueHasLost, Phase::Over},
});

bool Fits(int wanted, bool is) { return wanted == Either || wanted == int(is); }

bool IsStart(const Position& position) {
  for (int piece = 1; piece <= Pieces; ++piece) {
    if (position.BlueSquare[piece] != piece || position.GreenSquare[piece] != piece + 20 ||
        position.BlueKing[piece] || position.GreenKing[piece]) {
      return false;
    }
  }
  return true;
}

bool HasSameBoard(const Position& a, const Position& b) {
  return a.BlueSquare == b.BlueSquare && a.GreenSquare == b.GreenSquare &&
         a.BlueKing == b.BlueKing && a.GreenKing == b.GreenKing;
}

bool IsUncrowned(const Table<bool, Pieces>& before, const Table<bool, Pieces>& now) {
  return !std::ranges::equal(before, now, [](bool was, bool is) { return is || !was; });
}

bool HasGreenJump(const Grid& board) {
  return std::ranges::any_of(GreenHops(board), [](const GridMove& hop) { return hop.IsJump(); });
}

}  // namespace

const char* NameOf(Phase phase) {
  constexpr auto Names =
      std::to_array<const char*>({"opening", "human", "all taken", "pause", "no move", "stage",
                                  "last blink", "blue has lost", "over"});
  return Names[static_cast<std::size_t>(phase)];
}

void Referee::AfterEvent(const InputEvent* input, const Drag& drag) {
  if (!form.window.Visible) return;
  // The screen is brought up to date before a wait, too, mostly with nothing new.
  const std::array<int, 6> stateOfTimers{form.BlinkCount,         form.BlinkStarted,
                                         form.tmrBlink.Enabled,   form.tmrPause.Enabled,
                                         form.tmrBlink.InHandler, form.tmrPause.InHandler};
  const bool isSame = stateOfTimers == lastTimers && form.position == last;
  if (isSame && !input) return;
  lastTimers = stateOfTimers;
  CheckTables();
  const bool isNewGame = !isOpen || (input && input->What == InputEvent::Kind::MenuCommand &&
                                     input->Command->Name == "mnuGame");
  isMenuBox = !isOpen || (input && input->What == InputEvent::Kind::MenuCommand && !isNewGame);
  const Phase next = FindPhase();
  if (isNewGame) {
    CheckNewGame();
    Demand(next == Phase::Opening || next == Phase::Human, "a new game is the human's turn");
  } else {
    CheckSuccession(next);
    CheckBoard(next);
  }
  phase = next;
  last = form.position;
  CheckPath(input, drag);
  CheckDrag(input, drag);
  CheckBlink();
}

void Referee::AtBox(const MessageBox& box, const Drag& drag) {
  Demand(!drag.Source, "a message box leaves no drag");
  if (box.Title == "Game Over") {
    CheckGameOver(box.Text);
  } else if (box.Title == "Capture Required") {
    Demand(IsHumansTurn() && MovesOfHuman().front().IsJump(), "no capture is required");
    Demand(!expected, "a legal drag is refused for want of a capture");
  } else {
    Demand(box.Icon == MessageIcon::Information && isMenuBox, "nobody asked for this box");
  }
}

void Referee::BeforeWait(bool isTimerDue) {
  if (!form.window.Visible) return;
  Demand(!form.tmrBlink.InHandler, "the handler of a blink waits");
  Demand(form.tmrPause.InHandler == (phase == Phase::Stage), "a turn waits outside of its stages");
  Demand(phase != Phase::Stage || form.tmrBlink.Enabled, "a stage waits without a blink");
  const bool isAtRest = phase == Phase::Human || phase == Phase::Over;
  Demand(isTimerDue != isAtRest, "a timer is on just as long as somebody waits for it");
  Demand(phase != Phase::AllTaken && phase != Phase::NoMove && phase != Phase::BlueHasLost,
         "the end of a game is waited for and not announced");
  Demand(!expected, "a legal drag has not been played");
  if (phase == Phase::Human) {
    Demand(!MovesOfHuman().empty() && HasGreen(board), "the game is stuck");
  }
}

void Referee::AcceptBoard() {
  last = form.position;
  SetBoard(GridOf(last));
}

Phase Referee::FindPhase() const {
  const Position& position = form.position;
  const int dragMode = form.imgBlueChecker[1].DragMode;
  for (const PhaseRow& row : PhaseTable) {
    if (Fits(row.BlueToMove, position.BlueToMove) && Fits(row.DragMode, dragMode == 1) &&
        Fits(row.Pause, form.tmrPause.Enabled) && Fits(row.Blink, form.tmrBlink.Enabled) &&
        Fits(row.GameOver, position.GameOver) && Fits(row.BlinkStarted, form.BlinkStarted) &&
        Fits(row.InPause, form.tmrPause.InHandler) && Fits(row.InBlink, form.tmrBlink.InHandler)) {
      return row.Is;
    }
  }
  throw Fault("the flags and timers fit no phase of a turn");
}

void Referee::CheckTables() const {
  Demand(IsConsistent(form), "the tables and the pictures disagree");
  const int dragMode = form.imgBlueChecker[1].DragMode;
  for (const Control& image : form.imgBlueChecker) {
    Demand(image.DragMode == dragMode, "all blue images have one drag mode");
  }
}

void Referee::CheckNewGame() {
  Demand(IsStart(form.position), "a new game starts from the start position");
  Demand(form.position.NewGameRequested == isOpen, "a new game is requested by the menu");
  isOpen = true;
  isAnnounced = false;
  expected.reset();
  chain.reset();
  SetBoard(GridOf(form.position));
}

void Referee::SetBoard(const Grid& now) {
  board = now;
  movesOfHuman.reset();
}

const std::vector<GridMove>& Referee::MovesOfHuman() {
  if (!movesOfHuman) movesOfHuman = HumanMoves(board);
  return *movesOfHuman;
}

void Referee::CheckSuccession(Phase next) const {
  const bool isKnown = next == phase || std::ranges::any_of(Successions, [&](const auto& row) {
                         return row.From == phase && row.To == next;
                       });
  Demand(isKnown, "this phase does not follow the one before");
  Demand((next == Phase::Over) == isAnnounced || next == Phase::AllTaken || next == Phase::NoMove ||
             next == Phase::BlueHasLost,
         "a game is over from its announcement on");
  Demand(next != Phase::Over || form.imgBlueChecker[1].DragMode == 0 || !HasBlue(board),
         "a piece can be dragged after the end of the game");
  Demand(!form.position.NewGameRequested || next == Phase::Human,
         "the request for a new game lives until the human's drag");
}

/// Compares the board with the one before, if it has changed or should have.
void Referee::CheckBoard(Phase next) {
  const bool isHumanMove = IsHumansTurn() && (next == Phase::Pause || next == Phase::AllTaken);
  const bool isLastHop = phase == Phase::Stage && next == Phase::LastBlink;
  const bool isEndOfTurn = phase == Phase::LastBlink && next != Phase::LastBlink;
  if (phase == Phase::Pause) chain.reset();
  if (HasSameBoard(form.position, last)) {
    Demand(!isHumanMove && !isLastHop, "a turn ends with a move");
    Demand(!isEndOfTurn || Crowned(board, 'g') == board, "green is crowned after its move");
    return;
  }
  Demand(!IsUncrowned(last.BlueKing, form.position.BlueKing) &&
             !IsUncrowned(last.GreenKing, form.position.GreenKing),
         "nobody loses a crown");
  const Grid now = GridOf(form.position);
  if (isHumanMove) {
    CheckHumanMove(now);
  } else if (phase == Phase::Stage) {
    CheckGreenHop(now, next);
  } else {
    Demand(isEndOfTurn && now == Crowned(board, 'g'), "the board changes out of turn");
  }
  SetBoard(now);
}

void Referee::CheckHumanMove(const Grid& now) {
  ++humanMoves;
  const bool isLegal = std::ranges::any_of(MovesOfHuman(), [&](const GridMove& move) {
    return Crowned(After(board, move), 'b') == now;
  });
  Demand(isLegal, "the human's move is against the rules");
  if (expected) Demand(*expected == now, "a drag has led to another move");
  expected.reset();
}

void Referee::CheckGreenHop(const Grid& now, Phase next) {
  const std::vector<GridMove> hops = chain ? JumpsOf(board, *chain) : GreenHops(board);
  const auto hop =
      std::ranges::find_if(hops, [&](const GridMove& move) { return After(board, move) == now; });
  Demand(hop != hops.end(), "green's move is against the rules");
  Demand(hop->IsJump() || !HasGreenJump(board), "green takes where it can");
  const bool isLast = !hop->IsJump() || JumpsOf(now, hop->To()).empty();
  Demand(isLast == (next == Phase::LastBlink), "green jumps on for as long as it can");
  chain = hop->To();
}

void Referee::CheckPath(const InputEvent* input, const Drag& drag) const {
  const bool isPath = form.position.JumpPath[1] != 0;
  Demand(!isPath || IsHumansTurn(), "a path outlives the human's turn");
  const bool isDragStart = input && input->What == InputEvent::Kind::Press && drag.Source;
  Demand(!isPath || !isDragStart, "a drag inherits a path");
}

void Referee::CheckDrag(const InputEvent* input, const Drag& drag) const {
  if (!drag.Source) return;
  Demand(IsHumansTurn() && !form.position.NewGameRequested, "a drag out of turn");
  Demand(drag.Source->Visible && drag.Source->Name == "imgBlueChecker", "nobody may drag this");
  const bool isCutOff =
      input && input->What != InputEvent::Kind::Press && input->What != InputEvent::Kind::Move;
  Demand(!isCutOff, "a drag outlives what ends it");
}

/// The pictures: `IsConsistent` has seen that nothing but the piece that blinks is highlighted.
void Referee::CheckBlink() const {
  if (!form.tmrBlink.Enabled) {
    Demand(phase != Phase::Stage || form.BlinkCount == 5, "a blink has five ticks");
    return;
  }
  Demand(0 <= form.BlinkCount && form.BlinkCount < 5, "a blink goes on");
  const bool isHighlighted =
      form.imgGreenChecker[form.BlinkChecker].Picture != PlainGreenPicture(form, form.BlinkChecker);
  Demand(isHighlighted == (form.BlinkCount % 2 == 1), "the picture changes at each tick");
  Demand(form.position.GreenSquare[form.BlinkChecker] != 0, "a captured piece blinks");
}

void Referee::CheckGameOver(const std::string& text) {
  Demand(!isAnnounced, "the end of a game is announced once");
  isAnnounced = true;
  const bool hasBlue = HasBlue(board);
  if (text == "Blue has been captured!  YOU LOSE!!!") {
    Demand(phase == Phase::BlueHasLost && !hasBlue, "blue has pieces left");
  } else if (text == "Green has been captured!  YOU WIN!!!") {
    Demand(phase == Phase::AllTaken && !HasGreen(board), "green has pieces left");
  } else if (text == "Blue cannot move!  YOU LOSE!!!") {
    Demand(phase == Phase::BlueHasLost && hasBlue && MovesOfHuman().empty(), "blue can move");
  } else if (text == "Green cannot move!  YOU WIN!!!") {
    Demand(phase == Phase::NoMove && GreenHops(board).empty(), "green can move");
  } else {
    throw Fault("an end that is none");
  }
}
