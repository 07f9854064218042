#!/usr/bin/python3
"""A short day with Velmora, by keys alone, on X as on Wayland.

Usage: short_day.py COMMAND HOME NAME [BEFORE...]

Runs as the user whose day it is, in a session of tools/with-display. COMMAND starts the program;
its data lie in HOME. An entry of this last NAME is added and is found beside those of BEFORE. On
Wayland the day ends with an alarm.
"""

import atexit
import datetime
import json
import os
import pathlib
import subprocess
import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

import planner
from print_shop import lines_of
from settings import Settings
from velmora_driver import Atspi, NotSeen, Velmora, has_state, is_focused, wait_until, xdo

EVENTS = "Events for Today:"
ALERT = "Velmora - Alarm"
PDF = "Print to PDF"
TWO_MINUTES = 130  # seconds; an alarm of this minute or the next has rung by then
BOARD = "org.freedesktop.Notifications"


def output(*words):
    """What a command said; nothing where it failed, as on an empty clipboard."""
    done = subprocess.run(words, capture_output=True, text=True)
    return "" if done.returncode else done.stdout


def run(*words):
    done = subprocess.run(words, capture_output=True, text=True)
    if done.returncode:
        raise NotSeen(f"{words}: {done.stderr}")
    return done.stdout


class OnX:
    def press(self, *chords):
        for chord in chords:
            xdo("key", "--delay", 20, chord)

    def type(self, text):
        xdo("type", "--delay", 15, "--", text)

    def clipboard(self):
        return output("xclip", "-selection", "clipboard", "-out")


class OnWayland:
    def __init__(self):
        # The seat has a keyboard as long as one of these runs; a window that is only just told of
        # it misses its first key.
        self.keyboard = subprocess.Popen(["wtype", "-s", "10000000"])
        atexit.register(self.keyboard.kill)

    def press(self, *chords):
        for chord in chords:
            *held, key = chord.split("+")
            run("wtype", *(word for name in held for word in ("-M", name)), "-k", key,
                *(word for name in held for word in ("-m", name)))

    def type(self, text):
        run("wtype", "-d", "15", text)

    def clipboard(self):
        return output("wl-paste", "--no-newline")


def on_wayland():
    return os.environ["XDG_SESSION_TYPE"] == "wayland"


class Day:
    def __init__(self, command, home, name, before):
        self.keys = OnWayland() if on_wayland() else OnX()
        self.home, self.name, self.before = pathlib.Path(home), name, before
        self.environment = {"HOME": home}
        for kind, folder in (("CONFIG", ".config"), ("DATA", ".local/share"), ("CACHE", ".cache"),
                             ("STATE", ".local/state")):
            self.environment[f"XDG_{kind}_HOME"] = f"{home}/{folder}"
        self.data = self.home / ".local/share/velmora"
        # No print system: what is printed becomes a file.
        self.environment["CUPS_SERVER"] = f"{home}/no-print-system"
        self.program = Velmora(command, self.environment, activate=False)

    def end(self):
        self.program.end()

    def set_alarms(self):
        """Of this minute and the next two, for this one may be over before it is looked at."""
        settings = Settings(self.environment["XDG_CONFIG_HOME"])
        now = datetime.datetime.now()
        family = f"Alarms\\{now:%m%d%Y}"
        for number in range(1, 4):
            moment = now + datetime.timedelta(minutes=number - 1)
            settings.save(f"{family}{number}T", f"{moment:%H:%M}")
            settings.save(f"{family}{number}M", "Leave for <the> train")
        settings.save(family, "3")

    def tab_to(self, identifier, within=None):
        element = self.program.find(id=identifier, within=within)
        for _ in range(80):
            if is_focused(element):
                return element
            self.keys.press("Tab")
        return wait_until(lambda: is_focused(element) and element, f"the focus in {identifier}")

    def phonebook_command(self, letter):
        """Picks an item of the Phonebook menu, the fifth of the menu bar."""
        self.keys.press("alt+f", "Right", "Right", "Right", "Right")
        self.program.find(name="Add Entry...", role="menu item")
        self.keys.press(letter)

    def rows(self):
        return [row[4] for row in planner.rows_of(self.data / "qel.mdb")]

    def begin(self):
        wait_until(lambda: self.program.dialogs(EVENTS), EVENTS)
        wait_until(lambda: any(has_state(window, Atspi.StateType.ACTIVE)
                               for window in self.program.dialogs(EVENTS)), "its focus")
        self.keys.press("Escape")
        self.program.wait_closed(EVENTS)
        wait_until(lambda: has_state(self.program.main, Atspi.StateType.ACTIVE),
                   "the main window's focus")

    def write_appointment(self):
        self.tab_to("SSDay1")
        self.keys.press("Home", *["Down"] * (16 + 4 * len(self.before)))
        text = f"Breakfast {self.name}"
        self.keys.type(text)
        self.keys.press("Return")
        wait_until(lambda: text in self.rows(), f"{text!r} in the planner")

    def add_entry(self):
        self.phonebook_command("a")
        form = self.program.dialog("Add Entry")
        for field, text in (("Text2", "Ann"), ("Text3", self.name), ("Text9", "5551212")):
            self.tab_to(field, form)
            self.keys.type(text)
        self.keys.press("Return")
        self.program.wait_closed("Add Entry")
        self.program.wait_lines([f"{name}, Ann" for name in sorted([*self.before, self.name])])

    def select_entry(self):
        self.tab_to("List1")
        self.keys.press("Home")
        for _ in self.before:
            if self.name not in self.program.card():
                self.keys.press("Down")
        wait_until(lambda: f"{self.name}" in self.program.card(), "the card")

    def copy(self):
        self.keys.press("ctrl+c")
        wait_until(lambda: self.name in self.keys.clipboard(), "the card on the clipboard")

    def schedule(self):
        self.keys.press("shift+F10")
        self.program.find(name="Move Entry", role="menu item")
        self.keys.press("s")
        self.program.find(name="Lunch With", role="menu item")
        self.keys.press("l")
        self.program.dialog("Schedule Event")
        self.keys.press("alt+a")
        self.program.wait_closed("Schedule Event")
        wait_until(lambda: any(row.startswith("Lunch with") and self.name in row
                               for row in self.rows()), "the lunch in the planner")

    def print_entry(self):
        self.phonebook_command("u")
        self.program.dialog(PDF)
        sheet = self.home / f"{self.name}.pdf"
        self.keys.press("ctrl+a")
        self.keys.type(str(sheet))
        self.keys.press("Return")
        self.program.wait_closed(PDF)
        wait_until(sheet.exists, "the sheet")
        wait_until(lambda: any(self.name in line for line in lines_of(sheet)), "the printed name")

    def close(self):
        self.keys.press("ctrl+q")
        code = self.program.wait_end()
        if code:
            raise NotSeen(f"the program ended with {code}")

    def spend(self):
        self.begin()
        self.write_appointment()
        self.add_entry()
        self.select_entry()
        self.copy()
        self.schedule()
        self.print_entry()


class NoticeBoard(dbus.service.Object):
    """The notifications of this session: what is shown, and what was taken away."""

    def __init__(self):
        DBusGMainLoop(set_as_default=True)
        self.bus = dbus.SessionBus()
        self.name = dbus.service.BusName(BOARD, self.bus)
        super().__init__(self.bus, "/org/freedesktop/Notifications")
        self.shown, self.closed = {}, []

    @dbus.service.method(BOARD, in_signature="susssasa{sv}i", out_signature="u")
    def Notify(self, program, replaces, icon, title, text, actions, hints, expires):
        number = replaces or len(self.shown) + 1
        self.shown[int(number)] = (str(title), str(text), list(actions), dict(hints), int(expires))
        return number

    @dbus.service.method(BOARD, in_signature="u")
    def CloseNotification(self, number):
        self.closed.append(int(number))

    @dbus.service.signal(BOARD, signature="us")
    def ActionInvoked(self, number, action):
        pass

    def wait(self, condition, what, seconds=20):
        def turned():
            while GLib.MainContext.default().iteration(False):
                pass
            return condition()
        return wait_until(turned, what, seconds)


def app_id():
    """Under which name the compositor has the windows of the only program there is."""
    def ids(node):
        found = [node["app_id"]] if node.get("app_id") else []
        for child in node.get("nodes", []) + node.get("floating_nodes", []):
            found += ids(child)
        return found
    (name,) = set(ids(json.loads(run("swaymsg", "-t", "get_tree"))))
    return name


def ring(day, board):
    """An alarm is told by a notice, too, which brings the alert when it is clicked."""
    day.set_alarms()
    board.wait(lambda: board.shown, "the notice", TWO_MINUTES)
    (number, (title, text, actions, hints, expires)), = board.shown.items()
    said = (title, text, actions[0], int(hints["urgency"]), expires, str(hints["desktop-entry"]))
    wanted = (ALERT, "Leave for &lt;the&gt; train", "default", 2, 0, app_id())
    if said != wanted:
        raise NotSeen(f"the notice {wanted}, not {said}")
    alert = wait_until(lambda: next(iter(day.program.dialogs(ALERT)), None), "the alert")
    board.ActionInvoked(number, "default")
    board.wait(lambda: has_state(alert, Atspi.StateType.ACTIVE), "the alert to have the keys")
    if board.closed:
        raise NotSeen("the notice while the alert is open")
    day.keys.press("Return")
    board.wait(lambda: board.closed == [number], "the notice to go with the alert")
    day.program.wait_closed(ALERT)


def main():
    command, home, name, *before = sys.argv[1:]
    board = NoticeBoard() if on_wayland() else None
    day = Day(command, home, name, before)
    try:
        day.spend()
        if board:
            ring(day, board)
            print("app id", app_id(), flush=True)
        day.close()
    finally:
        day.end()


if __name__ == "__main__":
    main()
