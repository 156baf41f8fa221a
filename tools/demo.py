#!/usr/bin/env python3
"""Plays one real game on a virtual screen by itself.

    tools/demo.py PROGRAM FOLDER

The program runs under Xvfb and is played with real pointer events by a simple hand: it takes a jump
where there is one and otherwise any step. Each move is printed as it happens. Pictures of the splash,
the opening, a capture and the end are left in the folder.
"""

import pathlib
import random
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/support"))
sys.dont_write_bytecode = True

from real_window import DOWN, UP, Game, until  # noqa: E402

STARS = {(1, 255, 255), (1, 127, 1)}  # in the middle of a king's disc
MOST_TURNS = 200  # kings that cannot catch each other would play for ever


def neighbour(square, row_step, column_step):
    """The square so many rows and columns away; 0 off the board."""
    row, place = divmod(square - 1, 4)
    row, column = row + row_step, 2 * place + row % 2 + column_step
    return row * 4 + column // 2 + 1 if 0 <= row < 8 and 0 <= column < 8 else 0


class Demo:
    def __init__(self, program, folder):
        self.folder = folder
        self.game = Game(program)

    def take_picture(self, name):
        subprocess.run(["import", "-window", self.game.name, self.folder / f"{name}.png"],
                       env=self.game.env, check=True)

    def read_board(self):
        """A letter for each square, capitals for kings."""
        board = list(self.game.board())
        for index, piece in enumerate(board):
            if piece in "bg" and self.game.colours(*self.game.middle(index + 1)) & STARS:
                board[index] = piece.upper()
        return "".join(board)

    def is_over(self):
        return self.game.window("Game Over")

    def wait_for_answer(self, moved):
        """Waits until green has moved and has stopped blinking: between two flashes a piece is plain
        for 0.4 seconds at most, and before the first for 0.7."""
        plain_since = time.monotonic()
        while time.monotonic() - plain_since < 1.2:
            board = self.game.board()
            if "*" in board or (board == moved.lower() and not self.is_over()):
                plain_since = time.monotonic()
            time.sleep(0.02)

    def choose_move(self, board):
        steps, jumps = [], []
        for square, piece in enumerate(board, 1):
            if piece not in "bB":
                continue
            for row_step in (1, -1) if piece == "B" else (1,):
                for column_step in (-1, 1):
                    near = neighbour(square, row_step, column_step)
                    far = neighbour(square, 2 * row_step, 2 * column_step)
                    if near and board[near - 1] == ".":
                        steps.append((square, near))
                    elif far and board[near - 1] in "gG" and board[far - 1] == ".":
                        jumps.append((square, far))
        return random.choice(jumps or steps), bool(jumps)

    def tell_answer(self, before, after):
        left = [s for s in range(1, 33) if before[s - 1] in "gG" and after[s - 1] == "."]
        reached = [s for s in range(1, 33) if before[s - 1] not in "gG" and after[s - 1] in "gG"]
        taken = sum(piece in "bB" for piece in before) - sum(piece in "bB" for piece in after)
        if left and reached:
            print(f"  green {left[0]}{'x' if taken else '-'}{reached[0]}"
                  + (f", {taken} taken" if taken else ""), flush=True)

    def play_turn(self):
        """Plays one turn of both sides. Says whether somebody has taken a piece."""
        board = self.read_board()
        (start, end), is_jump = self.choose_move(board)
        print(f"blue {start}{'x' if is_jump else '-'}{end}", flush=True)
        self.game.do(start, DOWN, end, UP)
        until("the move", lambda: self.game.piece(end) == "b" or self.is_over())
        moved = self.read_board()
        self.wait_for_answer(moved)
        if self.is_over():
            return is_jump
        answered = self.read_board()
        self.tell_answer(moved, answered)
        return is_jump or answered.lower().count("b") < moved.lower().count("b")

    def play(self):
        game = self.game
        game.play_to("splash")
        until("the title", lambda: (255, 255, 255) in game.colours(*game.splash))
        self.take_picture("splash")
        game.play_to("turn")
        self.take_picture("opening")
        has_capture = False
        for _ in range(MOST_TURNS):
            is_capture = self.play_turn()
            if is_capture and not has_capture:
                self.take_picture("capture")
                has_capture = True
            if self.is_over():
                break
        self.finish()

    def finish(self):
        if box := self.is_over():
            self.game.name, window = box[0], self.game.name
            self.take_picture("message")
            self.game.name = window
            self.game.do("key Return")
            until("the box gone", lambda: not self.is_over())
            print("The game is over.")
        else:
            print(f"No end after {MOST_TURNS} turns.")
        self.take_picture("end")
        self.game.do("key ctrl+x")
        code = self.game.ended()[0]
        print(f"The program has left with exit code {code}. The pictures are in {self.folder}.")


def main():
    program, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    Demo(program, folder).play()


if __name__ == "__main__":
    main()
