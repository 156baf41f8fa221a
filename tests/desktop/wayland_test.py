"""Plays a short game under a Wayland compositor at three scales: wayland_test.py PROGRAM."""

import json, os, pathlib, socket, struct, subprocess, sys, tempfile, time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))
from real_window import DOWN, UP, Game, until

REGISTRY, SEAT, POINTER, KEYBOARD = 2, 3, 5, 7  # object ids; managers 4 and 6 create 5 and 7
ACTS = {
    DOWN: [(POINTER, 2, 0x110, 1)],
    UP: [(POINTER, 2, 0x110, 0)],
    "key Escape": [(KEYBOARD, 1, 1, 1), (KEYBOARD, 1, 1, 0)],
    "key Return": [(KEYBOARD, 1, 28, 1), (KEYBOARD, 1, 28, 0)],
}
KEYMAP = b"""xkb_keymap { xkb_keycodes { include "evdev" }; xkb_types { include "complete" };
  xkb_compat { include "complete" }; xkb_symbols { include "pc+us" }; };\0"""
# A cursor file with one transparent pixel. Screenshots would show any other cursor.
NO_CURSOR = struct.pack(
    "<4s16I", b"Xcur", 16, 0x10000, 1, 0xFFFD0002, 24, 28, 36, 0xFFFD0002, 24, 1, 1, 1, 0, 0, 0, 0
)


class Hand:
    """A virtual mouse and keyboard, with the few Wayland requests that they need."""

    def __init__(self, path):
        self.compositor, self.received = socket.socket(socket.AF_UNIX), b""
        self.compositor.connect(path)
        self.send(1, 1, REGISTRY)
        self.bind(b"wl_seat\0", SEAT)
        for device, maker in (
            (POINTER, b"zwlr_virtual_pointer_manager_v1\0"),
            (KEYBOARD, b"zwp_virtual_keyboard_manager_v1\0"),
        ):
            self.bind(maker, device - 1)
            self.send(device - 1, 0, SEAT, device)
        with tempfile.TemporaryFile(buffering=0) as keymap:
            keymap.write(KEYMAP)
            self.send(KEYBOARD, 0, 1, len(KEYMAP), files=[keymap.fileno()])

    def bind(self, interface, name):
        """Binds a global to an id, once the compositor has announced it."""
        while interface not in self.received:
            self.received += self.compositor.recv(4096)
        at = self.received.index(interface)
        number, length = struct.unpack("=II", self.received[at - 8 : at])
        self.send(REGISTRY, 0, number, length, interface, 1, name)

    def send(self, target, request, *words, files=()):
        words = [word if isinstance(word, bytes) else struct.pack("=I", word) for word in words]
        head = struct.pack("=II", target, 8 + sum(map(len, words)) << 16 | request)
        socket.send_fds(self.compositor, [head, *words], files)

    def act(self, device, request, *words):
        self.send(device, request, time.monotonic_ns() // 10**6 % 2**32, *words)
        if device == POINTER:
            self.send(device, 4)  # frame: ends this group of events


class WaylandGame(Game):
    """Geometry is in the compositor's logical units, screenshots are in physical pixels."""

    def __init__(self, program, scale, width=800, height=640):
        self.scale, self.pixels, self.looked = scale, 0, 0
        self.room = width, height
        super().__init__(program, f"{width * scale:.0f}x{height * scale:.0f}")

    def open(self):
        folder = self.folder.name
        os.makedirs(folder + "/default/cursors")
        pathlib.Path(folder, "default/cursors/left_ptr").write_bytes(NO_CURSOR)
        pathlib.Path(folder, "config").write_text(
            f"output * mode {self.size} scale {self.scale}\nxwayland disable\n"
        )
        self.env |= {
            "XDG_RUNTIME_DIR": folder,
            "XDG_SESSION_TYPE": "wayland",
            "WAYLAND_DISPLAY": "wayland-1",
            "SWAYSOCK": folder + "/sway",
            "XCURSOR_PATH": folder,
            "WLR_BACKENDS": "headless",
            "WLR_RENDERER": "pixman",
        }
        os.chmod(folder, 0o777)  # sway refuses to run as root
        user = {} if os.getuid() else {"user": 65534, "group": 65534, "extra_groups": []}
        # With atomic layout changes, a press just after a window has closed would hit the frame.
        self.server = self.start("sway", "-Dnoatomic", "--config", folder + "/config", **user)
        until(
            "the compositor",
            lambda: f'"width": {self.room[0]}'
            in self.run("swaymsg", "--raw", "--type", "get_outputs"),
        )
        self.hand = Hand(folder + "/wayland-1")

    def window(self, title, is_splash=None):
        nodes = [json.loads(self.run("swaymsg", "--raw", "--type", "get_tree"))]
        for node in nodes:
            nodes += node["nodes"] + node["floating_nodes"]
            outer, inner = node["rect"], node.get("window_rect")
            if node["name"] == title:
                assert node["deco_rect"]["y"] >= 0, "the title bar is off the screen"
                left, top = outer["x"] + inner["x"], outer["y"] + inner["y"]
                if is_splash in (None, inner["width"] > 2 * inner["height"]):
                    return node["id"], left, top, inner["width"], inner["height"]

    def rows(self, *place):
        if time.monotonic() > self.looked + 0.01:  # reading a board calls this 64 times
            ppm = subprocess.check_output(["grim", "-t", "ppm", "-"], env=self.env)
            _, size, _, seen = ppm.split(b"\n", 3)
            self.width, self.memory = int(size.split()[0]), bytearray(len(seen) // 3 * 4)
            for colour in range(3):
                self.memory[colour::4] = seen[2 - colour :: 3]
            self.looked = time.monotonic()
        return super().rows(*(round(length * self.scale) for length in place))

    def do(self, *steps):
        for step in steps:
            place = self.middle(step) if isinstance(step, int) else step
            for act in ACTS.get(step) or [(POINTER, 1, *place, *self.room)]:
                self.hand.act(*act)

    def take_screenshot(self, path):
        return self.run("grim", path + ".png") or path + ".png"


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
    game.do((game.left + 20, game.top + 12), DOWN, UP)
    until("the new game", lambda: game.picture() == game.at_rest)
    game.run("swaymsg", f"[con_id={game.name}] kill")
    assert (ended := game.ended()) == (0, ended[1], []), ended


for scale, *room in [1], [1.5], [2, 960, 540]:
    with WaylandGame(sys.argv[1], scale, *room) as game:
        play(game)
for stage in "splash", "help", "blink":  # the display is lost at each of these
    with WaylandGame(sys.argv[1], 1) as game:
        game.play_to(stage)
        game.server.kill()
        code, seconds, errors = game.ended()
        assert (code, errors) == (1, ["velmoran: the display is gone\n"]) and seconds < 8, errors
