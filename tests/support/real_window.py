"""Runs the built program on its own X server with a window manager. Pixels are read from the
server's memory. xdotool sends the input. Tests poll for each state and never sleep for it."""

import mmap, os, pathlib, re, signal, struct, subprocess, sys, tempfile, time

BOARD = 520
BLACK, BLUE, GREEN = (0, 0, 0), (36, 1, 254), (36, 255, 2)
PIECES = {(BLACK, BLACK): ".", (BLACK, BLUE): "b", (BLACK, GREEN): "g", (GREEN, BLACK): "*"}
START = "b" * 12 + "." * 8 + "g" * 12
DOWN, UP = "mousedown 1", "mouseup 1"


def until(what, probe, seconds=8):
    """Polls `probe` until its result is true, and returns that. Fails after `seconds`."""
    end = time.monotonic() + seconds
    while not (found := probe()):
        assert time.monotonic() < end, f"{what}: not seen within {seconds} s"
        time.sleep(0.005)
    return found


class Screen:
    def __init__(self, size="1600x1200x24"):
        self.size, self.settings_daemon = size, None
        self.folder = tempfile.TemporaryDirectory()
        # Starting a message bus creates ~/.dbus. Where no dbus-launch is installed, this one does.
        bus = pathlib.Path(self.folder.name, "dbus-launch")
        bus.write_text("#!/bin/sh\nmkdir ~/.dbus")
        bus.chmod(0o755)
        # A fresh environment, independent of the user's desktop. Leaks are Qt's: not checked.
        self.env = {
            "PATH": self.folder.name + ":" + os.environ["PATH"],
            "HOME": self.folder.name,
            "TZ": "UTC",
            "ASAN_OPTIONS": "detect_leaks=0:verify_asan_link_order=0",
        }
        self.open()

    def open(self):
        reader, writer = os.pipe()
        command = f"Xvfb -displayfd {writer} -fbdir {self.folder.name} -nocursor -noreset -screen 0"
        self.server = self.start(*command.split(), self.size, pass_fds=[writer])
        os.close(writer)
        with open(reader) as line:
            self.env["DISPLAY"] = ":" + line.readline().strip()
        until("the X server", lambda: self.run("xdotool", "getdisplaygeometry"))
        # openbox may miss windows opened before it runs its startup command.
        self.start("openbox", "--startup", f"touch {self.folder.name}/managed")
        until("the window manager", lambda: os.path.exists(self.folder.name + "/managed"))
        with open(self.folder.name + "/Xvfb_screen0", "rb") as file:  # in the format of xwd
            self.memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(">20I", self.memory[:80])
        self.width, self.pixels = header[4], header[0] + 12 * header[19]

    def start(self, *command, **more):
        """Starts a program. The kernel kills it when this process ends."""
        command = "setpriv", "--pdeathsig", "KILL", *command
        silent = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        return subprocess.Popen(command, env=self.env, **silent | more)

    def run(self, *command):
        return subprocess.run(command, env=self.env, capture_output=True, text=True).stdout

    def set_scale(self, scale):
        """Sets the scale of the desktop. Running programs follow it, too."""
        settings, dots = pathlib.Path(self.folder.name, "settings"), int(scale * 96 * 1024)
        settings.write_text(f"Xft/DPI {dots}\n")
        if self.settings_daemon:
            self.settings_daemon.send_signal(signal.SIGHUP)
        else:
            self.settings_daemon = self.start("xsettingsd", "-c", settings)
        until("the scale", lambda: f"DPI {dots}" in self.run("dump_xsettings"))

    def window(self, title):
        """The id, left, top, width and height of a visible window; None if there is none."""
        for name in self.run("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split():
            text = self.run("xwininfo", "-id", name)
            if place := re.findall(r"(?:Absolute.*|Width|Height): +(-?\d+)", text):
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
            screenshot = pathlib.Path(f"{sys.argv[1]}.{os.getpid()}.xwd")
            screenshot.write_bytes(self.memory)
            print("Screenshot:", screenshot)
        self.server.kill()
        self.server.wait()

    def stages(self):
        """Plays to the end of the computer's first turn. Yields the name of each stage reached."""
        self.name, *self.splash = until("the splash", lambda: self.window(" Velmoran"))
        yield "splash"
        until("the help", lambda: self.window("Velmoran Game Controls"))
        self.measure()
        yield "help"
        self.do("key Return")
        until(
            "the start position without the help box",
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
        until("a flash", self.flashing)
        yield "blink"
        # A square that is just being painted may look empty, so wait for the whole answer.
        until(
            "the answer and its last blink",
            lambda: [now + was for now, was in zip(self.board(), moved) if now != was]
            in (["*.", ".g"], ["g.", ".g"]),
        )
        yield "last_blink"

    def measure(self):
        """Reads the geometry of the board, below the menu bar. Its side may differ from 520."""
        self.name, self.left, top, self.side, height = self.window(" Velmoran")
        self.top = top + height - self.side
        self.client_area = self.left, self.top, self.side, self.side
        # Without the edge: at a fractional scale its pixels may blend with the menu bar.
        self.inside = self.left + 1, self.top + 1, self.side - 2, self.side - 2

    def play_to(self, wanted):
        while next(self.script) != wanted:
            pass

    def middle(self, square, right=0, down=0):
        """The middle of a square on the screen, shifted by pixels of the unscaled form."""
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
        """Whether a square is highlighted. Reads one pixel a square, to be fast: a flash is short,
        but a turn has four of them."""
        return any(self.colours(*self.middle(n, -30, -30)) == {GREEN} for n in range(1, 33))

    def board(self):
        return "".join(map(self.piece, range(1, 33)))

    def picture(self):
        return list(self.rows(*self.client_area))

    def do(self, *steps):
        """Moves the pointer to squares (int) and points (tuple). A string is xdotool commands."""
        points = (self.middle(step) if isinstance(step, int) else step for step in steps)
        words = (at if isinstance(at, str) else "mousemove {} {}".format(*at) for at in points)
        return self.run("xdotool", *" ".join(words).split())

    def move(self, *squares):
        """Drags until the piece moves. It does not move before the computer's turn has ended."""
        until(
            f"the move {squares}",
            lambda: self.piece(squares[-1]) in "bB"
            or self.do(squares[0], DOWN, *squares[1:], UP, "sleep 0.1"),
        )

    def ended(self):
        """Waits for the process to end. Returns the exit code and the lines of stderr."""
        until("the end", lambda: self.process.poll() is not None)
        self.errors.seek(0)
        return self.process.returncode, self.errors.readlines()
