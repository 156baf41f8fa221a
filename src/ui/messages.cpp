#include "ui/messages.h"

namespace {

// Boxes keep these line breaks, and wrap paragraphs that have none.

constexpr const char* ControlsText =
    "You control the blue checkers, and you move first.  To move,\r\n"
    "drag one of your checkers from its current square to another\r\n"
    "(legal) black square.\r\n"
    "\r\n"
    "To double jump, drag your checker to the first square, but do\r\n"
    "NOT let go of the mouse button; then drag the checker to the\r\n"
    "second square (and, for longer jumps, onto the other squares).\r\n"
    "\r\n"
    "After your move, the computer will take its turn with\r\n"
    "the green checkers; then it will be your turn again.\r\n"
    "\r\n"
    "The computer will enforce the rules of the game for\r\n"
    "both players.  When a game ends, the computer\r\n"
    "will announce whether you have won or lost.";

constexpr const char* AboutText =
    "Velmoran was first created by the Velmoran project\r\n"
    "in the autumn of 2026, for the class of games\r\n"
    "that fit on one board and in one window.\r\n"
    "\r\n"
    "The project's interface developers later worked on the\r\n"
    "unfinished game features, and the developers of its computer\r\n"
    "player rewrote the computer's game code, both in the\r\n"
    "autumn of 2026.  This is version " VELMORAN_VERSION ".";

constexpr const char* Part1Text =
    "Moves are allowed only on the black squares, so checkers must always move diagonally.  "
    "Regular pieces are always limited to forward movement (toward the opponent).  A piece making "
    "a non-capturing move (not involving a jump) may move only one square, while a piece making a "
    "capturing move (a jump) must leap over an opponent's checker, landing in a straight diagonal "
    "line on the other side.  Only one checker may be captured in a single jump; however, multiple "
    "jumps by a single checker are allowed within the same turn.  A player may not jump over "
    "his/her own pieces.";

constexpr const char* Part2Text =
    "If a player is able to make a capture (a jump), then there is no choice...the jump must be "
    "made.  However, if more than one capture is available, the player is free to choose which "
    "jump to make.  If a double (or longer) jump is available, a player is required only to make "
    "the first capture; the other jumps are optional.  When making multiple jumps, regular pieces "
    "may shift direction diagonally between the captures, but they must always jump forward "
    "(toward the opponent).  Kings do not have this restriction.  When a piece is captured, it is "
    "removed from the board.";

constexpr const char* Part3Text =
    "When a checker reaches the row farthest from the player who controls that piece, it becomes a "
    "king.  Kings are still limited to moving diagonally, but they may move both forward and "
    "backward.  A king may combine jumps in multiple directions (forward and backward) within the "
    "same turn; however, if a regular checker becomes a king after making a jump, no further jumps "
    "are allowed in that turn.\r\n"
    "\r\n"
    "A player wins the game when the opponent cannot make a move, either because all of the "
    "opponent's checkers have been captured, or because there are no available moves for the "
    "opponent.  Although not possible with this computer program, in general, players may agree to "
    "a draw if neither player can win the game.";

}  // namespace

void mnuControls_Click(frmVelmoran& form) {
  form.toolkit.MsgBox(ControlsText, MessageIcon::Information, "Velmoran Game Controls");
}

void mnuAbout_Click(frmVelmoran& form) {
  form.toolkit.MsgBox(AboutText, MessageIcon::Information, "About Velmoran");
}

void mnuPart1_Click(frmVelmoran& form) {
  form.toolkit.MsgBox(Part1Text, MessageIcon::Information, "Rules of Velmoran (Part 1)");
}

void mnuPart2_Click(frmVelmoran& form) {
  form.toolkit.MsgBox(Part2Text, MessageIcon::Information, "Rules of Velmoran (Part 2)");
}

void mnuPart3_Click(frmVelmoran& form) {
  form.toolkit.MsgBox(Part3Text, MessageIcon::Information, "Rules of Velmoran (Part 3)");
}
