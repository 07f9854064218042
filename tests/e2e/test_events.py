"""Occasions are written down in Datewarden and show on their day."""

import datetime
import unittest

from desk_test import DeskTest
from print_shop import PrintShop, lines_of
from settings import occasion_key
from velmora_driver import box_of, children, click, has_state, key, wait_until, xdo

from gi.repository import Atspi

EVENTS = "Events for Today:"
DATEWARDEN = "Datewarden "
TODAY = datetime.date.today()


class EventsTest(DeskTest):
    def put_occasion(self, date, text):
        self.desk.settings.save(occasion_key(date) + "NumTasks", "1")
        self.desk.settings.save(occasion_key(date) + "1M", text)

    def put_monthly(self, day, text):
        self.desk.settings.save(f"Monthly\\{day}\\NumTasks", "1")
        self.desk.settings.save(f"Monthly\\{day}\\1M", text)

    def lines(self, window):
        return [item.get_name() for item in children(self.program.find(id="List1", within=window))
                if item.get_role_name() == "list item"]

    def wait_lines(self, window, lines):
        wait_until(lambda: self.lines(window) == lines, f"{lines}, not {self.lines(window)}")

    def press(self, window, caption):
        click(self.program.find(name=caption, role="push button", within=window))

    def events_window(self):
        return wait_until(lambda: next(iter(self.program.dialogs(EVENTS)), None), EVENTS)

    def start_with_events(self):
        self.desk.settings.remove("EventStart")
        self.start()
        return self.events_window()


class EventsOfToday(EventsTest):
    def test_show_at_the_start_beside_the_corner_of_the_main_window(self):
        self.put_occasion(TODAY, "Birthday: Clara & <b>Hugo</b>")
        self.put_monthly(TODAY.day, "Read the meters")
        window = self.start_with_events()
        self.assertEqual(["TODAY - Birthday: Clara & <b>Hugo</b>",
                          "TODAY: Monthly Event - Read the meters"], self.lines(window))
        place, main = box_of(window), box_of(self.program.main)
        self.assertLessEqual(abs(place.x - main.x - 41), 2)
        self.assertLessEqual(abs(place.y - main.y - 3), 2)
        self.press(window, "Close")
        self.program.wait_closed(EVENTS)
        self.assert_closes_well()

    def test_close_by_a_key_at_once(self):
        self.desk.settings.remove("EventStart")
        for name in ("Escape", "Return"):
            with self.subTest(name):
                self.program = self.desk.start(activate=False)
                self.program.dialog(EVENTS)
                key(name)
                self.program.wait_closed(EVENTS)
                wait_until(lambda: has_state(self.program.main, Atspi.StateType.ACTIVE),
                           "the main window to be active")
                key("alt+f", "x")
                self.assertEqual(0, self.program.wait_end())

    def test_stay_in_front_of_the_main_window(self):
        window = self.start_with_events()
        xdo("windowraise", self.program.main_window_id())
        self.program.activate()
        # What lies behind can not be clicked.
        self.press(window, "Close")
        self.program.wait_closed(EVENTS)

    def test_do_not_keep_the_program_alive(self):
        self.start_with_events()
        self.assert_closes_well()

    def test_stay_away_when_the_setting_says_so_and_keep_nothing_alive_either(self):
        self.put_occasion(TODAY, "Birthday")
        program = self.start()
        program.show_pane("Phonebook")
        self.assertFalse(program.is_open(EVENTS))
        self.assert_closes_well()

    def test_look_ahead_over_the_end_of_the_month(self):
        later = TODAY + datetime.timedelta(40)
        self.put_occasion(later, "Wedding")
        self.put_occasion(TODAY + datetime.timedelta(41), "too late")
        self.desk.settings.save("EventDays", "40")
        self.assertEqual(["In  40 Days - Wedding"], self.lines(self.start_with_events()))

    def test_show_one_line_when_there_are_none(self):
        self.assertEqual(["No Events Today."], self.lines(self.start_with_events()))

    def test_open_the_windows_in_which_they_are_written_down(self):
        window = self.start_with_events()
        for button, title in (("Datewarden", DATEWARDEN), ("Monthly", "Monthly Repetitive Tasks"),
                              ("Weekly", "Weekly Repetitive Tasks")):
            with self.subTest(button):
                self.press(window, button)
                self.program.dialog(title)
                key("Escape")
                self.program.wait_closed(title)
        self.assert_closes_well()


class PrintedEvents(EventsTest):
    def setUp(self):
        super().setUp()
        self.shop = PrintShop()
        self.addCleanup(self.shop.end)
        self.desk.environment.update(self.shop.environment)

    def test_arrive_at_the_printer_under_a_heading(self):
        self.put_occasion(TODAY, "Birthday: Clara")
        self.put_monthly(TODAY.day, "Read the meters")
        self.press(self.start_with_events(), "Print")
        self.assertEqual([f"Events and Occasions for {TODAY:%B %d, %Y}", "TODAY - Birthday: Clara",
                          "TODAY: Monthly Event - Read the meters"],
                         lines_of(self.shop.next_sheet()))
        self.assertTrue(self.program.is_open(EVENTS))


class Occasions(EventsTest):
    def open_datewarden(self):
        self.program.menu("Planner", "Datewarden")
        return self.program.dialog(DATEWARDEN)

    def test_an_occasion_for_today_is_added_shown_and_removed(self):
        program = self.start()
        form = self.open_datewarden()
        program.fill("Text1", "Founding day - 1998", within=form)
        self.press(form, "Add")
        line = f"{TODAY:%B %d} - Founding day - 1998"
        self.wait_lines(form, [line])
        self.assertEqual("1", self.desk.settings.read(occasion_key(TODAY) + "NumTasks"))
        self.assertEqual("Founding day - 1998", self.desk.settings.read(occasion_key(TODAY) + "1M"))
        self.press(form, "Show Display")
        window = program.dialog(EVENTS)
        self.wait_lines(window, ["TODAY - Founding day - 1998"])
        self.press(window, "Close")
        program.wait_closed(EVENTS)

        click(program.find(name=line, role="list item", within=form))
        wait_until(lambda: program.text("Text1", within=form) == "Founding day - 1998", "the text")
        self.press(form, "Remove")
        self.assertEqual("Are you sure you wish to remove this entry?",
                         program.answer("Remove Event?", "No"))
        self.assertEqual([line], self.lines(form))
        self.press(form, "Remove")
        program.answer("Remove Event?", "Yes")
        self.wait_lines(form, [])
        self.assertEqual("0", self.desk.settings.read(occasion_key(TODAY) + "NumTasks"))
        self.assertIsNone(self.desk.settings.read(occasion_key(TODAY) + "1M"))
        self.press(form, "Show Display")
        self.wait_lines(program.dialog(EVENTS), ["No Events Today."])
        self.assert_closes_well()

    def test_the_29th_of_february_can_be_chosen_in_any_year(self):
        program = self.start()
        program.click_id("MainToolbar_Event")
        form = program.dialog(DATEWARDEN)
        click(program.find(id="VScroll1", within=form))
        key("Home", "Up")
        wait_until(lambda: program.text("Label1", within=form) == "February", "February")
        click(program.find(id="VScroll2", within=form))
        key("End")
        wait_until(lambda: program.text("Label2", within=form) == "29", "the 29th")
        self.press(form, "Add")
        self.wait_lines(form, ["February 29 - New Event Today!"])
        key("Escape")
        program.wait_closed(DATEWARDEN)
        self.assertEqual("New Event Today!",
                         self.desk.settings.read("Events\\February\\29\\1M"))

    def test_a_list_of_any_counts_and_texts_is_shown(self):
        settings = self.desk.settings
        for month, count in (("January", "-5"), ("March", "999999999999"), ("May", "many")):
            settings.save(f"Events\\{month}\\07\\NumTasks", count)
            settings.save(f"Events\\{month}\\07\\2M", f"{month} & <i>")
        settings.save("Events\\June\\07\\NumTasks", "2")
        settings.save("Events\\June\\07\\1M", "   ")
        self.start()
        self.assertEqual(["March 07 - March & <i>"], self.lines(self.open_datewarden()))
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
