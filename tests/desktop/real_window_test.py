"""Runs a case in a real window: real_window_test.py PROGRAM CASE. No arguments: lists the cases."""

import glob, os, pathlib, subprocess, sys, time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))
from real_window import BOARD, DOWN, START, UP, Game, Screen, until

FAKE = {"LD_PRELOAD": "/usr/$LIB/faketime/libfaketime.so.1"}
SLOW = FAKE | {"FAKETIME": "+0 x0.1"}  # the splash stays for 25 s
# The clock seeds the game. At this time it offers a double jump early.
NOON = FAKE | {"FAKETIME": "2024-01-01 12:00:00", "FAKETIME_DONT_FAKE_MONOTONIC": "1"}


def splash(game):
    """No frame, a border inside a margin, captions at the top of their labels."""
    left, top, width, height = game.splash
    black, red, lines = (0, 0, 0), (255, 0, 0), {(255, 255, 255), (0, 255, 0), (255, 255, 0)}
    until("the whole splash", lambda: game.colours(*game.splash) > lines)
    border = [game.colours(left + x, top + 100) for x in (-1, 1, 2, 6, 7)]
    assert (height, border) == (181, [{black}, {black}, {red}, {red}, {black}])
    assert game.colours(left, top - 9, width, 9) == {black}
    assert game.colours(left + 9, top + 131, width - 18, 6) == {black}


def whole(game):
    """Two captures in one leap of the pointer, then New Game and Exit in the computer's turn."""
    for move in (12, 15), (7, 12), (10, 13), (5, 23):
        game.move(*move)
    until("two captures", lambda: game.board().count("g") == 10)
    new_game(game)
    game.move(9, 13)
    until("a flash", game.flashing)
    game.do("key ctrl+x")
    ended(game)


def new_game(game):
    game.do("key ctrl+n")
    until("the new game", lambda: game.picture() == game.at_rest)


def rest(game):
    """No processor time is used while a box holds the computer's turn, nor after New Game in it."""

    def cost():
        process = f"/proc/{game.process.pid}/"
        lines = [line for task in glob.glob(process + "task/*/status") for line in open(task)]
        switches = [line for line in lines if "ctxt_switches" in line]
        return switches, open(process + "stat").read().split()[13:15]

    def is_idle():
        before = cost()
        time.sleep(2)
        return cost() == before

    game.do("key ctrl+c")
    box = until("the help", lambda: game.window("Velmoran Game Controls"))
    game.do(f"windowmove {box[0]} 0 0")
    until("the uncovered board", lambda: "?" not in game.board())
    shown = game.board()
    until("an idle process", is_idle)
    assert game.board() == shown, "the turn went on"
    game.do("key Return")
    game.play_to("last_blink")
    new_game(game)
    until("an idle process after New Game", is_idle)
    game.do(10, DOWN, 14)  # and is closed in a drag


def drags(game):
    """Window and box fit the screen. A drag that ends without a drop leaves no pixels behind, and
    the next drag works."""
    width, height, _ = map(int, game.size.split("x"))
    for title in " Velmoran", "Velmoran Game Controls":
        _, left, top, *size = game.window(title)
        assert left > 0 and top > 9 and left + size[0] < width and top + size[1] < height, title
    game.play_to("turn")
    game.start("xev", "-geometry", "200x200+0+0")
    focus = "getactivewindow getwindowname"
    until("another window with the focus", lambda: game.do(focus) == "Event Tester\n")
    other = game.window("Event Tester")[0]
    file_menu, outside = (game.left + 20, game.top - 8), (0, 300)
    for before, *way in (
        [[], outside, UP],
        [[file_menu, "click 1 key Escape"], "key Escape"],
        [["key alt key Escape"], "key Escape"],
        [[], "key ctrl+n"],
        [[], f"windowfocus {other}"],
    ):
        game.do(*before)
        game.do(10, DOWN, 14)
        # Under load the loss of the focus may come late, and end the drag.
        until(
            f"the outline after {before}",
            lambda: game.picture() != game.at_rest
            or game.do("key Escape", UP, 10, DOWN, 14, "sleep 0.1"),
        )
        game.do(*way)
        until(f"the start picture after {way}", lambda: game.picture() == game.at_rest)
        game.do(14, UP)
        game.move(12, 16)
        until(f"a move after {way}", lambda: game.board() == START[:11] + "....b" + START[16:])
        new_game(game)
    game.do(file_menu, "click 1 key x")
    ended(game)


def scale_changes(game):
    """Box, board and drag follow the desktop's scale, and the window keeps its place. The user can
    move the window but not resize it."""
    title, _, *place = "Velmoran Game Controls", *game.window("Velmoran Game Controls")
    window = game.window(" Velmoran")
    grey = game.colours(place[0] + 5, place[1] + 5)
    game.set_scale(1.5)
    until("a larger box", lambda: game.window(title)[3] >= place[2] * 3 // 2)
    until("its paint", lambda: game.colours(place[0] + place[2] * 3 // 2 - 9, place[1]) == grey)
    game.measure()
    game.play_to("drag")
    assert (game.side, game.window(" Velmoran")[:3]) == (BOARD * 3 // 2, window[:3])
    game.set_scale(1)
    until("the first size", lambda: game.measure() or game.side == BOARD)
    game.do(14)
    game.play_to("last_blink")
    game.run("wmctrl", "-ir", game.name, "-e", f"0,{game.width - 300},50,900,900")
    until("the moved window", lambda: game.measure() or game.left == game.width - 300)
    game.do("key ctrl+n key ctrl+c")
    until("the help over it", lambda: game.window(title))
    game.do("key Return")
    game.move(9, 13)
    assert game.window(" Velmoran")[1:] == (game.width - 300, 50, *window[3:])


def rules(game):
    """The box wraps the paragraphs of the rules and cuts none at its right edge."""
    game.move(9, 13)  # from here on the window surely has the focus
    game.do("key alt key Right key Down key r key 3")
    _, left, top, width, height = until("the rules", lambda: game.window(".* .Part 3."))
    text = left + 80, top + 10, width - 90, 100
    until("their text", lambda: len(game.colours(*text)) > 2)
    assert height > 150 and len(game.colours(left + width - 6, top + 10, 4, 100)) == 1, height
    game.do("key Return")
    until("the closed box", lambda: not game.window(".* .Part 3."))


def ended(game):
    """The program prints nothing, and has started no message bus."""
    assert (end := game.ended()) == (0, []), end
    assert not os.path.exists(game.env["HOME"] + "/.dbus")


def display_lost(game):
    """Without a fit display, or when it is gone, the program ends with one line."""
    poor = Screen("640x480x8")
    game.server.terminate()
    code, errors = game.ended()
    assert code == 1 and len(errors) == 1, (code, errors)
    for env, reason in (
        ({"DISPLAY": ":987654"}, ":987654"),
        ({"XDG_SESSION_TYPE": "wayland"}, "connect"),
        (poor.env, "8 bits"),
        ({"QT_QPA_PLATFORM": "linuxfb:fb=/none"}, "/none"),
    ):
        done = subprocess.run(sys.argv[1:2], env=env, capture_output=True, text=True, timeout=8)
        assert done.returncode == 1 and done.stderr.count("\n") == 1 and not done.stdout, done
        assert reason in done.stderr, done


CASES = {  # the stage to play to, the test, arguments of Game
    "splash": ("splash", splash, SLOW),
    "whole": ("turn", whole, NOON),
    "rest": ("blink", rest, {}),
    "scale_changes": ("help", scale_changes, {"scale": 1}),
    "rules": ("turn", rules, {"size": "1040x800x24"}),  # Qt's narrowest box is at this width
    "display_lost_at_splash": ("splash", display_lost, SLOW),
    "display_lost_at_blink": ("blink", display_lost, {}),
}
for size, scale in ("1600x1200", "1"), ("1280x720", "1.5"), ("1600x1200", "2"), ("400x400", "1"):
    more = {"QT_SCALE_FACTOR": scale, "size": size + "x24"}
    CASES[f"drags_on_{size}_at_{scale}"] = "help", drags, more


def play(program, name):
    stage, act, more = CASES[name]
    with Game(program, **more) as game:
        game.play_to(stage)
        act(game)
        if game.process.poll() is None:
            game.run("wmctrl", "-ic", game.name)
            ended(game)


play(*sys.argv[1:]) if sys.argv[1:] else print(*CASES, sep=";", end="")
