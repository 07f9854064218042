"""The week shows the six days behind the selected one, and follows it."""

import datetime
import unittest

import planner
from desk_test import DeskTest
from velmora_driver import children, click, key, wait_until, xdo


def title_of(date):
    return f"Week at Glance From {date:%A, %B %d, %Y}"


def caption_of(date):
    return f"{date:%A, %B} {date.day}, {date.year}"


class Week(DeskTest):
    def setUp(self):
        super().setUp()
        self.database = self.desk.book("qel.mdb")
        self.today = datetime.date.today()

    def put_on(self, *days):
        """One appointment on each of these days behind today."""
        planner.make_database(self.database, [
            (f"2020-01-01 08:00:{number:02}", planner.stored(self.today + datetime.timedelta(number)),
             "09:00 AM", "10:00 AM", f"Appointment {number}", "Event") for number in days])

    def open_week(self, date):
        self.program.menu("Planner", "Week at a Glance...")
        return self.program.dialog(title_of(date))

    def appointments(self, week):
        """What the days of the week show, from left to right."""
        return [[part.get_name().split(",")[0]
                 for part in children(self.program.find(id=f"SSDay{number}", within=week))
                 if part.get_role_name() == "list item"] for number in range(1, 7)]

    def column_with_tasks(self, week):
        """The place of the only day with appointments."""
        return [bool(day) for day in self.appointments(week)].index(True)

    def test_shows_the_six_days_behind_the_selected_one(self):
        self.put_on(0, 1, 6, 7)
        program = self.start()
        week = self.open_week(self.today)
        self.assertEqual([["Appointment 1"], [], [], [], [], ["Appointment 6"]],
                         self.appointments(week))
        for number in range(1, 7):
            day = program.find(id=f"SSDay{number}", within=week)
            self.assertEqual(caption_of(self.today + datetime.timedelta(number)), day.get_name())
        click(program.find(name="Close", role="push button", within=week))
        program.wait_closed(title_of(self.today))
        self.assert_closes_well()

    def test_shows_the_days_of_another_date_when_it_becomes_active_again(self):
        date = planner.another_day()
        self.put_on((date - self.today).days + 2)
        program = self.start()
        planner.choose(program, date)
        program.click_id("MainToolbar_Week")
        week = program.dialog(title_of(date))
        on_display = xdo("getactivewindow")
        self.assertEqual(1, self.column_with_tasks(week))
        program.activate()
        key("Right")
        date += datetime.timedelta(1)
        wait_until(lambda: planner.is_chosen(program, date), f"{date}")
        xdo("windowactivate", on_display)
        week = program.dialog(title_of(date))
        self.assertEqual(0, self.column_with_tasks(week))
        key("Escape")
        program.wait_closed(title_of(date))
        self.assert_closes_well()

    def test_without_a_database_there_are_six_empty_days(self):
        program = self.start()
        self.database.unlink()
        week = self.open_week(self.today)
        self.assertEqual([[]] * 6, self.appointments(week))
        self.assertFalse(self.database.exists())
        self.assert_closes_well()

    def test_it_closes_with_the_program(self):
        self.start()
        self.open_week(self.today)
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
