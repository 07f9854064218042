#!/usr/bin/python3
"""A short day with Velmora, by keys alone, on X as on Wayland.

Usage: short_day.py COMMAND HOME NAME [BEFORE...]

Runs as the user whose day it is, in a session of tools/with-display. COMMAND starts the program;
its data lie in HOME. An entry of this last NAME is added and is found beside those of BEFORE. On
Wayland the day ends with a call and an alarm.
"""

import atexit
import datetime
import json
import os
import pathlib
import subprocess
import sys

import dbus
import dbus.lowlevel
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

import planner
from print_shop import lines_of
from settings import Settings
from velmora_driver import (MANY_CHILDREN, Atspi, NotSeen, Velmora, has_state, is_focused,
                            is_showing, text_of, walk, wait_until, xdo)

EVENTS = "Events for Today:"
ALERT = "Velmora - Alarm"
CALL = "Incoming Call Report"
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
        Settings(self.environment["XDG_CONFIG_HOME"]).save("CallerID", "ON")
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

    def act(self, chord, condition, what):
        """Presses keys until the condition holds: while the focus goes from one window to another,
        as between menus, some systems drop what is pressed."""
        for _ in range(8):
            self.keys.press(chord)
            try:
                return wait_until(condition, what, 4)
            except NotSeen:
                pass
        return wait_until(condition, what)

    def type_into(self, element, text):
        self.act("ctrl+a", lambda: is_focused(element), "the focus")
        self.keys.type(text)
        wait_until(lambda: text_of(element) == text, f"{text!r}")

    def shows_item(self, name):
        return any(element.get_name() == name and is_showing(element)
                   for element in walk(self.program.main)
                   if "menu item" in element.get_role_name())

    def tab_to(self, identifier, within=None):
        element = self.program.find(id=identifier, within=within)
        for _ in range(80):
            if is_focused(element):
                return element
            before = self.focused()
            self.keys.press("Tab")
            # The next one only when this has been taken, or it would lead past the element.
            try:
                wait_until(lambda seen=before: self.focused() != seen, "the next focus", 2)
            except NotSeen:
                pass
        raise NotSeen(f"the focus in {identifier}; it is in {self.focused()}, of the windows "
                      f"{[window.get_name() for window in self.program.windows()]}")

    def focused(self):
        """The names of what has the focus, in all windows."""
        return [(element.get_role_name(), element.get_description())
                for element in walk(self.program.root, MANY_CHILDREN) if is_focused(element)]

    def phonebook_command(self, letter, title):
        """Picks an item of the Phonebook menu, the fifth of the bar, which opens a window."""
        for chord, item in (("alt+f", "Exit"), ("Right", "Cut"), ("Right", "Choose Font- DocPad"),
                            ("Right", "Datewarden"), ("Right", "Add Entry...")):
            self.act(chord, lambda name=item: self.shows_item(name), f"the menu with {item!r}")
        self.act(letter, lambda: self.program.is_open(title), title)
        return self.program.dialog(title)

    def rows(self):
        return [row[4] for row in planner.rows_of(self.data / "qel.mdb")]

    def begin(self):
        wait_until(lambda: self.program.dialogs(EVENTS), EVENTS)
        wait_until(lambda: any(has_state(window, Atspi.StateType.ACTIVE)
                               for window in self.program.dialogs(EVENTS)), "its focus")
        self.act("Escape", lambda: not self.program.is_open(EVENTS), "its end")
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
        form = self.phonebook_command("a", "Add Entry")
        for field, text in (("Text2", "Ann"), ("Text3", self.name), ("Text9", "5551212")):
            self.type_into(self.tab_to(field, form), text)
        self.act("Return", lambda: not self.program.is_open("Add Entry"), "the end of the form")
        self.program.wait_lines([f"{name}, Ann" for name in sorted([*self.before, self.name])])

    def select_entry(self):
        self.tab_to("List1")
        first = min([*self.before, self.name])
        self.act("Home", lambda: first in self.program.card(), f"the card of {first}")
        if self.name != first:
            self.act("Down", lambda: self.name in self.program.card(), f"the card of {self.name}")

    def copy(self):
        self.act("ctrl+c", lambda: self.name in self.keys.clipboard(), "the card on the clipboard")

    def schedule(self):
        form = "Schedule Event"
        self.act("shift+F10", lambda: self.shows_item("Move Entry"), "the menu of the entry")
        self.act("s", lambda: self.shows_item("Lunch With"), "the menu of appointments")
        self.act("l", lambda: self.program.is_open(form), form)
        self.program.dialog(form)
        self.act("alt+a", lambda: not self.program.is_open(form), "the end of the form")
        wait_until(lambda: any(row.startswith("Lunch with") and self.name in row
                               for row in self.rows()), "the lunch in the planner")

    def print_entry(self):
        dialog = self.phonebook_command("u", PDF)
        sheet = self.home / f"{self.name}.pdf"
        self.type_into(self.program.find(id="fileNameEdit", within=dialog), str(sheet))
        self.act("Return", lambda: not self.program.is_open(PDF), "the end of the dialog")
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
        self.last = 0
        self.clear()

    def clear(self):
        self.shown, self.closed = {}, []

    def call(self, number):
        """A call as a mobile telephone that is paired with the desktop tells it."""
        ringing = dbus.lowlevel.SignalMessage("/modules/kdeconnect/devices/a1/telephony",
                                              "org.kde.kdeconnect.device.telephony", "callReceived")
        ringing.append("callReceived", number, "Ann", signature="sss")
        self.bus.send_message(ringing)

    @dbus.service.method(BOARD, in_signature="susssasa{sv}i", out_signature="u")
    def Notify(self, program, replaces, icon, title, text, actions, hints, expires):
        self.last += 0 if replaces else 1
        number = replaces or self.last
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


def answer(day, board, title, said):
    """Clicks the notice of the window of this title; `said` is its head and its text."""
    board.wait(lambda: board.shown, f"the notice {said}", TWO_MINUTES)
    (number, (head, text, actions, hints, expires)), = board.shown.items()
    seen = (head, text, actions[0], int(hints["urgency"]), expires, str(hints["desktop-entry"]))
    wanted = (*said, "default", 2, 0, app_id())
    if seen != wanted:
        raise NotSeen(f"the notice {wanted}, not {seen}")
    window = wait_until(lambda: next(iter(day.program.dialogs(title)), None), title)
    board.ActionInvoked(number, "default")
    board.wait(lambda: has_state(window, Atspi.StateType.ACTIVE), f"{title!r} to have the keys")
    if board.closed:
        raise NotSeen("the notice while its window is open")
    day.act("Escape", lambda: not day.program.is_open(title), f"the end of {title!r}")
    board.wait(lambda: board.closed == [number], "the notice to go with its window")
    board.clear()


def tell(day, board):
    """A call and an alarm are told by notices, too, which bring their windows when clicked."""
    board.call("5551212")
    answer(day, board, CALL, ("Incoming Call", "From: 5551212"))
    day.set_alarms()
    answer(day, board, ALERT, (ALERT, "Leave for &lt;the&gt; train"))


def main():
    command, home, name, *before = sys.argv[1:]
    board = NoticeBoard() if on_wayland() else None
    day = Day(command, home, name, before)
    try:
        day.spend()
        if board:
            tell(day, board)
            print("app id", app_id(), flush=True)
        day.close()
    finally:
        day.end()


if __name__ == "__main__":
    main()
