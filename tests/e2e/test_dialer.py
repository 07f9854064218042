"""Calls through a modem on a pseudo terminal, byte by byte, from a real window."""

import fcntl
import os
import select
import time
import tty
import unittest

from books import record
from desk_test import DeskTest
from velmora_driver import is_enabled, type_text, wait_until
from waiting import PATIENCE

ANN = record(First="Ann", Last="Adair", Phone="2125551212", WorkPhone="5550000")


class Modem:
    """What stands at the other end of the line."""

    def __init__(self):
        self.end, line = os.openpty()
        tty.setraw(line)
        self.device = os.ttyname(line)
        os.close(line)

    def read(self, size):
        """As many bytes, and how long after each other the first and the last one came."""
        got, first = b"", None
        end = time.monotonic() + PATIENCE
        while len(got) < size and time.monotonic() < end and select.select([self.end], [], [], PATIENCE)[0]:
            try:
                got += os.read(self.end, size - len(got))
            except OSError:
                time.sleep(0.02)  # nobody has the line yet
                continue
            first = first or time.monotonic()
        return got, time.monotonic() - (first or 0)

    def is_dropped(self):
        """Nobody has the line open any more, and nothing is left to be read."""
        try:
            return bool(select.select([self.end], [], [], 0)[0]) and not os.read(self.end, 1)
        except OSError:
            return True

    def close(self):
        os.close(self.end)


class Dialing(DeskTest):
    def setUp(self):
        super().setUp()
        self.modem = Modem()
        self.addCleanup(self.modem.close)
        for key, value in (("ComPort", "COM3"), ("ComInit", "ATZ"), ("ComPrefix", "9,"),
                           ("LocalAreaCode", "212"), ("LogPhone", "1")):
            self.desk.settings.save(key, value)

    def expect(self, number):
        wanted = b"ATZ\rATDT9," + number + b"\r\n"
        got, took = self.modem.read(len(wanted))
        self.assertEqual(wanted, got)
        self.assertGreater(took, 2.5)

    def expect_hang_up(self):
        self.assertEqual(b"ATH0", self.modem.read(4)[0])
        wait_until(self.modem.is_dropped, "the line to be dropped")

    def test_a_number_of_the_keypad_and_one_of_an_entry_are_dialed(self):
        program = self.program = self.start(ANN, VELMORA_COM3=self.modem.device)
        program.show_pane("Dialer")
        type_text("2125551212")
        program.click_id("Command24")
        self.expect(b"5551212")
        wait_until(lambda: self.desk.settings.read("LastNumber") == "2125551212", "the number")
        program.click_id("Command22")
        self.expect_hang_up()

        program.show_pane("Phonebook")
        program.select_line("Adair, Ann")
        program.menu("Phonebook", "Dial Work Number")
        self.expect(b"5550000")
        program.click_id("Command25")
        self.expect_hang_up()
        log = self.desk.book("phonelog.txt").read_bytes().decode()
        self.assertEqual(["\tOutgoing\t5551212", "\tOutgoing\t5550000"],
                         [line[line.index("\tOut"):] for line in log.split("\r\n") if line])
        self.assert_closes_well()

    def test_without_a_modem_nothing_is_said_and_nothing_lasts(self):
        program = self.program = self.start(ANN, VELMORA_COM3="/dev/no-such-modem")
        program.show_pane("Dialer")
        type_text("5551212")
        began = time.monotonic()
        program.click_id("Command24")
        wait_until(lambda: self.desk.settings.read("LastNumber") == "5551212", "the number")
        self.assertLess(time.monotonic() - began, 3)
        self.assertFalse(program.asks())
        self.assert_closes_well()

    def expect_nothing_told(self, program):
        """The call has ended in silence: no box, no word, no line in the log; Send works again."""
        wait_until(lambda: self.desk.settings.read("LastNumber") == "5551212", "the number")
        wait_until(lambda: is_enabled(program.find(id="Command24")), "the Send key")
        self.assertFalse(program.asks())
        self.assertNotIn("Dialing", program.text("StatusBar1_2"))
        self.assertFalse(self.desk.book("phonelog.txt").exists())

    def test_a_modem_that_another_program_has_is_left_alone_until_it_is_free(self):
        line = os.open(self.modem.device, os.O_RDWR | os.O_NOCTTY)
        self.addCleanup(os.close, line)
        fcntl.flock(line, fcntl.LOCK_EX)
        program = self.program = self.start(ANN, VELMORA_COM3=self.modem.device)
        program.show_pane("Dialer")
        type_text("5551212")
        program.click_id("Command24")
        self.expect_nothing_told(program)
        self.assertFalse(select.select([self.modem.end], [], [], 0)[0])
        fcntl.flock(line, fcntl.LOCK_UN)
        program.click_id("Command24")
        self.expect(b"5551212")
        self.assert_closes_well()

    def test_a_modem_that_vanishes_while_it_gets_ready_can_be_used_when_it_is_back(self):
        vanishing = Modem()
        plug = self.desk.base / "modem"
        plug.symlink_to(vanishing.device)
        program = self.program = self.start(ANN, VELMORA_COM3=str(plug))
        program.show_pane("Dialer")
        type_text("5551212")
        program.click_id("Command24")
        self.assertEqual(b"ATZ\r", vanishing.read(4)[0])
        plug.unlink()
        plug.symlink_to(self.modem.device)
        vanishing.close()
        self.expect_nothing_told(program)
        program.click_id("Command24")
        self.expect(b"5551212")
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
