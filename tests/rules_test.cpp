#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

#include "board/random_direction.h"
#include "computer/judgement.h"
#include "support/desk.h"

// Asks the game the questions of tests/data/rules.txt and compares the answers.

namespace {

using namespace std::chrono_literals;

struct Case {
  std::string Rule;
  Position Board;
  std::string Question;  // its first word says what is asked
  std::string Expected;
};

/// Removes the text up to the separator, or all of it if there is none, and returns it.
std::string Cut(std::string& text, const std::string& separator) {
  const std::size_t end = std::min(text.find(separator), text.size());
  std::string head = text.substr(0, end);
  text.erase(0, end + separator.size());
  return head;
}

/// Reads a board of 8 rows and the cases to its right.
void ReadBoard(const std::vector<std::string>& rows, std::vector<Case>& cases) {
  std::string picture;
  std::string rule;
  for (const std::string& row : rows) picture += row.substr(0, 8);
  for (const std::string& row : rows) {
    std::string text = row.substr(std::min<std::size_t>(row.size(), 10));
    if (text.find(':') != text.npos) {
      rule = Cut(text, ":");
      Cut(text, " ");
    }
    while (!text.empty()) {
      std::string answer = Cut(text, "; ");
      const std::string question = Cut(answer, " = ");
      cases.push_back({rule, Board(picture), question, answer});
    }
  }
}

std::vector<Case> ReadCases() {
  std::ifstream in(VELMORAN_DATA "/rules.txt");
  std::vector<Case> cases;
  std::vector<std::string> rows;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line[0] != '#') rows.push_back(line);
    if (rows.size() == 8) ReadBoard(std::exchange(rows, {}), cases);
  }
  if (cases.empty() || !rows.empty()) throw std::invalid_argument("rules.txt: no boards of 8 rows");
  return cases;
}

/// The squares of "10-19-28" or "14x5".
std::vector<int> SquaresOf(std::string drag) {
  std::vector<int> squares;
  std::ranges::replace(drag, 'x', '-');
  while (!drag.empty()) {
    const std::string number = Cut(drag, "-");
    squares.push_back(std::atoi(number.c_str()));
    if (squares.back() < 1 || squares.back() > Squares) {
      throw std::invalid_argument("a square is a number from 1 to 32, not \"" + number + '"');
    }
  }
  return squares;
}

/// Returns these random values; one draw more throws.
Random RandomOf(const std::string& values) {
  Random random;
  random.Script = [in = std::make_shared<std::istringstream>(values)] {
    double value = 0;
    if (!(*in >> value)) throw std::out_of_range("too many random values are drawn");
    return value;
  };
  return random;
}

/// " 10-19 takes 14 crowned"
std::string Changes(const Position& before, const Position& after) {
  std::string moved;
  std::string taken;
  for (int piece = 1; piece <= Pieces; ++piece) {
    for (const auto squares : {&Position::BlueSquare, &Position::GreenSquare}) {
      const int was = (before.*squares)[piece];
      const int is = (after.*squares)[piece];
      if (is == was) continue;
      (is == 0 ? taken : moved) +=
          ' ' + std::to_string(was) + (is == 0 ? "" : '-' + std::to_string(is));
    }
  }
  if (!taken.empty()) moved += " takes" + taken;
  const bool isSameRank = before.BlueKing == after.BlueKing && before.GreenKing == after.GreenKing;
  return moved + (isSameRank ? "" : " crowned");
}

/// The result of the last of some drags.
std::string Drop(const Position& position, std::string drags) {
  Desk desk(position);
  std::vector<int> squares;
  while (!drags.empty()) {
    squares = SquaresOf(Cut(drags, " then "));
    desk.Drag(squares);
    desk.DeliverInput();
  }
  const auto& boxes = desk.host.Boxes;
  if (desk.form.position.BlueToMove) return boxes.empty() ? "refused" : boxes.back().Title;
  std::string changes = Changes(position, desk.form.position);
  const std::string move =
      ' ' + std::to_string(squares.front()) + '-' + std::to_string(squares.back());
  if (changes.starts_with(move)) changes.erase(0, move.size());
  return changes.empty() ? "moves" : changes.substr(1);
}

bool IsLit(const frmVelmoran& form) {
  return std::ranges::any_of(form.imgGreenChecker, [&](const Control& image) {
    return image.Picture == form.picGreenCheckerHighlightREF.Picture ||
           image.Picture == form.picGreenKingHighlightREF.Picture;
  });
}

/// What happens after a drag if every random value is the same, with times in milliseconds.
std::map<std::string, std::string> Follow(const Position& position, std::string question) {
  Desk desk(position);
  const frmVelmoran& form = desk.form;
  const std::vector<int> drag = SquaresOf(Cut(question, " on "));
  desk.Draws(std::vector(30, std::stod(question)));
  const Instant start = desk.host.Now();
  const std::int64_t draws = desk.toolkit.random.DrawCount;
  std::map<std::string, std::string> course;
  const auto add = [&](const char* word, const std::string& what) {
    std::string& list = course[word];
    list += (list.empty() ? "" : ", ") + std::to_string((desk.host.Now() - start) / 1ms) + what;
  };
  desk.host.OnBox = [&](const MessageBox& box) { add("turn", ' ' + box.Text); };
  desk.Drag(drag);
  desk.DeliverInput();
  desk.AfterEvent = [&, last = form.position, wasLit = false]() mutable {
    const std::string changes = Changes(last, form.position);
    if (!changes.empty()) add("turn", changes);
    if (IsLit(form) != wasLit) add("lights", "");
    EXPECT_TRUE(!form.tmrBlink.Enabled || form.imgBlueChecker[1].DragMode == 0);
    last = form.position;
    wasLit = IsLit(form);
  };
  desk.RunUntilQuiet();
  if (!form.position.GameOver && form.imgBlueChecker[1].DragMode == 1) add("turn", " free");
  course["draws"] = std::to_string(desk.toolkit.random.DrawCount - draws);
  return course;
}

/// The direction drawn for the piece on a square, and how many values that takes.
std::string DrawDirection(const Position& position, std::string question, bool isJump) {
  const auto square = static_cast<Square>(SquaresOf(Cut(question, " on ")).front());
  Random random = RandomOf(question);
  const bool isBlue = SquareOwner(position, square) == Blue;
  const auto& squares = isBlue ? position.BlueSquare : position.GreenSquare;
  const int piece = static_cast<int>(std::ranges::find(squares, square) - squares.begin()) + 1;
  const DirectionSetCode set = DirectionSet(position, piece, isBlue);
  const Direction drawn = isJump ? RandomJumpDirection(random, position, piece, set, isBlue)
                                 : RandomStepDirection(random, position, piece, isBlue);
  constexpr std::array Names{"none", "up-left", "up-right", "down-left", "down-right"};
  return Names.at(static_cast<std::size_t>(drawn)) + (", " + std::to_string(random.DrawCount));
}

std::string Names(const MoveList& moves) {
  std::string names;
  for (int k = 0; k < moves.Count; ++k) {
    const MoveRecord& move = moves.Items[static_cast<std::size_t>(k)];
    names += ' ' + std::to_string(move.FromSquare) + (move.Kind == MoveKindJump ? 'x' : '-') +
             std::to_string(move.ToSquare);
  }
  return names.substr(1);
}

MoveRecord MoveOf(const Position& position, const std::string& name) {
  const std::vector<int> squares = SquaresOf(name);
  for (const MoveRecord& move : ListGreenMoves(position).Items) {
    if (move.FromSquare == squares.at(0) && move.ToSquare == squares.at(1)) return move;
  }
  throw std::invalid_argument("green cannot move " + name);
}

std::string Shuffle(const Position& position, const std::string& values) {
  Random random = RandomOf(values);
  MoveList moves = ListGreenMoves(position);
  const std::string shuffled = Names(ShuffleMoveList(random, moves));
  EXPECT_EQ(moves.Count, 0);
  EXPECT_EQ(moves.Items.size(), 1) << "an empty list keeps one slot";
  return shuffled + ", " + std::to_string(random.DrawCount);
}

std::string Sort(const Position& position, const std::string& moves) {
  MoveList list;
  std::istringstream in(moves);
  for (std::string name; in >> name;) MoveListAdd(list, MoveOf(position, name));
  SortMoveList(position, list, ReportError);
  return Names(list);
}

std::string AnswerTo(const Position& board, std::string question) try {
  const std::string word = Cut(question, " ");
  if (word == "drag") return Drop(board, question);
  if (word == "turn" || word == "lights" || word == "draws") return Follow(board, question)[word];
  if (word == "step" || word == "jump") return DrawDirection(board, question, word == "jump");
  if (word == "list") return Names(ListGreenMoves(board));
  if (word == "shuffle") return Shuffle(board, question);
  if (word == "sort") return Sort(board, question);
  const auto merit = std::ranges::find(Merits, word);
  if (merit == Merits.end()) throw std::invalid_argument("no such question: " + word);
  const auto place = static_cast<std::size_t>(merit - Merits.begin());
  return std::to_string(Judge(board, MoveOf(board, question))[place]);
} catch (const std::exception& fault) {
  return fault.what();
}

/// Shows the first wrong answer with its board, and seven more on a line each.
TEST(Rules, HoldOnSmallBoards) {
  std::ostringstream report;
  int faults = 0;
  for (const auto& [rule, board, question, expected] : ReadCases()) {
    const std::string seen = AnswerTo(board, question);
    if (seen == expected || ++faults > 8) continue;
    report << rule << (faults == 1 ? '\n' + DrawRows(board) : ": ") << question << ": expected "
           << expected << ", is " << seen << '\n';
  }
  if (faults > 0) ADD_FAILURE() << report.str() << faults << " wrong answers";
}

}  // namespace
