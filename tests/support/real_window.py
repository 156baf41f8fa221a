"""The built program on an X server of its own, with a window manager. What the player sees is read
from the memory of the screen, what he does is done by xdotool, and nothing sleeps for a state."""

import mmap, os, pathlib, re, signal, struct, subprocess, sys, tempfile, time

BOARD = 520
BLACK, BLUE, GREEN = (0, 0, 0), (36, 1, 254), (36, 255, 2)
PIECES = {(BLACK, BLACK): ".", (BLACK, BLUE): "b", (BLACK, GREEN): "g", (GREEN, BLACK): "*"}
START = "b" * 12 + "." * 8 + "g" * 12
DOWN, UP = "mousedown 1", "mouseup 1"


def until(what, probe, seconds=8):
    """Waits for `probe` to find something, and gives it."""
    end = time.monotonic() + seconds
    while not (found := probe()):
        assert time.monotonic() < end, f"not within {seconds} s: {what}"
        time.sleep(0.005)
    return found


class Screen:
    def __init__(self, size="1600x1200x24"):
        self.size, self.teller = size, None
        self.folder = tempfile.TemporaryDirectory()
        # A message bus leaves a trace at home, by a launcher of its own or by this one.
        bus = pathlib.Path(self.folder.name, "dbus-launch")
        bus.write_text("#!/bin/sh\nmkdir ~/.dbus")
        bus.chmod(0o755)
        # Nothing of the desktop that the tests run on may shine through. Leaks are Qt's, not ours.
        self.env = {
            "PATH": self.folder.name + ":" + os.environ["PATH"],
            "HOME": self.folder.name,
            "TZ": "UTC",
            "ASAN_OPTIONS": "detect_leaks=0:verify_asan_link_order=0",
        }
        self.open()

    def open(self):
        number, told = os.pipe()
        command = f"Xvfb -displayfd {told} -fbdir {self.folder.name} -nocursor -noreset -screen 0"
        self.server = self.start(*command.split(), self.size, pass_fds=[told])
        os.close(told)
        with open(number) as line:
            self.env["DISPLAY"] = ":" + line.readline().strip()
        until("the X server", lambda: self.run("xdotool", "getdisplaygeometry"))
        # Any sooner the manager may lose a window: it says that it manages before it does.
        self.start("openbox", "--startup", f"touch {self.folder.name}/managed")
        until("the window manager", lambda: os.path.exists(self.folder.name + "/managed"))
        with open(self.folder.name + "/Xvfb_screen0", "rb") as file:  # in the format of xwd
            self.memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(">20I", self.memory[:80])
        self.width, self.pixels = header[4], header[0] + 12 * header[19]

    def start(self, *command, stderr=subprocess.DEVNULL, **more):
        """Starts a program that ends with this one, in whatever way this one ends."""
        return subprocess.Popen(
            ["setpriv", "--pdeathsig", "KILL", *command],
            env=self.env,
            stdout=subprocess.DEVNULL,
            stderr=stderr,
            **more,
        )

    def run(self, *command):
        return subprocess.run(command, env=self.env, capture_output=True, text=True).stdout

    def set_scale(self, scale):
        """Tells all programs the scale of the desktop, those that run as well."""
        settings, dots = pathlib.Path(self.folder.name, "settings"), int(scale * 96 * 1024)
        settings.write_text(f"Xft/DPI {dots}\n")
        if self.teller:
            self.teller.send_signal(signal.SIGHUP)
        else:
            self.teller = self.start("xsettingsd", "-c", settings)
        until("the scale", lambda: f"DPI {dots}" in self.run("dump_xsettings"))

    def window(self, title, is_splash=None):
        """A visible window of this title: its name, left, top, width and height."""
        for name in self.run("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split():
            told = self.run("xwininfo", "-id", name)
            place = re.findall(r"(?:Absolute.*|Width|Height): +(-?\d+)", told)
            if place and is_splash in (None, int(place[2]) > 2 * int(place[3])):
                return name, *map(int, place)

    def rows(self, left, top, width, height):
        for y in range(top, top + height):
            start = self.pixels + 4 * (y * self.width + left)
            yield self.memory[start : start + 4 * width]

    def colours(self, left, top, width=1, height=1):
        pixels = b"".join(self.rows(left, top, width, height))
        return set(zip(pixels[2::4], pixels[1::4], pixels[0::4]))


class Game(Screen):
    def __init__(self, program, size="1600x1200x24", scale=None, **env):
        super().__init__(size)
        if scale:
            self.set_scale(scale)
        self.env.update(env)
        self.errors = tempfile.TemporaryFile("w+")
        self.process = self.start(program, stderr=self.errors)
        self.script = self.stages()

    def __enter__(self):
        return self

    def __exit__(self, failure, *_):
        if failure:
            print("Screenshot:", self.take_screenshot(f"{sys.argv[1]}.{os.getpid()}"))
        self.server.kill()
        self.server.wait()

    def take_screenshot(self, path):
        return pathlib.Path(path + ".xwd").write_bytes(self.memory) and path + ".xwd"

    def stages(self):
        """Plays from the start to the end of the computer's first turn, and tells each stage."""
        self.name, *self.splash = until("the splash", lambda: self.window(" Velmoran", True))
        yield "splash"
        until("the main window", lambda: self.window(" Velmoran", False))
        until("the help", lambda: self.window("Velmoran Game Controls"))
        self.measure()
        yield "help"
        self.do("key Return")
        until(
            "the start position, with no grey left of the help",
            lambda: self.board() == START and max(map(min, self.colours(*self.inside))) < 3,
        )
        self.at_rest = self.picture()
        yield "turn"
        self.do(10, DOWN, 14)
        until("the outline", lambda: self.picture() != self.at_rest)
        yield "drag"
        self.do(UP)
        moved = START[:9] + "." + START[10:13] + "b" + START[14:]
        until("the move", lambda: self.board() == moved)
        yield "pause"
        self.blinking = until("a flash", self.flashing)
        yield "blink"
        # A square that is just being painted may look empty, so wait for the whole answer.
        until(
            "the answer and its last blink",
            lambda: [now + was for now, was in zip(self.board(), moved) if now != was]
            in (["*.", ".g"], ["g.", ".g"]),
        )
        yield "last_blink"

    def measure(self):
        """Finds the board, which is below the menu bar and may be larger or smaller than 520."""
        self.name, self.left, top, self.side, height = self.window(" Velmoran", False)
        self.top = top + height - self.side
        self.client_area = self.left, self.top, self.side, self.side
        # Without the outermost pixels: at a fractional ratio they may be mixed with the menu bar.
        self.inside = self.left + 1, self.top + 1, self.side - 2, self.side - 2

    def play_to(self, wanted):
        while next(self.script) != wanted:
            pass

    def middle(self, square, right=0, down=0):
        """The point in the middle of a square, or so many pixels of the form beside it."""
        row, place = divmod(square - 1, 4)
        scale = self.side / BOARD
        return (
            int(self.left + (65 * (2 * place + row % 2) + 32.5 + right) * scale),
            int(self.top + (65 * (7 - row) + 32.5 + down) * scale),
        )

    def piece(self, square):
        ground = self.colours(*self.middle(square, -30, -30)).pop()
        disc = self.colours(*self.middle(square, 0, -26)).pop()
        return PIECES.get((ground, disc), "?")

    def flashing(self):
        """The square that is lit up now, or None. One point of each square tells, so it is quick."""
        lit = (n for n in range(1, 33) if self.colours(*self.middle(n, -30, -30)) == {GREEN})
        return next(lit, None)

    def board(self):
        return "".join(map(self.piece, range(1, 33)))

    def picture(self):
        return list(self.rows(*self.client_area))

    def do(self, *steps):
        """Moves to squares and points of the screen; all else are words of xdotool's."""
        points = (self.middle(step) if isinstance(step, int) else step for step in steps)
        words = (at if isinstance(at, str) else "mousemove {} {}".format(*at) for at in points)
        return self.run("xdotool", *" ".join(words).split())

    def move(self, *squares):
        """Tries until the piece follows, which it does from the end of the computer's turn on."""
        until(
            f"the move {squares}",
            lambda: self.piece(squares[-1]) in "bB"
            or self.do(squares[0], DOWN, *squares[1:], UP, "sleep 0.1"),
        )

    def ended(self):
        """Waits for the process to end. Returns its exit code, the seconds and the lines of errors."""
        start = time.monotonic()
        until("the end", lambda: self.process.poll() is not None)
        self.errors.seek(0)
        return self.process.returncode, time.monotonic() - start, self.errors.readlines()
