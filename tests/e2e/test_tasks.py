"""To-do lines, weekly and monthly tasks, added and removed by keys and by mouse."""

import datetime
import unittest

import planner
from desk_test import DeskTest
from print_shop import PrintShop, lines_of
from velmora_driver import click, key, wait_until

TO_DO, WEEKLY, MONTHLY = ("Task Manager - To Do", "Weekly Repetitive Tasks",
                          "Monthly Repetitive Tasks")


class Tasks(DeskTest):
    def setUp(self):
        super().setUp()
        self.shop = PrintShop()
        self.addCleanup(self.shop.end)
        self.desk.environment.update(self.shop.environment)
        self.start()

    def open(self, command, title):
        self.program.menu("Task List", command)
        return self.program.dialog(title)

    def wait_lines(self, form, lines):
        wait_until(lambda: [item.get_name() for item in
                            self.program.find_all(role="list item", within=form)] == lines,
                   f"the lines {lines}")

    def press(self, form, button):
        click(self.program.find(name=button, role="push button", within=form))

    def select(self, form, line):
        click(self.program.find(name=line, role="list item", within=form))

    def read(self, key_name):
        return self.desk.settings.read(key_name)

    def test_to_do_lines_are_added_by_keys_and_removed_by_mouse(self):
        form = self.open("Task Manager", TO_DO)
        offered = self.program.text("Text1", within=form)
        self.assertTrue(offered.endswith(" - New Task"), offered)
        key("Return")
        self.wait_lines(form, [offered])
        for text in ("Buy milk & bread", "Call Ann"):
            self.program.fill("Text1", text, within=form)
            key("Return")
        self.wait_lines(form, [offered, "Buy milk & bread", "Call Ann"])
        self.select(form, "Buy milk & bread")
        self.press(form, "Remove Task")
        self.wait_lines(form, [offered, "Call Ann"])
        self.assertEqual("2", self.read("Tasks\\NumTasks"))
        self.assertEqual("Call Ann", self.read("Tasks\\2"))
        self.press(form, "Add Task")
        self.assertIn("No task specified.", self.program.answer("Velmora", "OK"))
        self.press(form, "Close")
        self.program.wait_closed(TO_DO)
        self.assert_closes_well()

    def test_the_task_manager_leads_to_the_other_lists(self):
        form = self.open("Task Manager", TO_DO)
        self.press(form, "Monthly")
        self.program.wait_closed(TO_DO)
        self.program.dialog(MONTHLY)
        key("Escape")
        self.program.wait_closed(MONTHLY)
        self.open("Task Manager", TO_DO)
        key("alt+w")
        self.program.wait_closed(TO_DO)
        self.program.dialog(WEEKLY)
        key("Escape")
        self.program.wait_closed(WEEKLY)
        self.assert_closes_well()

    def test_to_do_lines_are_printed_under_the_date(self):
        form = self.open("Task Manager", TO_DO)
        for text in ("Buy milk & bread", "Call Ann"):
            self.program.fill("Text1", text, within=form)
            key("Return")
        self.wait_lines(form, ["Buy milk & bread", "Call Ann"])
        self.press(form, "Print Tasks")
        head, *rest = lines_of(self.shop.next_sheet())
        self.assertTrue(head.startswith("Task Manager - To Do "), head)
        self.assertIn(str(datetime.date.today().year), head)
        self.assertEqual(["Buy milk & bread", "Call Ann"], rest)

    def test_a_weekly_task_is_set_and_removed(self):
        form = self.open("Weekly Tasks", WEEKLY)
        planner.set_number(self.program, form, "VScroll3", 3, 7)  # three above Sunday
        wait_until(lambda: self.program.text("Label4", within=form) == "Wednesday", "the day")
        planner.set_number(self.program, form, "VScroll1", 9, 12)
        planner.set_number(self.program, form, "VScroll2", 5, 30)
        self.program.fill("Text1", "Bins - both", within=form)
        key("Return")
        self.wait_lines(form, ["Wednesday - 09:05 - Bins - both"])
        self.assertEqual("09:05", self.read("Weekly\\Wednesday\\1T"))
        self.assertEqual("Bins - both", self.read("Weekly\\Wednesday\\1M"))
        self.select(form, "Wednesday - 09:05 - Bins - both")
        key("alt+r")
        self.wait_lines(form, [])
        self.assertEqual(["Weekly\\Wednesday\\NumTasks"],
                         self.desk.settings.keys("Weekly\\Wednesday"))
        self.assertEqual("0", self.read("Weekly\\Wednesday\\NumTasks"))
        key("Escape")
        self.program.wait_closed(WEEKLY)
        self.assert_closes_well()

    def test_a_monthly_task_is_set_and_removed(self):
        form = self.open("Monthly Tasks", MONTHLY)
        planner.set_number(self.program, form, "VScroll1", 30, 7)  # thirty above the first
        wait_until(lambda: self.program.text("Label1", within=form) == "31", "the day")
        self.program.fill("Text1", "Rent", within=form)
        self.press(form, "Add")
        self.press(form, "Add")
        self.wait_lines(form, ["31 - Rent", "31 - Rent"])
        self.select(form, "31 - Rent")
        self.press(form, "Remove")
        self.wait_lines(form, ["31 - Rent"])
        self.assertEqual("1", self.read("Monthly\\31\\NumTasks"))
        self.press(form, "Close")
        self.program.wait_closed(MONTHLY)
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
