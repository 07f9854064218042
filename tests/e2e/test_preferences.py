"""The preferences, other programs and the end of the session, in real windows."""

import os
import subprocess
import unittest

import dbus
import dbusmock

import planner
from desk_test import DeskTest
from velmora_driver import click, key, text_of, type_text, wait_until

TITLE = "Preferences..."
ADVICE = ("If you have changed your network settings, you should exit the program and then run it "
          "again for best results.")
ROW = ("2020-01-01 08:00:00", "2026-03-12", "09:00 AM", "10:00 AM", "Breakfast", "Event")
SESSION_MANAGER = ("org.xfce.SessionManager", "/org/xfce/SessionManager", "org.xfce.Session.Manager")


class Preferences(DeskTest):
    def open(self):
        self.program.menu("Edit", "Setup Preferences...")
        return self.program.dialog(TITLE)

    def test_a_typed_value_is_stored_by_enter_and_nothing_by_escape(self):
        program = self.start()
        form = self.open()
        program.fill("Text9", "516", within=form)
        key("Return")
        program.wait_closed(TITLE)
        self.assertEqual("516", self.desk.settings.read("LocalAreaCode"))
        self.assertEqual("COM1", self.desk.settings.read("ComPort"))
        before = {name: self.desk.settings.read(name) for name in self.desk.settings.keys("")}
        form = self.open()
        self.assertEqual("516", text_of(program.find(id="Text9", within=form)))
        program.fill("Text9", "212", within=form)
        key("ctrl+Tab")
        key("Escape")
        program.wait_closed(TITLE)
        self.assertEqual(before, {name: self.desk.settings.read(name) for name in before})
        self.assert_closes_well()

    def test_the_planner_moves_to_another_folder_and_is_there_at_the_next_start(self):
        shared = self.desk.base / "shared"
        shared.mkdir()
        planner.make_database(self.desk.book("qel.mdb"), [ROW])
        program = self.start()
        form = self.open()
        key("ctrl+Tab")
        program.fill("Text15", str(shared), within=form)
        key("Return")
        self.assertEqual(ADVICE, program.answer("Velmora", "OK"))
        program.wait_closed(TITLE)
        self.assertEqual([ROW], planner.rows_of(shared / "qel.mdb"))
        self.assertEqual(str(shared), self.desk.settings.read("Calendar"))
        self.assert_closes_well()

    def test_help_opens_over_the_preferences_and_closes_before_them(self):
        program = self.start()
        form = self.open()
        click(program.find(name="Help", role="push button", within=form))
        page = program.find(id="Browser1", within=program.dialog("Velmora Help"))
        wait_until(lambda: text_of(page).startswith("Preferences"), "the page of the help")
        key("Escape")
        program.wait_closed("Velmora Help")
        program.dialog(TITLE)
        key("Escape")
        program.wait_closed(TITLE)
        self.assert_closes_well()


class OtherPrograms(DeskTest):
    def test_run_starts_what_was_typed(self):
        started = self.desk.base / "started by run"
        program = self.start()
        program.menu("File", "Run...")
        program.dialog("Run...")
        type_text(f'touch "{started}"')
        key("Return")
        program.wait_closed("Run...")
        wait_until(started.exists, "the program")
        self.assert_closes_well()


class EndOfSession(DeskTest):
    def setUp(self):
        super().setUp()
        self.program = self.start()

    def exit_windows(self):
        self.program.menu("File", "Exit Windows...")
        box = self.program.dialog("Exit Windows")
        self.assertEqual("This will end the current Windows Session.",
                         self.program.text_of_box(box))
        click(self.program.find(name="OK", role="push button", within=box))

    def test_without_a_session_manager_it_is_told_and_all_goes_on(self):
        self.exit_windows()
        # The box that tells it has the title of the one before.
        refusal = "Unable to Exit Windows at this time."
        wait_until(lambda: any(refusal in self.program.text_of_box(box)
                               for box in self.program.dialogs("Exit Windows")), "the refusal")
        self.assertIn(refusal, self.program.answer("Exit Windows", "OK"))
        self.assert_closes_well()

    def test_the_session_manager_of_the_desktop_is_asked(self):
        name, path, interface = SESSION_MANAGER
        process = subprocess.Popen(["/usr/bin/python3", "-m", "dbusmock", "--session", name, path,
                                    interface], env=os.environ, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.terminate)
        bus = dbus.SessionBus()
        wait_until(lambda: bus.name_has_owner(name), "the session manager")
        mock = dbus.Interface(bus.get_object(name, path), dbusmock.MOCK_IFACE)
        mock.AddMethod(interface, "Logout", "bb", "", "")
        self.exit_windows()
        wait_until(lambda: len(mock.GetMethodCalls("Logout")) == 1, "the request")
        self.assertEqual([False, True], [bool(value) for value in
                                         mock.GetMethodCalls("Logout")[0][1]])
        self.program.wait_closed("Exit Windows")
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
