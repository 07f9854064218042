"""The planner seen from outside: its database, read by itself, and its controls."""

import datetime
import sqlite3
import subprocess

from velmora_driver import box_of, children, click, has_state, is_focused, key, type_text, wait_until

from gi.repository import Atspi

COLUMNS = ("TagVariant", "Date", "BeginTime", "EndTime", "Desc", "StyleSet")
RED = b"\xff\x00\x00"


def make_database(path, rows):
    """Lays down a planner database; a row is a tuple in the order of COLUMNS."""
    columns = ", ".join(f'"{name}" TEXT' for name in COLUMNS)
    with connection(path) as database:
        database.execute(f"CREATE TABLE appoint ({columns})")
        database.executemany("INSERT INTO appoint VALUES (?, ?, ?, ?, ?, ?)", rows)


class connection:
    """A connection that is closed at the end of the block, with its changes kept."""

    def __init__(self, path):
        self.database = sqlite3.connect(path)

    def __enter__(self):
        return self.database

    def __exit__(self, kind, *_):
        if kind is None:
            self.database.commit()
        self.database.close()


def rows_of(path):
    """All rows in the order of their creation."""
    with connection(f"file:{path}?mode=ro") as database:
        names = ", ".join(f'"{name}"' for name in COLUMNS)
        return database.execute(f"SELECT {names} FROM appoint ORDER BY rowid").fetchall()


def stored(date):
    return date.isoformat()


def spoken(date):
    """The name of a day in the calendars."""
    months = ("January February March April May June July August September October November "
              "December").split()
    return f"{date.day} {months[date.month - 1]} {date.year}"


def another_day():
    """A day of the present month that is neither today nor near the ends of the month."""
    today = datetime.date.today()
    return today.replace(day=15 if today.day != 15 else 16)


def part(program, control, name):
    """The day, block or arrow of this name in a painted control; its name may go on."""
    return wait_until(
        lambda: next((part for part in children(program.find(id=control))
                      if part.get_name() == name or part.get_name().startswith(name + ", ")), None),
        f"{name!r} in {control}")


def day_cell(program, date):
    return part(program, "SSMonth1", spoken(date))


def is_chosen(program, date):
    return has_state(day_cell(program, date), Atspi.StateType.SELECTED)


def choose(program, date):
    """Chooses a day that the month has on show."""
    click(day_cell(program, date))
    wait_until(lambda: is_chosen(program, date), f"{date} to be chosen")


def blocks(program):
    """The names of the blocks of the day on show: text and times."""
    return [child.get_name() for child in children(program.find(id="SSDay1"))
            if child.get_role_name() == "list item"]


def block(program, text):
    return part(program, "SSDay1", text)


def has_red_number(element):
    """Whether the screen shows a pixel of exactly red there."""
    box = box_of(element)
    pixels = subprocess.run(
        ["import", "-silent", "-window", "root", "-crop",
         f"{box.width}x{box.height}+{box.x}+{box.y}", "+repage", "-depth", "8", "rgb:-"],
        capture_output=True, check=True).stdout
    return any(pixels[at:at + 3] == RED for at in range(0, len(pixels), 3))


def focus_day_view(program):
    """Goes to the day view by Tab."""
    day = program.find(id="SSDay1")
    for _ in range(60):
        if is_focused(day):
            return
        key("Tab")
    wait_until(lambda: is_focused(day), "the focus in the day view")


def type_appointment(program, text, slots_after_midnight):
    """Types an appointment into the day view by keys alone, and waits for its block."""
    focus_day_view(program)
    key("Home", *["Down"] * slots_after_midnight)
    type_text(text)
    key("Return")
    block(program, text)


def set_number(program, form, arrows, value, large_step):
    """Sets one of the four numbers of the form `Schedule` by keys."""
    element = program.find(id=arrows, within=form)
    click(element)
    wait_until(lambda: is_focused(element), f"the focus in {arrows}")
    key("Home", *["Prior"] * (value // large_step), *["Up"] * (value % large_step))


def set_times(program, form, begin, end):
    """`begin` and `end`: pairs of hour and minute."""
    for (hour_arrows, minute_arrows, hour_label, minute_label), (hour, minute) in (
            (("VScroll1", "VScroll2", "Label1", "Label2"), begin),
            (("VScroll4", "VScroll3", "Label7", "Label6"), end)):
        set_number(program, form, hour_arrows, hour, 12)
        set_number(program, form, minute_arrows, minute, 30)
        for label, value in ((hour_label, hour), (minute_label, minute)):
            wait_until(lambda at=label, text=f"{value:02}": program.text(at, within=form) == text,
                       f"{value} in {label}")
