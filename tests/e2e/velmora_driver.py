"""Drives Velmora from outside: the accessibility tree to look, the pointer and the keys to act.

Needs a display with a window manager and a message bus: tools/with-display gives one.
"""

import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402 (the version has to be chosen first)

import waiting  # noqa: E402
from settings import hide_events_at_start  # noqa: E402
from waiting import PATIENCE, NotSeen  # noqa: E402

# The toolkit's own cache lags behind the program unless a main loop runs here.
Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)


def wait_until(condition, what, seconds=PATIENCE):
    """As waiting.wait_until(); an object that is gone by the time it is asked is not there."""
    def seen():
        with contextlib.suppress(GLib.Error):
            return condition()
        return None
    return waiting.wait_until(seen, what, seconds)


def xdo(*words):
    done = subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True)
    if done.returncode:
        raise NotSeen(f"xdotool {words}: {done.stderr}")
    return done.stdout.strip()


def key(*names):
    """Presses keys one after the other; "alt+p" is a chord."""
    xdo("key", "--delay", 20, *names)


def type_text(text):
    """Types printable ASCII where the focus is."""
    if not (text.isascii() and text.isprintable()):
        raise ValueError(f"paste this instead: {text!r}")
    xdo("type", "--delay", 15, "--", text)


@contextlib.contextmanager
def clipboard(text):
    """Offers a text on the clipboard as long as the block runs."""
    owner = subprocess.Popen(["xclip", "-selection", "clipboard", "-quiet", "-loops", "0"],
                             stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL)
    try:
        owner.stdin.write(text.encode("utf-8"))
        owner.stdin.close()

        def offered():
            done = subprocess.run(["xclip", "-selection", "clipboard", "-out"], capture_output=True)
            return done.stdout == text.encode("utf-8")

        wait_until(offered, "the clipboard")
        yield
    finally:
        owner.terminate()
        owner.wait()


# Roles whose children are left out of a search by object name.
MANY_CHILDREN = ("list", "menu bar", "table", "tree")

# What can be asked of an element.

def identifier(element):
    """The object name, which test runs tell as the description."""
    return element.get_description()


def has_state(element, state):
    return element.get_state_set().contains(state)


def is_showing(element):
    return has_state(element, Atspi.StateType.SHOWING)


def is_enabled(element):
    return has_state(element, Atspi.StateType.ENABLED)


def is_focused(element):
    return has_state(element, Atspi.StateType.FOCUSED)


def is_checked(element):
    return has_state(element, Atspi.StateType.CHECKED)


def text_of(element):
    """The text of an edit; the caption of anything else."""
    if element.get_text_iface():
        return Atspi.Text.get_text(element, 0, -1)
    return element.get_name()


def children(element):
    for index in range(element.get_child_count()):
        child = element.get_child_at_index(index)
        if child:
            yield child


def walk(element, closed_roles=()):
    """The element and all below it, without what is below an element of a closed role."""
    yield element
    count = element.get_child_count()
    if count and closed_roles and element.get_role_name() in closed_roles:
        return
    for index in range(count):
        child = element.get_child_at_index(index)
        if child:
            yield from walk(child, closed_roles)


def box_of(element):
    return element.get_component_iface().get_extents(Atspi.CoordType.SCREEN)


def middle(element):
    box = box_of(element)
    return box.x + box.width // 2, box.y + box.height // 2


# What can be done to an element.

def click(element, times=1, button=1):
    xdo("mousemove", *middle(element), "click", "--repeat", times, "--delay", 60, button)


def drag(source, target):
    (x, y), (to_x, to_y) = middle(source), middle(target)
    steps = 10
    xdo("mousemove", x, y, "mousedown", 1)
    for step in range(1, steps + 1):
        xdo("mousemove", x + (to_x - x) * step // steps, y + (to_y - y) * step // steps,
            "sleep", 0.03)
    # The target is told of the pointer once it has come to rest.
    xdo("mousemove", to_x + 1, to_y, "sleep", 0.1, "mouseup", 1)


class Velmora:
    """One run of the program.

    `binary` is started as it lies, so it works on the data beside it. `environment` is added to
    that of this process; `process` is a run that somebody else has started. The main window is made the active one unless `activate` is false. Call
    end() in any case; it does nothing when the program has ended.
    """

    def __init__(self, binary, environment=None, activate=True, process=None):
        self.process = process or subprocess.Popen(
            [binary], cwd=pathlib.Path(binary).parent, stdin=subprocess.DEVNULL,
            env={**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "VELMORA_TEST_IDS": "1",
                 **(environment or {})})
        self.known = {}  # elements of the main window that were found by their object names
        try:
            self.root = wait_until(self._application, "the program on the accessibility bus")
            self.main = wait_until(self._main_window, "the main window")
            if activate:
                self.activate()
        except BaseException:
            self.end()
            raise

    def _application(self):
        if self.process.poll() is not None:
            raise NotSeen(f"the program ended with code {self.process.returncode}")
        for application in children(Atspi.get_desktop(0)):
            if application.get_process_id() == self.process.pid:
                return application
        return None

    def _main_window(self):
        for window in children(self.root):
            if is_showing(window) and any(child.get_role_name() == "menu bar"
                                          for child in children(window)):
                return window
        return None

    def windows(self):
        return [window for window in children(self.root) if is_showing(window)]

    def asks(self):
        """A message box is open, and the main window waits for its answer."""
        return any(window.get_role_name() == "alert" for window in self.windows())

    # Looking

    def find_all(self, id=None, name=None, role=None, within=None, showing=True):
        def fits(element):
            return ((id is None or identifier(element) == id)
                    and (name is None or element.get_name() == name)
                    and (role is None or element.get_role_name() == role)
                    and (not showing or is_showing(element)))
        # Lines and menu items have no object names, and there are many of them.
        closed = MANY_CHILDREN if id is not None else ()
        return [element for element in walk(within or self.root, closed) if fits(element)]

    def find(self, id=None, name=None, role=None, within=None, showing=True):
        """The first element that fits; waited for."""
        if id is not None and within is None and role is None and name is None:
            return wait_until(lambda: self._find_in_main_window(id, showing), f"the element {id}")
        return wait_until(
            lambda: next(iter(self.find_all(id, name, role, within, showing)), None),
            f"an element id={id} name={name} role={role}")

    def _find_in_main_window(self, id, showing):
        """As find_all(), but an element that was found before is looked at first."""
        if id in self.known:
            element = self.known.pop(id)
            with contextlib.suppress(GLib.Error):
                if identifier(element) == id and (not showing or is_showing(element)):
                    self.known[id] = element
                    return element
        found = self.find_all(id=id, within=self.main, showing=showing)
        if not found:
            return None
        self.known[id] = found[0]
        return found[0]

    def shows(self, id):
        """True when the main window has this element in view now."""
        return self._find_in_main_window(id, showing=True) is not None

    def text(self, id, within=None):
        return text_of(self.find(id=id, within=within, showing=False))

    def dialogs(self, title):
        """The windows and boxes of this title, without the main window."""
        return [window for window in self.windows()
                if identifier(window) != identifier(self.main) and window.get_name() == title]

    def dialog(self, title):
        """The window or box of this title; waited for, until it is the active one."""
        def active():
            return next((window for window in self.dialogs(title)
                         if has_state(window, Atspi.StateType.ACTIVE)), None)
        return wait_until(active, f"the window {title!r}")

    def text_of_box(self, box):
        """What a message box says."""
        return " ".join(element.get_name() for element in walk(box)
                        if element.get_role_name() == "label" and element.get_name())

    def is_open(self, title):
        return bool(self.dialogs(title))

    def wait_closed(self, title):
        wait_until(lambda: not self.is_open(title), f"the window {title!r} to close")

    # Acting

    def window_ids(self, title):
        """The numbers on the display of the windows of this title, of which there is one at least."""
        def on_display():
            # A search that finds nothing fails.
            with contextlib.suppress(NotSeen):
                return xdo("search", "--all", "--onlyvisible", "--pid", self.process.pid,
                           "--name", f"^{re.escape(title)}$").split()
            return None
        return wait_until(on_display, f"the window {title!r} on the display")

    def main_window_id(self):
        """The main window's number on the display."""
        return self.window_ids(self.main.get_name())[0]

    def activate(self):
        xdo("windowactivate", self.main_window_id())
        wait_until(lambda: has_state(self.main, Atspi.StateType.ACTIVE) or self.asks(),
                   "the window to be active")

    def click_id(self, id, within=None, times=1, button=1):
        click(self.find(id=id, within=within), times, button)

    def focus(self, id, within=None):
        """Clicks an element and returns it once it takes the keys."""
        element = self.find(id=id, within=within)
        click(element)
        wait_until(lambda: is_focused(element), f"the focus in {id}")
        return element

    def fill(self, id, text, within=None):
        """Replaces the text of an edit by typing it."""
        element = self.focus(id, within)
        key("ctrl+a")
        type_text(text)
        wait_until(lambda: text_of(element) == text, f"{text!r} in {id}")

    def answer(self, title, button):
        """Presses a button of the message box of this title and returns the box's text."""
        box = self.dialog(title)
        text = self.text_of_box(box)
        click(self.find(name=button, role="push button", within=box))
        self.wait_closed(title)
        return text

    def menu(self, *captions):
        """Picks an item of the menu bar, from head to item, by mouse.

        A menu closes when a window that was asked to close before goes only then: it is opened
        once more.
        """
        try:
            self._pick(captions, 5)
        except NotSeen:
            key("Escape")
            self._pick(captions, PATIENCE)

    def _pick(self, captions, seconds):
        for caption in captions:
            roles = ("menu item", "check menu item", "menu")
            item = wait_until(
                lambda text=caption: next((element for element in walk(self.main)
                                           if element.get_role_name() in roles
                                           and element.get_name() == text
                                           and is_showing(element)), None),
                f"the menu item {caption!r}", seconds)
            click(item)

    def point_nowhere(self):
        """Takes the pointer away from the window."""
        xdo("mousemove", 0, 999)

    # The phonebook

    def show_pane(self, name):
        """`name`: "Planner", "Phonebook" or "Dialer"."""
        index = ("Planner", "Phonebook", "Dialer").index(name)
        self.click_id(f"Picture1_{index}")
        seen = {0: "Label1", 1: "Picture4", 2: "Picture3"}[index]
        wait_until(lambda: self.shows(seen), f"the pane {name}")

    def list_items(self, within=None):
        """The items of `List1`: of the phonebook's, or of that of another window."""
        return [item for item in children(self.find(id="List1", within=within))
                if item.get_role_name() == "list item"]

    def list_lines(self, within=None):
        return [item.get_name() for item in self.list_items(within)]

    def list_item(self, line, within=None):
        return wait_until(
            lambda: next((item for item in self.list_items(within) if item.get_name() == line),
                         None),
            f"the line {line!r}")

    def wait_lines(self, lines, within=None):
        wait_until(lambda: self.list_lines(within) == lines,
                   f"the lines {lines}, not {self.list_lines(within)}")

    def letter(self, letter):
        index = 26 if letter == "#" else ord(letter) - ord("A")
        self.click_id(f"Command23_{index}")

    def select_line(self, line):
        click(self.list_item(line))
        wait_until(lambda: self.card() != "", f"the card of {line!r}")

    def card(self):
        """The text of the selected entry; empty when none is."""
        return self.text("Label17")

    # Ending

    def close(self):
        """Closes the main window and returns the program's exit code."""
        self.activate()
        key("alt+F4")
        return self.wait_end()

    def wait_end(self):
        return self.process.wait(timeout=PATIENCE)

    def end(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()


class Desk:
    """A folder of its own for one test: the program, its books and its settings.

    The settings are empty but for the one that hides the events of today at the start.
    """

    def __init__(self):
        self.base = pathlib.Path(tempfile.mkdtemp(prefix="velmora-e2e."))
        self.folder = self.base / "program"
        self.folder.mkdir()
        self.binary = self.folder / "velmora"
        shutil.copy2(self._built_program(), self.binary)
        self.environment = {"HOME": str(self.base / "home")}
        for name in ("CONFIG", "DATA", "CACHE", "STATE"):
            self.environment[f"XDG_{name}_HOME"] = str(self.base / name.lower())
        (self.base / "home").mkdir()
        self.settings = hide_events_at_start(self.environment["XDG_CONFIG_HOME"])
        self.running = []

    @staticmethod
    def _built_program():
        root = pathlib.Path(__file__).resolve().parents[2]
        return pathlib.Path(os.environ.get("VELMORA_PROGRAM", root / "build/release/velmora"))

    def start(self, activate=True, **environment):
        program = Velmora(self.binary, {**self.environment, **environment}, activate)
        self.running.append(program)
        return program

    def book(self, name):
        return self.folder / name

    def clear(self):
        for program in self.running:
            program.end()
        shutil.rmtree(self.base)
