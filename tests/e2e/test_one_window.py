"""Starts of one user on one folder share one window; the desktop finds it by its name."""

import os
import shutil
import subprocess
import unittest

import dbus

from desk_test import DeskTest
from velmora_driver import Atspi, Velmora, has_state, key, text_of, wait_until, xdo

NAME = "example.velmora.Velmora"


class OneWindow(DeskTest):
    def start_again(self, **environment):
        """A start that is to end by itself; its exit code."""
        done = subprocess.run([self.desk.binary], stdin=subprocess.DEVNULL, timeout=60,
                              env={**os.environ, **self.desk.environment, **environment})
        return done.returncode

    def wait_active(self, window):
        wait_until(lambda: has_state(window, Atspi.StateType.ACTIVE), "the window to be active")

    def test_a_second_start_brings_the_window_of_the_first_to_the_front(self):
        program = self.start()
        window = program.main_window_id()
        xdo("windowminimize", window)
        wait_until(lambda: not has_state(program.main, Atspi.StateType.ACTIVE),
                   "the window to be minimised")
        self.assertEqual(0, self.start_again())
        self.wait_active(program.main)
        self.assertEqual(0, self.start_again(XDG_ACTIVATION_TOKEN="a-token"))
        self.assert_closes_well()

    def test_a_dialog_that_is_open_comes_with_it(self):
        program = self.start()
        program.menu("Help", "About")
        about = wait_until(lambda: next(
            (window for window in program.windows()
             if window.get_name() != program.main.get_name()), None), "the about box")
        self.assertEqual(0, self.start_again())
        self.wait_active(about)
        key("Escape")
        self.assert_closes_well()

    def test_another_folder_other_settings_and_a_wish_for_another_have_windows_of_their_own(self):
        first = self.start()
        elsewhere = self.desk.base / "elsewhere"
        elsewhere.mkdir()
        shutil.copy2(self.desk.binary, elsewhere / "velmora")
        settings = str(self.desk.base / "other settings")
        for binary, more in ((elsewhere / "velmora", {}),
                             (self.desk.binary, {"XDG_CONFIG_HOME": settings}),
                             (self.desk.binary, {"VELMORA_ANOTHER": "1"})):
            other = Velmora(binary, {**self.desk.environment, **more}, activate=False)
            self.addCleanup(other.end)
            self.assertIsNone(first.process.poll())
            self.assertIsNone(other.process.poll())
            other.end()

    def test_a_link_to_the_folder_leads_to_the_same_window(self):
        self.start()
        link = self.desk.base / "link"
        link.symlink_to(self.desk.folder)
        done = subprocess.run([link / "velmora"], timeout=60,
                              env={**os.environ, **self.desk.environment})
        self.assertEqual(0, done.returncode)
        self.assert_closes_well()

    def test_one_that_was_killed_is_no_obstacle(self):
        self.start().end()
        self.start()
        self.assertEqual(0, self.start_again())
        self.assert_closes_well()

    def test_a_telephone_link_brings_its_number_and_dials_nothing(self):
        program = self.start()
        bus = dbus.SessionBus()
        wait_until(lambda: bus.name_has_owner(NAME), "the name on the bus")
        desktop = dbus.Interface(
            bus.get_object(NAME, "/" + NAME.replace(".", "/"), introspect=False),
            "org.freedesktop.Application")
        desktop.Open(["tel:+1-516-555-1212;ext=9"],
                     dbus.Dictionary({"activation-token": "a-token"}, signature="sv"))
        wait_until(lambda: program.shows("Label16"), "the Dialer pane")
        wait_until(lambda: text_of(program.find(id="Label16")) == "+15165551212", "the number")
        self.wait_active(program.main)
        self.assertFalse(self.desk.book("phonelog.txt").exists())
        bus.close()
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
