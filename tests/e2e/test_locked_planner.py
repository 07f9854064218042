"""The planner's database, locked by another program for as long as it likes."""

import contextlib
import datetime
import subprocess
import sys
import time
import unittest

import planner
from desk_test import DeskTest
from velmora_driver import children, key, type_text, wait_until, walk

TODAY = datetime.date.today()
ROW = ("2026-01-01 08:00:00", planner.stored(TODAY), "09:00 AM", "10:00 AM", "Dentist", "Event")
CAN_NOT_BE_READ = "This day can not be read: another program is using the planner."
NOT_STORED = "The appointment is not stored yet: another program is using the planner."

LOCKING = """
import sqlite3, sys
database = sqlite3.connect(sys.argv[1], isolation_level=None)
database.execute("BEGIN EXCLUSIVE")
print("locked", flush=True)
sys.stdin.read()
"""

# A window that waited for the lock did not answer for five seconds and more; so much is left to a
# busy machine.
LONGEST_ANSWER = 3


class LockedPlannerTest(DeskTest):
    def setUp(self):
        super().setUp()
        self.database = self.desk.book("qel.mdb")
        planner.make_database(self.database, [ROW])

    @contextlib.contextmanager
    def locked(self):
        """Another program keeps everybody out of the database, readers too."""
        with subprocess.Popen([sys.executable, "-c", LOCKING, self.database], text=True,
                              stdin=subprocess.PIPE, stdout=subprocess.PIPE) as other:
            self.assertEqual("locked\n", other.stdout.readline())
            try:
                yield
            finally:
                other.stdin.close()
                other.wait()

    def assert_answers(self, seconds):
        """Asks the window again and again, and expects an answer each time."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            began = time.monotonic()
            self.assertTrue(children(self.program.main))
            self.assertLess(time.monotonic() - began, LONGEST_ANSWER)

    def shows(self, beginning):
        return any(element.get_name().startswith(beginning) for element in walk(self.program.main))

    def test_a_day_that_can_not_be_read_says_so_and_fills_itself_when_the_lock_goes(self):
        with self.locked():
            # Without the names of the tests, what the day says is its description.
            self.start(VELMORA_TEST_IDS="0")
            self.program.find(id=CAN_NOT_BE_READ)
            self.assert_answers(5)
            self.assertFalse(self.shows("Dentist"))
        wait_until(lambda: self.shows("Dentist"), "the appointment")
        self.assertEqual([], self.program.find_all(id=CAN_NOT_BE_READ))
        self.assert_closes_well()

    def test_an_appointment_under_a_lock_is_told_and_stored_when_the_lock_goes(self):
        program = self.start()
        planner.block(program, "Dentist")
        planner.focus_day_view(program)
        with self.locked():
            key("Home", *["Down"] * 24)
            type_text("Lunch")
            key("Return")
            wait_until(lambda: program.text("StatusBar1_2") == NOT_STORED, "the status line")
            self.assert_answers(3)
            planner.block(program, "Lunch")
        wait_until(lambda: len(planner.rows_of(self.database)) == 2, "the second row")
        self.assertEqual("Lunch", planner.rows_of(self.database)[1][4])
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
