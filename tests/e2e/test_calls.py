"""Calls that come in from the telephone services of the desktop, in real windows."""

import os
import socket
import subprocess
import tempfile
import unittest

from gi.repository import Atspi

from books import record
from desk_test import DeskTest
from telephone_exchange import TelephoneExchange
from velmora_driver import click, has_state, is_enabled, key, text_of, type_text, wait_until, xdo

TITLE = "Incoming Call Report"
ANN = record(First="Ann", Last="Adair", WorkPhone="(516) 555-1212", Memo="Likes tea")
ACME = record(Company="Acme Tools", Fax="555-1212")


class Calls(DeskTest):
    def setUp(self):
        super().setUp()
        # The services of the session lie on the display's own bus, as those of a desktop do.
        self.exchange = TelephoneExchange(session=os.environ["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(self.exchange.end)
        self.desk.settings.save("CallerID", "ON")
        self.desk.settings.save("LogPhone", "1")

    def ring(self, service, number):
        """Rings until it is heard: the program joins the buses when its window is there."""
        def heard():
            self.exchange.call(service, number)
            return self.program.is_open(TITLE)
        wait_until(heard, "the report of the call")
        return next(iter(self.program.dialogs(TITLE)))

    def test_a_call_is_seen_while_the_user_goes_on_typing(self):
        program = self.program = self.start_in_phonebook(
            ANN, ACME, VELMORA_COUNTRY="US", **self.exchange.environment)
        program.focus("Text4")
        type_text("Dear ")
        self.exchange.start("kdeconnect")
        report = self.ring("kdeconnect", "+15165551212")
        type_text("Sir")
        wait_until(lambda: program.text("Text4") == "Dear Sir", "what was typed")
        self.assertTrue(has_state(program.main, Atspi.StateType.ACTIVE))
        wait_until(lambda: is_enabled(program.find(id="List1", within=report)), "the search's end")
        program.wait_lines(["Y: Adair, Ann", "W: Acme Tools"], within=report)
        self.assertEqual(text_of(program.find(id="Number", within=report)), "5165551212")
        click(program.list_item("Y: Adair, Ann", within=report))
        wait_until(lambda: "Likes tea" in program.find(id="Label1", within=report).get_name(),
                   "the card")
        self.assertIn("\tIncoming\t5165551212\r\n",
                      self.desk.book("phonelog.txt").read_bytes().decode())
        click(program.find(id="NewEntry", within=report))
        form = program.dialog("Add Entry")
        self.assertEqual(text_of(program.find(id="Text9", within=form)), "5165551212")
        key("Escape")
        program.wait_closed("Add Entry")
        click(program.find(id="Command1", within=report))
        program.wait_closed(TITLE)

    def test_modem_services_are_heard_too(self):
        program = self.program = self.start_in_phonebook(ANN, **self.exchange.environment)
        self.exchange.start("ofono")
        report = self.ring("ofono", "5165551212")
        program.wait_lines(["Y: Adair, Ann"], within=report)
        self.assert_closes_well()

    def test_in_a_german_locale_a_number_with_the_code_of_germany_is_the_one_dialed_at_home(self):
        program = self.program = self.start_in_phonebook(
            record(First="Bert", Last="Brecht", Phone="030123456"), LC_ALL="", LANG="de_DE.UTF-8",
            VELMORA_COUNTRY="", **self.exchange.environment)
        self.exchange.start("ofono")
        report = self.ring("ofono", "+4930123456")
        program.wait_lines(["Y: Brecht, Bert"], within=report)
        self.assertEqual(text_of(program.find(id="Number", within=report)), "030123456")
        self.assert_closes_well()

    def silent_bus(self):
        """The address of a bus that takes connections and never says a word, and its socket."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        silent = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self.addCleanup(silent.close)
        silent.bind(f"{folder.name}/bus")
        silent.listen(8)
        silent.settimeout(20)
        return f"unix:path={folder.name}/bus", silent

    def test_a_system_bus_that_never_answers_holds_up_nothing(self):
        address, silent = self.silent_bus()
        program = self.program = self.start_in_phonebook(ANN, DBUS_SYSTEM_BUS_ADDRESS=address)
        connection = silent.accept()[0]
        self.addCleanup(connection.close)
        program.select_line("Adair, Ann")
        self.assert_closes_well()

    def test_a_session_bus_that_never_answers_holds_up_neither_start_nor_end(self):
        address, silent = self.silent_bus()
        # Without that bus no assistive tool sees the window, so it is looked at from outside.
        process = subprocess.Popen(
            [self.desk.binary], env={**os.environ, **self.desk.environment,
                                     "DBUS_SESSION_BUS_ADDRESS": address})
        try:
            def windows():
                found = subprocess.run(["xdotool", "search", "--all", "--onlyvisible", "--pid",
                                        str(process.pid), "--name", "^Velmora"],
                                       capture_output=True, text=True)
                return found.stdout.split()
            window = wait_until(windows, "the window")[0]
            silent.accept()[0].close()
            xdo("windowactivate", window)
            wait_until(lambda: xdo("getactivewindow") == window, "the window to be active")
            key("alt+F4")
            self.assertEqual(0, process.wait(timeout=20))
        finally:
            process.kill()
            process.wait()


if __name__ == "__main__":
    unittest.main()
