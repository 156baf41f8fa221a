#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <regex>
#include <set>
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

/// Reads boards of 8 rows, and the parts "rule: question = answer; question = answer" to the right.
std::vector<Case> ReadCases() {
  const std::regex form(" *(?:([^:]*):)? *(?:(.*) = (.*))?");
  std::ifstream in(VELMORAN_DATA "/rules.txt");
  std::vector<Case> cases;
  std::string rule, picture, text;
  for (std::string row; std::getline(in, row);) {
    if (row.empty() || row[0] == '#') continue;
    row.resize(std::max<std::size_t>(row.size(), 8), ' ');
    picture += row.substr(0, 8);
    text += row.substr(8) + ';';
    if (picture.size() < 8 * 8) continue;
    const Position board = Board(std::exchange(picture, {}));
    std::istringstream parts(std::exchange(text, {}));
    for (std::string part; std::getline(parts, part, ';');) {
      std::smatch match;
      if (!std::regex_match(part, match, form)) throw std::invalid_argument("rules.txt:" + part);
      if (match[1].matched) rule = match[1];
      if (match[2].matched) cases.push_back({rule, board, match[2], match[3]});
    }
  }
  if (cases.empty() || !picture.empty()) throw std::invalid_argument("rules.txt has lost a row");
  return cases;
}

/// The squares of "10-19-28" or "14x5".
std::vector<int> SquaresOf(const std::string& drag) {
  std::vector<int> squares;
  std::istringstream in(drag);
  for (int square = 0; in >> square; in.get()) squares.push_back(square);
  const auto isSquare = [](int square) { return 1 <= square && square <= Squares; };
  if (squares.empty() || !std::ranges::all_of(squares, isSquare)) {
    throw std::invalid_argument("squares are numbers from 1 to 32, not " + drag);
  }
  return squares;
}

/// Returns these random values; one draw more throws.
Random RandomOf(std::istream& values) {
  Random random;
  random.Script = [&values] {
    double value = 0;
    if (!(values >> value)) throw std::out_of_range("too many random values are drawn");
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

std::string Drop(const Position& position, const std::vector<int>& drag) {
  Desk desk(position);
  desk.Drag(drag);
  desk.DeliverInput();
  const auto& boxes = desk.host.Boxes;
  if (desk.form.position.BlueToMove) return boxes.empty() ? "refused" : boxes.back().Title;
  std::string changes = Changes(position, desk.form.position);
  const std::string move = ' ' + std::to_string(drag.front()) + '-' + std::to_string(drag.back());
  if (changes.starts_with(move)) changes.erase(0, move.size());
  return changes.empty() ? "moves" : changes.substr(1);
}

/// What happens after a drag, with times in milliseconds, or how many random values are drawn. The
/// first 30 have the same value; then all directions come in turn, so that every retry ends.
std::string Follow(const Position& position, const std::vector<int>& drag, double value,
                   bool isCount) {
  Desk desk(position);
  desk.toolkit.random.Script = [value, draws = 0u]() mutable {
    constexpr std::array Others{0.1, 0.7, 0.3, 0.9};
    return ++draws <= 30 ? value : Others[draws % 4];
  };
  const Instant start = desk.host.Now();
  const std::int64_t draws = desk.toolkit.random.DrawCount;
  std::string course;
  const auto add = [&](const std::string& what) {
    course += (course.empty() ? "" : ", ") + std::to_string((desk.host.Now() - start) / 1ms) + what;
  };
  desk.host.OnBox = [&](const MessageBox& box) {
    add(' ' + box.Text.substr(0, box.Text.find('\r')));
  };
  desk.Drag(drag);
  desk.DeliverInput();
  desk.AfterEvent = [&, last = desk.form.position]() mutable {
    const std::string changes = Changes(last, desk.form.position);
    if (!changes.empty()) add(changes);
    last = desk.form.position;
  };
  desk.RunUntilQuiet();
  if (!desk.form.position.GameOver && desk.form.imgBlueChecker[1].DragMode == 1) add(" free");
  return isCount ? std::to_string(desk.toolkit.random.DrawCount - draws) : course;
}

/// The direction drawn for the piece on a square, and how many values that takes.
std::string DrawDirection(const Position& position, int square, Random random, bool isJump) {
  const bool isBlue = SquareOwner(position, Square(square)) == Blue;
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

std::string Shuffle(const Position& position, Random random) {
  MoveList moves = ListGreenMoves(position);
  const std::string shuffled = Names(ShuffleMoveList(random, moves));
  return shuffled + ", " + std::to_string(random.DrawCount);
}

std::string Sort(const Position& position, std::istream& moves) {
  MoveList list;
  for (std::string name; moves >> name;) MoveListAdd(list, MoveOf(position, name));
  SortMoveList(position, list, ReportError);
  return Names(list);
}

std::string AnswerTo(const Position& board, const std::string& question) try {
  std::istringstream in(question);
  std::string word, move, on;
  in >> word;
  if (word == "list") return Names(ListGreenMoves(board));
  if (word == "shuffle") return Shuffle(board, RandomOf(in));
  if (word == "sort") return Sort(board, in);
  in >> move;
  const std::vector<int> squares = SquaresOf(move);
  if (word == "drag") return Drop(board, squares);
  const bool isDraws = word == "draws", isJump = word == "jump";
  if (isDraws || word == "turn") return Follow(board, squares, RandomOf(in >> on).Rnd(), isDraws);
  if (isJump || word == "step")
    return DrawDirection(board, squares.at(0), RandomOf(in >> on), isJump);
  const Judgement judgement = Judge(board, MoveOf(board, move));
  if (!judgement.contains(word)) throw std::invalid_argument("no such question: " + word);
  return std::to_string(judgement.at(word));
} catch (const std::exception& fault) {
  return fault.what();
}

/// Shows the first wrong answer of each rule, of at most eight. The board of the first is drawn.
TEST(Rules, HoldOnSmallBoards) {
  std::ostringstream report;
  std::set<std::string> broken;
  int faults = 0;
  for (const auto& [rule, board, question, expected] : ReadCases()) {
    const std::string seen = AnswerTo(board, question);
    if (seen == expected) continue;
    if (++faults == 1) report << DrawRows(board);
    if (!broken.insert(rule).second || broken.size() > 8) continue;
    report << rule << ": " << question << ": expected " << expected << ", is " << seen << ", on "
           << Draw(board) << '\n';
  }
  if (faults > 0)
    ADD_FAILURE() << report.str() << faults << " wrong answers, " << broken.size() << " rules";
}

}  // namespace
