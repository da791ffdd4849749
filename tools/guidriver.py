# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""Drives VOK on a virtual display as a person would: real mouse and key events by xdotool, looking
by the accessibility bus, pictures of the screen. Used by the tour and by the tests of whole
windows."""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import warnings

ROOT = pathlib.Path(__file__).resolve().parent.parent


class Failure(Exception):
    """What was looked for did not appear in time; the text says what."""


def wait_for(look, what, timeout=60.0):
    """Calls look() until it gives a true value, which is returned; Failure after timeout seconds."""
    end = time.monotonic() + timeout
    while True:
        found = look()
        if found:
            return found
        if time.monotonic() > end:
            raise Failure(f"waited {timeout:.0f} s in vain for {what}")
        time.sleep(0.05)


class Screen:
    """A virtual display with a window manager, a message bus and accessibility, for a `with` block.
    It changes this process's environment, because the accessibility library reads it once."""

    def __init__(self, size="1280x900x24"):
        self.size = size
        self.processes = []

    def __enter__(self):
        self.runtime = tempfile.mkdtemp(prefix="vok-screen-")
        reading, writing = os.pipe()
        self._start(["Xvfb", "-displayfd", str(writing), "-screen", "0", self.size, "-nolisten", "tcp",
                     "-noreset"], pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as numbers:
            os.environ["DISPLAY"] = ":" + numbers.readline().strip()
        for name in ("WAYLAND_DISPLAY", "XAUTHORITY", "AT_SPI_BUS_ADDRESS", "SESSION_MANAGER"):
            os.environ.pop(name, None)
        os.environ.update(XDG_RUNTIME_DIR=self.runtime, QT_QPA_PLATFORM="xcb",
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL="C.UTF-8", LANGUAGE="",
                          VOKLANGUAGE="", NO_AT_BRIDGE="0", XDG_CURRENT_DESKTOP="")
        bus = self._start(["dbus-daemon", "--session", "--nofork", "--print-address=1"],
                          stdout=subprocess.PIPE, text=True)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        self._start(["openbox", "--sm-disable"])
        wait_for(lambda: subprocess.run(["xdotool", "get_num_desktops"], stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL).returncode == 0, "the window manager", 60)
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGTERM)
        for process in self.processes:
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
        shutil.rmtree(self.runtime, ignore_errors=True)

    def _start(self, command, **options):
        options.setdefault("stdout", subprocess.DEVNULL)
        process = subprocess.Popen(command, stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL,
                                   start_new_session=True, **options)
        self.processes.append(process)
        return process

    def picture(self, path):
        """Writes a picture of the whole screen to path, a PNG file."""
        subprocess.run(["import", "-window", "root", str(path)], check=True)


class Program:
    """A running VOK and what can be seen and done in its windows."""

    def __init__(self, command, log):
        """Starts command, with its output in the file log."""
        self._reach()
        self.log = pathlib.Path(log)
        with self.log.open("wb") as output:
            self.process = subprocess.Popen(command, stdout=output, stderr=subprocess.STDOUT,
                                            stdin=subprocess.DEVNULL, start_new_session=True)
        self.application = wait_for(self._find_application, "the program's window")

    def _reach(self):
        import gi

        # The accessibility library's newer names are not everywhere yet.
        warnings.simplefilter("ignore", DeprecationWarning)
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib

        self.atspi, self.glib = Atspi, GLib
        Atspi.init()

    def _find_application(self):
        if self.process.poll() is not None:
            raise Failure(f"the program ended with {self.process.returncode}:\n{self.log.read_text()}")
        desktop = self.atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_name() in ("vok", "VOK") and child.get_child_count():
                return child
        return None

    def end(self, timeout=20.0):
        """Waits for the program's end; returns its exit status. Kills it after timeout seconds."""
        try:
            return self.process.wait(timeout)
        except subprocess.TimeoutExpired:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()
            raise Failure("the program did not end") from None

    def kill(self):
        """Ends the program at once if it still runs."""
        if self.process.poll() is None:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()

    def walk(self, top=None, tables=False):
        """All accessible objects below top in depth-first order; inside tables only on request."""
        stack = [top or self.application]
        while stack:
            item = stack.pop()
            try:
                yield item
                if self.role(item) == "table" and not tables:
                    continue
                count = item.get_child_count()
                children = [item.get_child_at_index(index) for index in range(count)]
            except self.glib.Error:
                continue
            stack.extend(child for child in reversed(children) if child is not None)

    @staticmethod
    def role(item):
        """The name of an object's role, an older name for a role whose name changed."""
        name = item.get_role_name()
        return {"button": "push button"}.get(name, name)

    def look(self, role, name=None, top=None):
        """The first object with that role (a name, several, or None for any) and name that is on the
        screen, or None."""
        if self.process.poll() is not None:
            raise Failure(f"the program ended with {self.process.returncode} while {role} {name!r} "
                          f"was looked for:\n{self.log.read_text(errors='replace')[-4000:]}")
        roles = (role,) if isinstance(role, str) else role
        for item in self.walk(top):
            try:
                if (roles is None or self.role(item) in roles) \
                        and (name is None or item.get_name() == name) \
                        and self.has(item, "SHOWING"):
                    return item
            except self.glib.Error:
                continue
        return None

    def find(self, role, name=None, top=None, timeout=60.0):
        """As look, but waits for it."""
        return wait_for(lambda: self.look(role, name, top), f"{role} {name!r}", timeout)

    def has(self, item, state):
        """Whether an object has a state, by its name in the accessibility library."""
        return item.get_state_set().contains(getattr(self.atspi.StateType, state))

    def wait_enabled(self, item, what, timeout=120.0):
        """Waits until an object can be used."""
        wait_for(lambda: self.has(item, "SENSITIVE"), f"{what} to become usable", timeout)

    def box(self, item):
        """An object's place on the screen: (x, y, width, height) in pixels."""
        extents = item.get_component_iface().get_extents(self.atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def click(self, item, button=1, count=1):
        """Moves the mouse to an object's middle and clicks."""
        x, y, width, height = self.box(item)
        xdotool("mousemove", "--sync", x + width // 2, y + height // 2,
                "click", "--repeat", count, "--delay", 60, button)

    def texts(self, item):
        """What an object says: its text, else its name."""
        if item.get_text_iface() is not None:
            # By way of the interface: newer libraries have an object's own method of that name.
            text = self.atspi.Text
            return text.get_text(item, 0, text.get_character_count(item))
        return item.get_name()

    def cells(self, table):
        """The rows of a table as lists of cell texts; for small tables."""
        model = table.get_table_iface()
        return [[model.get_accessible_at(row, column).get_name()
                 for column in range(model.get_n_columns())] for row in range(model.get_n_rows())]


def xdotool(*words):
    """Runs xdotool with words."""
    subprocess.run(["xdotool", *map(str, words)], check=True)


def key(*names):
    """Presses keys, by their X names, modifiers joined by plus."""
    xdotool("key", "--delay", 30, *names)


def type_text(text):
    """Types a text."""
    xdotool("type", "--delay", 12, text)


def enter_namespace():
    """For an ordinary user, starts this program again as root of a user namespace, in which the sandbox
    runs VOK too: the message buses refuse a peer of another namespace. Where there are none, goes on."""
    probe = ["unshare", "--user", "--map-root-user"]
    if os.geteuid() and subprocess.run([*probe, "true"], stderr=subprocess.DEVNULL).returncode == 0:
        os.execvp("unshare", [*probe, sys.executable, *sys.argv])


def require_tools():
    """Ends with a message when a program that the driver needs is missing."""
    missing = [name for name in ("Xvfb", "xdotool", "dbus-daemon", "openbox", "import")
               if shutil.which(name) is None]
    if missing:
        sys.exit("missing programs: " + ", ".join(missing) + "; run tools/setup")
