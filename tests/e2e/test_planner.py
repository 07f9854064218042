"""Appointments are made by hand; the database and the book are then read by themselves."""

import datetime
import os
import random
import subprocess
import unittest

import planner
from books import record
from desk_test import DeskTest
from velmora_driver import click, drag, key, middle, type_text, wait_until, xdo

BARLOW = record(Title="Ms.", First="Edith", Last="Barlow", Phone="(312) 555-0113",
                DateReference="01/02/99, 08:00 AM")
BUCKLEY = record(First="Noor", Last="Buckley", EMail="noor@buckley.example")
DATE_REFERENCE = slice(1245, 1265)
OLD_ROW = ("1999-01-01 08:00:00", "1999-01-01", "08:00 AM", "09:00 AM", "New Year", "Event")


class PlannerTest(DeskTest):
    def setUp(self):
        super().setUp()
        self.database = self.desk.book("qel.mdb")

    def rows(self):
        return planner.rows_of(self.database)

    def wait_rows(self, count):
        wait_until(lambda: len(self.rows()) == count, f"{count} rows")
        return self.rows()

    def start_at_list(self):
        """With one row in the planner, and the phonebook at the letter B."""
        planner.make_database(self.database, [OLD_ROW])
        program = self.start_in_phonebook(BARLOW + BUCKLEY)
        program.letter("B")
        return program

    def drag_line_to(self, target):
        self.program.select_line("Barlow, Edith")
        drag(self.program.list_item("Barlow, Edith"), target)

    def pick(self, caption):
        click(self.program.find(name=caption, role="menu item"))

    def booked(self, begin):
        text = begin.encode("ascii").ljust(20)
        return BARLOW[:DATE_REFERENCE.start] + text + BARLOW[DATE_REFERENCE.stop:]


class Scheduling(PlannerTest):
    def test_an_empty_planner_is_told_as_soon_as_an_entry_is_dragged(self):
        program = self.start_in_phonebook(BARLOW)
        program.letter("B")
        program.select_line("Barlow, Edith")
        x, y = middle(program.list_item("Barlow, Edith"))
        x -= 40  # away from where the line was clicked: the press is no second click
        xdo("mousemove", x, y, "mousedown", 1)
        for step in range(1, 6):
            xdo("mousemove", x + 6 * step, y, "sleep", 0.03)
        try:
            wait_until(lambda: program.text("StatusBar1_2").startswith("The planner is empty:"),
                       "the status line")
        finally:
            xdo("mousemove", x, y, "mouseup", 1)

    def test_a_line_that_is_dropped_on_a_date_makes_an_appointment_there(self):
        program = self.start_at_list()
        date = planner.another_day()
        self.drag_line_to(planner.day_cell(program, date))
        self.pick("Lunch With")
        form = program.dialog("Schedule Event")
        planner.set_times(program, form, (12, 5), (13, 30))
        click(program.find(name="Apply", role="push button", within=form))
        program.wait_closed("Schedule Event")
        text = "Lunch with Edith Barlow (312) 555-0113"
        planner.block(program, text)
        self.assertTrue(program.shows("Label1"), "the planner pane")
        rows = self.wait_rows(2)
        self.assertEqual(OLD_ROW, rows[0])
        self.assertEqual((planner.stored(date), "12:05 PM", "01:30 PM", text, "Event"), rows[1][1:])
        tag = datetime.datetime.strptime(rows[1][0], "%Y-%m-%d %H:%M:%S")
        self.assertLess(abs(datetime.datetime.now() - tag), datetime.timedelta(minutes=5))
        self.assertEqual(1, len(planner.blocks(program)))
        program.point_nowhere()
        cell = planner.day_cell(program, date)
        wait_until(lambda: planner.has_red_number(cell), "a red number")
        self.assertFalse(planner.has_red_number(
            planner.day_cell(program, date + datetime.timedelta(days=2))))
        self.assert_books(self.booked(f"{date:%m/%d/%y}, 12:05 PM") + BUCKLEY)
        self.assert_closes_well()

    def test_an_entry_is_scheduled_and_its_appointment_brought_back_by_keys_alone(self):
        program = self.start_at_list()
        date = planner.another_day()
        planner.choose(program, date)
        program.select_line("Barlow, Edith")
        key("shift+F10")
        program.find(name="Move Entry", role="menu item")
        key("s")
        program.find(name="Lunch With", role="menu item")
        key("l")
        form = program.dialog("Schedule Event")
        planner.set_times(program, form, (12, 5), (13, 30))
        key("alt+a")
        program.wait_closed("Schedule Event")
        made = self.wait_rows(2)
        self.assertEqual((planner.stored(date), "12:05 PM", "01:30 PM"), made[1][1:4])
        planner.focus_day_view(program)
        # With Shift, too, the window manager of the tests would take the keys for its own.
        key("ctrl+Down", "alt+Down")
        wait_until(lambda: self.rows()[1][2:4] == ("12:10 PM", "01:35 PM"), "a later appointment")
        changed = self.rows()
        key("Delete")
        self.wait_rows(1)
        key("ctrl+z")
        self.wait_rows(2)
        self.assertEqual(changed, self.rows())
        self.assertEqual(1, len(planner.blocks(program)))
        self.assert_closes_well()

    def test_a_line_that_is_dropped_on_a_pane_button_makes_one_on_the_date_on_show(self):
        program = self.start_at_list()
        date = datetime.date.today()
        self.drag_line_to(program.find(id="Picture1_0"))
        self.pick("Other (you specify)")
        box = program.dialog("Schedule Other...")
        program.find(name="What would you like to schedule?", within=box)
        edit = program.find(role="text", within=box)
        self.assertEqual("Other Event", edit.get_text_iface().get_text(0, -1))
        key("ctrl+a")
        type_text("Paint the shed")
        click(program.find(name="OK", role="push button", within=box))
        form = program.dialog("Schedule Event")
        planner.set_times(program, form, (9, 0), (9, 0))
        program.click_id("Command2", within=form)
        self.assertIn("The event must end after the time that it starts.",
                      program.answer("Velmora", "OK"))
        planner.set_number(program, form, "VScroll3", 1, 30)
        program.click_id("Command2", within=form)
        program.wait_closed("Schedule Event")
        planner.block(program, "Paint the shed with Edith Barlow (312) 555-0113")
        self.assertEqual((planner.stored(date), "09:00 AM", "09:01 AM",
                          "Paint the shed with Edith Barlow (312) 555-0113", "Event"),
                         self.wait_rows(2)[1][1:])
        self.assert_books(self.booked(f"{date:%m/%d/%y}, 09:00 AM") + BUCKLEY)

    def test_a_command_that_is_cancelled_makes_nothing(self):
        program = self.start_at_list()
        self.drag_line_to(planner.day_cell(program, planner.another_day()))
        self.pick("Call")
        form = program.dialog("Schedule Event")
        click(program.find(name="Cancel", role="push button", within=form))
        program.wait_closed("Schedule Event")
        self.assert_closes_well()
        self.assertEqual([OLD_ROW], self.rows())
        self.assert_books(BARLOW + BUCKLEY)

    def test_what_is_being_typed_while_a_command_is_applied_is_kept(self):
        program = self.start_at_list()
        self.drag_line_to(program.find(id="Picture1_0"))
        self.pick("Visit")
        form = program.dialog("Schedule Event")
        planner.set_times(program, form, (18, 0), (19, 0))
        program.activate()
        planner.focus_day_view(program)
        key("Home", *["Down"] * 16)
        type_text("Dentist")
        program.click_id("Command2", within=form)
        program.wait_closed("Schedule Event")
        planner.block(program, "Visit with Edith Barlow (312) 555-0113")
        planner.block(program, "Dentist")
        self.assertEqual(["New Year", "Dentist", "Visit with Edith Barlow (312) 555-0113"],
                         [row[4] for row in self.wait_rows(3)])


class DayView(PlannerTest):
    def test_an_appointment_is_made_by_keys_alone(self):
        program = self.start()
        planner.type_appointment(program, "Dentist", 18)
        date = datetime.date.today()
        self.assertEqual((planner.stored(date), "09:00 AM", "09:30 AM", "Dentist", "Event"),
                         self.wait_rows(1)[0][1:])
        key("Delete")
        self.wait_rows(0)
        wait_until(lambda: planner.blocks(program) == [], "the block to go")
        self.assert_closes_well()

    def test_what_is_being_typed_when_the_window_closes_is_kept(self):
        program = self.start()
        planner.focus_day_view(program)
        key("Home", *["Down"] * 18)
        type_text("Dentist")
        self.assertEqual(0, program.close())
        self.assertEqual(["Dentist"], [row[4] for row in self.rows()])

    def test_an_appointment_years_ahead_shows_when_its_day_is_opened(self):
        program = self.start()
        years = 5
        choose = planner.another_day()
        planner.choose(program, choose)
        key(*["ctrl+Next"] * years)
        date = choose.replace(year=choose.year + years)
        wait_until(lambda: planner.is_chosen(program, date), f"{date}")
        planner.type_appointment(program, "Passport expires", 20)
        self.assertEqual(planner.stored(date), self.wait_rows(1)[0][1])
        key("ctrl+t")
        today = datetime.date.today()
        wait_until(lambda: planner.is_chosen(program, today), "today")
        wait_until(lambda: planner.blocks(program) == [], "an empty day")
        self.assert_closes_well()
        program = self.program = self.desk.start()
        planner.choose(program, choose)
        key(*["ctrl+Next"] * years)
        planner.block(program, "Passport expires")
        program.point_nowhere()
        cell = planner.day_cell(program, date)
        wait_until(lambda: planner.has_red_number(cell), "a red number")

    def test_two_copies_on_one_folder_both_keep_their_appointments(self):
        first = self.start()
        second = self.desk.start(VELMORA_ANOTHER="1")
        for number in range(3):
            for program, name in ((first, "first"), (second, "second")):
                program.activate()
                planner.type_appointment(program, f"{name} {number}", 4 + 4 * number)
        self.assertEqual(sorted(f"{name} {number}" for name in ("first", "second")
                                for number in range(3)),
                         sorted(row[4] for row in self.wait_rows(6)))
        for program in (first, second):
            self.assertEqual(0, program.close())
        self.assertEqual(6, len(self.rows()))


class StrangeDatabases(PlannerTest):
    def test_a_missing_database_is_laid_down_at_the_first_start_only(self):
        self.start()
        self.assert_closes_well()
        self.assertEqual([], self.rows())
        self.database.unlink()
        program = self.start()
        planner.type_appointment(program, "Dentist", 18)
        self.assert_closes_well()
        self.assertFalse(self.database.exists())

    def test_a_file_that_is_no_database_is_left_as_it_is(self):
        noise = random.Random(7).randbytes(20_000)
        torn = b"SQLite format 3\0" + noise
        for name, content in (("empty", b""), ("noise", noise), ("torn", torn)):
            with self.subTest(name):
                self.database.write_bytes(content)
                program = self.start()
                planner.type_appointment(program, "Dentist", 18)
                self.assert_closes_well()
                self.assertEqual(content, self.database.read_bytes())
                self.assertEqual([], [path.name for path in self.desk.folder.glob("qel.mdb-*")])

    def test_a_database_that_may_not_be_written_is_shown(self):
        today = planner.stored(datetime.date.today())
        row = ("1999-01-01 08:00:00", today, "08:00 AM", "09:00 AM", "Kept", "Event")
        planner.make_database(self.database, [row])
        content = self.database.read_bytes()
        if not self.make_read_only():
            self.skipTest("no file can be made read-only here: chattr is not allowed")
        program = self.start()
        planner.block(program, "Kept")
        planner.type_appointment(program, "Dentist", 30)
        self.assert_closes_well()
        self.assertEqual(content, self.database.read_bytes())
        self.assertEqual([row], self.rows())

    def make_read_only(self):
        path = str(self.database)
        if os.geteuid() != 0:
            os.chmod(path, 0o444)
        elif self.ran("chattr", "+i", path):
            self.addCleanup(self.ran, "chattr", "-i", path)
        elif self.ran("mount", "--bind", path, path) and self.ran(
                "mount", "-o", "remount,ro,bind", path):
            self.addCleanup(self.ran, "umount", path)
        return not self.can_write(path)

    @staticmethod
    def can_write(path):
        try:
            with open(path, "ab"):
                return True
        except OSError:
            return False

    @staticmethod
    def ran(*words):
        return subprocess.run(words, capture_output=True).returncode == 0


if __name__ == "__main__":
    unittest.main()
