"""The window opens, shows what it should, and goes."""

import os
import random
import subprocess
import unittest

from books import record
from desk_test import DeskTest
from velmora_driver import is_enabled, key, middle, wait_until, xdo


class StartAndClose(DeskTest):
    def test_starts_without_any_data(self):
        self.desk.settings.remove("EventStart")
        program = self.start()
        self.assertEqual("Velmora", program.main.get_name())
        wait_until(lambda: program.is_open("Events for Today:"), "the events of today")
        self.assertTrue(program.shows("Label1"))
        self.assertEqual([], program.list_lines())
        self.assert_books(yellow=b"", white=None)
        self.assert_closes_well()

    def test_closing_leaves_the_books_alone(self):
        book = record(Last="Adair", First="Lucian", Phone="(312) 555-0195")
        self.start_in_phonebook(book, book)
        self.assert_closes_well()
        self.assert_books(book, book)

    def test_the_exit_command_ends_it(self):
        program = self.start()
        program.menu("File", "Exit")
        self.assertEqual(0, program.wait_end())

    def test_the_exit_command_is_reached_by_keys(self):
        program = self.start()
        key("alt+f", "x")
        self.assertEqual(0, program.wait_end())

    def test_panes_switch(self):
        program = self.start()
        for pane, shown, list_enabled in (("Phonebook", "Label17", True), ("Dialer", "Label16", False),
                                          ("Planner", "Label1", False)):
            with self.subTest(pane):
                program.show_pane(pane)
                for id in ("Label17", "Label16", "Label1"):
                    self.assertEqual(id == shown, program.shows(id), id)
                self.assertEqual(list_enabled, is_enabled(program.find(id="List1")))

    def test_the_window_comes_back_centred_in_the_size_that_it_had(self):
        def geometry():
            told = xdo("getwindowgeometry", "--shell", self.program.main_window_id()).split()
            return {name: int(value) for name, value in (word.split("=") for word in told)}

        self.start()
        xdo("windowmove", "--sync", self.program.main_window_id(), 3, 60)
        xdo("windowsize", "--sync", self.program.main_window_id(), 1210, 702)
        wait_until(lambda: geometry()["WIDTH"] == 1210, "the new width")
        self.assert_closes_well()
        self.start()
        place = geometry()
        self.assertEqual((1210, 702), (place["WIDTH"], place["HEIGHT"]))
        self.assertLess(abs(place["X"] - (1400 - 1210) // 2), 20)
        self.assertLess(abs(place["Y"] - (1000 - 702) // 2), 60)

    def test_hovering_over_a_pane_button_tells_what_it_does(self):
        program = self.start()
        for index, text in enumerate(("Activates the Daily Planner", "Activates the Phonebook.",
                                      "Activates the Telephone/Voice Mail Dialer.")):
            xdo("mousemove", *middle(program.find(id=f"Picture1_{index}")))
            program.find(name=text)


class Tray(DeskTest):
    def minimise(self):
        window = self.program.main_window_id()
        xdo("windowminimize", window)
        wait_until(lambda: self.state_of(window) == "Iconic", "the window to be an icon")
        return window

    @staticmethod
    def state_of(window):
        done = subprocess.run(["xprop", "-id", window, "WM_STATE"], capture_output=True, text=True)
        return "Iconic" if "Iconic" in done.stdout else "Normal" if "Normal" in done.stdout else ""

    @staticmethod
    def click_tray(times, button):
        tray = xdo("search", "--onlyvisible", "--class", "trayer").split()[0]

        def place():
            words = xdo("getwindowgeometry", "--shell", tray).split()
            return {name: int(value) for name, value in (word.split("=") for word in words)}

        # Without an icon the tray is a few pixels wide.
        box = wait_until(lambda: place() if place()["WIDTH"] >= 16 else None, "the tray icon")
        xdo("mousemove", box["X"] + box["WIDTH"] // 2, box["Y"] + box["HEIGHT"] // 2,
            "click", "--repeat", times, "--delay", 60, button)

    def test_a_double_click_restores_the_window(self):
        self.start()
        for name, button in (("left", 1), ("right", 3)):
            with self.subTest(name):
                window = self.minimise()
                self.click_tray(2, button)
                wait_until(lambda: self.state_of(window) == "Normal", "the window to come back")
                wait_until(lambda: xdo("getactivewindow") == window, "the window to be in front")
        self.assert_closes_well()

    def test_a_single_click_does_nothing(self):
        self.start()
        window = self.minimise()
        self.click_tray(1, 1)
        # A second icon of the program would answer later than this; a restore would be seen.
        self.program.find(id="Label8", showing=False)
        self.assertEqual("Iconic", self.state_of(window))


class StrangeFolders(DeskTest):
    def test_a_book_that_is_cut_short_is_read_as_far_as_it_goes(self):
        book = record(Last="Adair", First="Lucian") + record(Last="Avery", First="Silas")[:700]
        program = self.start_in_phonebook(book)
        program.wait_lines(["Adair, Lucian", "Avery, Silas"])
        program.select_line("Avery, Silas")
        self.assert_closes_well()
        self.assert_books(book)

    def test_a_book_of_any_bytes_is_read_and_left_alone(self):
        letters = "A" * 20 + ", " + "A" * 15
        noise = random.Random(1).randbytes(20 * 1595 + 7)
        for name, book, lines in (("one byte", b"A", []), ("NULs", bytes(5 * 1595), []),
                                  ("letters", b"A" * 3000, [letters, letters]),
                                  ("noise", noise, None)):
            with self.subTest(name):
                program = self.start_in_phonebook(book)
                if lines is not None:
                    program.wait_lines(lines)
                program.letter("#")
                program.letter("Z")
                if lines is not None:
                    program.wait_lines([])
                self.assert_closes_well()
                self.assert_books(book)

    def test_a_folder_that_may_not_be_written_is_not_used_for_data(self):
        """The program's folder is read-only, as after a system-wide installation."""
        if not self.make_read_only():
            self.skipTest("no read-only folder can be made here: neither chattr nor mount is allowed")
        program = self.start_in_phonebook()
        self.assertEqual([], program.list_lines())
        self.assertFalse(self.yellow.exists())
        found = list((self.desk.base / "data").rglob("DATAY.QEL"))
        self.assertEqual(1, len(found), found)
        self.assert_closes_well()

    def make_read_only(self):
        folder = str(self.desk.folder)
        if os.geteuid() != 0:
            os.chmod(folder, 0o555)
            self.addCleanup(os.chmod, folder, 0o755)
        elif self.ran("chattr", "+i", folder):
            self.addCleanup(self.ran, "chattr", "-i", folder)
        elif self.ran("mount", "--bind", "-o", "ro", folder, folder):
            self.addCleanup(self.ran, "umount", folder)
        return not os.access(folder, os.W_OK) or not self.can_write()

    def can_write(self):
        try:
            (self.desk.folder / "probe").write_bytes(b"")
        except OSError:
            return False
        (self.desk.folder / "probe").unlink()
        return True

    @staticmethod
    def ran(*words):
        return subprocess.run(words, capture_output=True).returncode == 0


if __name__ == "__main__":
    unittest.main()
