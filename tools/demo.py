#!/usr/bin/env python3
"""Plays one real game on a virtual screen by itself: demo.py PROGRAM FOLDER

Blue is played with real pointer events: any jump, or else any step. Each turn is printed as it
happens. Pictures of the splash, the opening, a capture, the last message and the end are saved in
the folder."""

import itertools
import pathlib
import random
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests/support"))
sys.dont_write_bytecode = True

from real_window import DOWN, UP, Game, until  # noqa: E402

MOST_TURNS = 100  # kings that cannot catch each other would play for ever
DIAGONALS = list(itertools.product((1, -1), repeat=2))


def neighbour(square, rows, columns):
    """The square that many rows and columns away. 0 if it is off the board."""
    row, place = divmod(square - 1, 4)
    row, column = row + rows, 2 * place + row % 2 + columns
    return row * 4 + column // 2 + 1 if 0 <= row < 8 and 0 <= column < 8 else 0


def possible_moves(board):
    """Jumps first, then steps. Every piece is listed with the moves of a king."""
    steps, jumps = [], []
    for square, (rows, columns) in itertools.product(range(1, 33), DIAGONALS):
        if board[square - 1] == "b":
            near = neighbour(square, rows, columns)
            far = neighbour(square, 2 * rows, 2 * columns)
            if near and board[near - 1] == ".":
                steps.append((square, near))
            elif far and board[near - 1] == "g" and board[far - 1] == ".":
                jumps.append((square, far))
    return [*random.sample(jumps, len(jumps)), *random.sample(steps, len(steps))]


class Demo(Game):
    def take_picture(self, name, window=None):
        path = sys.argv[2] + f"/{name}.png"
        subprocess.run(["import", "-window", window or self.name, path], env=self.env, check=True)

    def last_message(self):
        return self.window("Game Over")

    def move_blue(self, board):
        """Tries one move after the other: the game refuses those that are illegal."""
        for start, end in possible_moves(board) * 3:  # on a busy machine a drop may come late
            self.do(start, DOWN, end, UP, "sleep 0.1")
            if self.last_message() or self.board() != board:
                print(f"blue {start} to {end}", flush=True)
                return
        raise AssertionError("blue has no move, and nothing says so")

    def wait_for_green(self, moved):
        """A piece is unlit for 0.4 seconds between two flashes, and for 0.7 before the first."""
        steady_since = time.monotonic()
        while time.monotonic() < steady_since + 1.2:
            board = self.board()
            if "*" in board or (board == moved and not self.last_message()):
                steady_since = time.monotonic()
            time.sleep(0.02)
        return board

    def play(self):
        self.play_to("splash")
        until("the title", lambda: (255, 255, 255) in self.colours(*self.splash))
        self.take_picture("splash")
        self.play_to("turn")
        self.take_picture("opening")
        pictures = ["capture"]
        for _ in range(MOST_TURNS):
            self.move_blue(self.board())
            board = self.wait_for_green(self.board())
            print(f"  green answers: {board.count('b')} blue, {board.count('g')} green", flush=True)
            if box := self.last_message():
                self.take_picture("message", box[0])
                self.do("key Return")
                until("the box gone", lambda: not self.last_message())
                break
            if pictures and board.count(".") > 8:
                self.take_picture(pictures.pop())
        self.take_picture("end")
        self.do("key ctrl+x")
        print(f"The program has left with exit code {self.ended()[0]}.")


pathlib.Path(sys.argv[2]).mkdir(parents=True, exist_ok=True)
Demo(sys.argv[1]).play()
