"""A virtual display for the programs that handle the window from outside, and what they share."""

import os
import plistlib
import subprocess
import sys
import time
from contextlib import contextmanager
from pathlib import Path

PATIENCE = 20  # seconds; for a machine that is busy
STILL = 0.12  # seconds without another picture, after which nothing moves; a frame takes 0.016
PREFERENCES = "var/mobile/Library/Preferences/com.orvel.corvexprefs.plist"


def wait_for(what, condition):
    """What the condition answers once that is something; ends the program when it never does."""
    result = soon(condition, PATIENCE)
    if not result:
        sys.exit(f"{Path(sys.argv[0]).name}: {what} did not come about")
    return result


def soon(condition, patience):
    """What the condition answers once that is something, or last when the patience ends."""
    end = time.monotonic() + patience
    while not (result := condition()) and time.monotonic() < end:
        time.sleep(0.02)
    return result


def is_enabled(root):
    """The master switch as it is stored; nothing when it is not."""
    try:
        return plistlib.loads((Path(root) / PREFERENCES).read_bytes()).get("kEnabled")
    except (OSError, plistlib.InvalidFileException):
        return None


def keep_marker(root):
    """What is new has been shown."""
    file = Path(root) / PREFERENCES
    file.parent.mkdir(parents=True)
    file.write_bytes(plistlib.dumps({"LastVersionPopupShown": "3.0.1"}))


class VirtualDisplay:
    """Xvfb, and the tools that act on it. FOLDER holds its picture."""

    def __init__(self, folder):
        read, write = os.pipe()
        screen = ["-screen", "0", "1000x1000x24", "-fbdir", folder, "-nolisten", "tcp"]
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), *screen], pass_fds=[write], stderr=subprocess.DEVNULL
        )
        os.close(write)
        with os.fdopen(read) as numbers:
            number = numbers.readline().strip()
        self.frame = next(Path(folder).iterdir())
        self.environment = {**os.environ, "DISPLAY": f":{number}", "QT_QPA_PLATFORM": "xcb"}
        self.environment.pop("WAYLAND_DISPLAY", None)

    @contextmanager
    def showing(self, program, *options):
        """Shows the program, and ends both afterwards."""
        shown = subprocess.Popen([program, *options], env=self.environment)
        try:
            yield
        finally:
            for process in (shown, self.server):
                process.kill()
                process.wait()

    def tool(self, *arguments):
        run = subprocess.run(["xdotool", *arguments], env=self.environment, text=True, capture_output=True)
        return run.stdout.strip()

    def window(self):
        found = wait_for("the window", lambda: self.tool("search", "--onlyvisible", "--name", "Corvex"))
        return found.splitlines()[0]

    def key(self, *keys):
        self.tool("key", *keys)

    def picture(self):
        return self.frame.read_bytes()

    def settle(self):
        """Waits until nothing moves any more."""
        last, since = None, time.monotonic()

        def is_still():
            nonlocal last, since
            now = self.picture()
            if now != last:
                last, since = now, time.monotonic()
            return time.monotonic() - since > STILL

        wait_for("a picture that stands still", is_still)

    def see(self, what, action):
        """Does what changes the picture, and waits until nothing moves any more."""
        before = self.picture()
        self.do_until(what, action, lambda: self.picture() != before)

    def do_until(self, what, action, condition):
        """Waits for what comes of it, and until nothing moves any more. What a busy machine has lost is done again."""

        def do_and_look():
            action()
            return soon(condition, PATIENCE / 4)

        wait_for(what, do_and_look)
        self.settle()
