"""Plays a short game under a Wayland compositor at two scales: wayland_test.py PROGRAM.

The compositor has its one output in a window that fills an X server of its own, so input and pixels
are those of any other game in a real window."""

import json, os, pathlib, sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))
from real_window import DOWN, UP, Game, until


class WaylandGame(Game):
    def __init__(self, program, scale=1, width=800, height=640):
        self.scale = scale
        super().__init__(program, f"{width * scale:.0f}x{height * scale:.0f}x24")

    def open(self):
        super().open()
        folder = self.folder.name
        config = pathlib.Path(folder, "config")
        config.write_text(f"output * scale {self.scale}\nxwayland disable\n")
        self.env |= {
            "XDG_RUNTIME_DIR": folder,
            "XDG_SESSION_TYPE": "wayland",
            "WAYLAND_DISPLAY": "wayland-1",
            "SWAYSOCK": folder + "/sway",
            "WLR_BACKENDS": "x11",
            "WLR_RENDERER": "pixman",
        }
        os.chmod(folder, 0o777)  # sway refuses to run as root
        user = {} if os.getuid() else {"user": 65534, "group": 65534, "extra_groups": []}
        # With atomic layout changes, a press just after a window has closed would hit the frame.
        self.compositor = self.start("sway", "-Dnoatomic", "--config", config, **user)
        until(
            "the compositor on the whole screen",
            lambda: self.run("wmctrl", "-r", "wlroots", "-b", "add,fullscreen")
            or f'"width": {self.width},' in self.run("swaymsg", "--raw", "--type", "get_outputs"),
        )

    def window(self, title):
        nodes = [json.loads(self.run("swaymsg", "--raw", "--type", "get_tree"))]
        for node in nodes:
            nodes += node["nodes"] + node["floating_nodes"]
            if node["name"] == title:
                assert node["deco_rect"]["y"] >= 0, "the title bar is off the screen"
                outer, inner = node["rect"], node["window_rect"]
                place = outer["x"] + inner["x"], outer["y"] + inner["y"]
                size = inner["width"], inner["height"]
                return node["id"], *(round(length * self.scale) for length in place + size)


def play(game):
    game.play_to("splash")
    until("the border of the splash", lambda: (255, 0, 0) in game.colours(*game.splash))
    game.play_to("turn")
    for step in (10, DOWN), [game.middle(10, 9, -9)], [game.middle(10, 20, -20)], [14]:
        shown = game.picture()
        game.do(*step)
        until("the outline", lambda: game.picture() != shown)
    game.do("key Escape")
    until("the start picture", lambda: game.picture() == game.at_rest)
    game.do(UP)
    game.play_to("last_blink")
    game.do((game.left + 20, game.top - 8), DOWN, UP)
    until("the menu", lambda: (255, 255, 255) in game.colours(*game.client_area))
    game.do((game.left + 20, game.top + 12 * game.scale), DOWN, UP)
    until("the new game", lambda: game.picture() == game.at_rest)
    game.run("swaymsg", f"[con_id={game.name}] kill")
    assert (end := game.ended()) == (0, []), end


for scale_and_room in [1.5], [2, 960, 540]:
    with WaylandGame(sys.argv[1], *scale_and_room) as game:
        play(game)
for stage in "splash", "blink":  # the display is lost at each of these
    with WaylandGame(sys.argv[1]) as game:
        game.play_to(stage)
        game.compositor.kill()
        assert (end := game.ended()) == (1, ["velmoran: the display is gone\n"]), end
