#!/usr/bin/python3
"""Opens Velmora and its windows one after the other, by keys alone, and looks whether each fits the
screen: the frame inside, the buttons inside the frame.

Usage: tests/e2e/screen_walk.py WIDTH HEIGHT SCALE

WIDTH and HEIGHT are those of the screen in device pixels, SCALE of which make one of ours. Ends with 1, and one line for each thing
that does not fit. Runs on a display of its own: test_screens.py starts it.
"""

import re
import subprocess
import sys

from velmora_driver import Desk, box_of, key, wait_until, xdo

PANES = ("Planner", "Phonebook", "Dialer")

# The keys that open a window, and how its title begins.
WINDOWS = (
    (("alt+h", "a"), "Add"),
    (("alt+h", "s"), "Search V.L.M. Database"),
    (("alt+p", "d"), "Datewarden"),
    (("alt+p", "w"), "Week at Glance"),
    (("alt+a", "Down", "Return"), "Alarms..."),
    (("alt+t", "t"), "Task Manager - To Do"),
    (("alt+t", "w"), "Weekly Repetitive Tasks"),
    (("alt+t", "m"), "Monthly Repetitive Tasks"),
    (("alt+o", "c"), "Font"),
    (("ctrl+f",), "Search..."),
    (("F1",), "Velmora Help"),
    (("alt+f", "Left", "a"), "About Velmora"),
)


def window_geometry(window):
    """(left, top, right, bottom) of a window's frame in device pixels."""
    # The place that xdotool tells counts the frame twice.
    told = subprocess.run(["xwininfo", "-id", window], capture_output=True, text=True,
                          check=True).stdout
    left, top, width, height = (int(re.search(name + r":\s+(-?\d+)", told)[1]) for name in
                                ("Absolute upper-left X", "Absolute upper-left Y", "Width",
                                 "Height"))
    frame = subprocess.run(["xprop", "-id", window, "_NET_FRAME_EXTENTS"], capture_output=True,
                           text=True, check=True).stdout
    sides = [int(side) for side in re.findall(r"\d+", frame.partition("=")[2])] or [0] * 4
    return (left - sides[0], top - sides[2], left + width + sides[1], top + height + sides[3])


class Walk:
    def __init__(self, width, height, scale):
        self.size = (int(width), int(height))
        # On the smallest screens the desk scrolls up and down.
        self.desk_scrolls = self.size[1] / float(scale) < 600
        self.problems = []
        self.desk = Desk()
        self.program = self.desk.start()

    def end(self):
        self.desk.clear()

    def look_at_frame(self, name, window):
        left, top, right, bottom = window_geometry(window)
        if left < 0 or top < 0 or right > self.size[0] or bottom > self.size[1]:
            self.problems.append(f"{name}: its frame is at {left}, {top} to {right}, {bottom}")

    def look_at_buttons(self, name, window, scrolls=False):
        outside = box_of(window)
        for button in self.program.find_all(role="push button", within=window):
            box = box_of(button)
            if (box.x < outside.x or box.x + box.width > outside.x + outside.width
                    or not scrolls and (box.y < outside.y or box.y + box.height
                                        > outside.y + outside.height)):
                self.problems.append(f"{name}: {button.get_name()!r} is cut off")

    def main_window(self):
        self.look_at_frame("the main window", self.program.main_window_id())
        for number, pane in enumerate(PANES):
            key(*(("alt+p", "Escape", "Escape"), ("alt+h", "Escape", "Escape"), ("alt+d",))[number])
            seen = ("Label1", "Picture4", "Picture3")[number]
            wait_until(lambda name=seen: self.program.shows(name), f"the pane {pane}")
            self.look_at_buttons(pane, self.program.main, self.desk_scrolls)

    def window(self, keys, title):
        self.program.activate()
        key(*keys)
        opened = wait_until(lambda: next((each for each in self.program.windows()
                                          if each != self.program.main
                                          and each.get_name().startswith(title)), None), title)
        number = self.program.window_ids(opened.get_name())[-1]
        self.look_at_frame(title, number)
        self.look_at_buttons(title, opened)
        name = opened.get_name()
        xdo("windowactivate", "--sync", number)
        key("Escape")
        self.program.wait_closed(name)


def main():
    walk = Walk(*sys.argv[1:4])
    try:
        walk.main_window()
        for keys, title in WINDOWS:
            walk.window(keys, title)
        if walk.program.close() != 0:
            walk.problems.append("it did not end well")
    finally:
        walk.end()
    print("\n".join(walk.problems))
    return 1 if walk.problems else 0


if __name__ == "__main__":
    sys.exit(main())
