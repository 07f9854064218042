"""Alarms ring in real windows: beside a dialog, above a minimised window, and again."""

import datetime
import unittest

import planner
from desk_test import DeskTest
from velmora_driver import click, is_focused, key, text_of, type_text, wait_until, xdo

ALERT = "Velmora - Alarm"
TWO_MINUTES = 130  # seconds; an alarm of this minute or the next has rung by then


def minute(moment):
    return f"{moment:%H:%M}"


def list_of(moment):
    return f"Alarms\\{moment:%m%d%Y}"


class Alarms(DeskTest):
    def lines(self, form):
        return [item.get_name() for item in self.program.find_all(role="list item", within=form)]

    def wait_rest(self, form, lines):
        wait_until(lambda: self.lines(form) == lines, f"the alarms {lines}")

    def set_alarm(self, form, moment, message):
        planner.set_number(self.program, form, "VScroll1", moment.hour, 12)
        planner.set_number(self.program, form, "VScroll2", moment.minute, 30)
        self.program.fill("Text1", message, within=form)
        key("Return")
        wait_until(lambda: minute(moment) in self.lines(form), f"the alarm at {minute(moment)}")

    def alert(self):
        return wait_until(lambda: next(iter(self.program.dialogs(ALERT)), None), "the alert",
                          TWO_MINUTES)

    def minimise(self):
        xdo("windowminimize", self.program.main_window_id())

    def test_an_alarm_of_this_minute_rings_beside_a_dialog_and_is_snoozed(self):
        self.start()
        self.program.menu("Alarm", "View and Set...")
        form = self.program.dialog("Alarms...")
        # The next minute too, for this one may be over before the clock is looked at.
        begun = datetime.datetime.now()
        moments = [begun + datetime.timedelta(minutes=later) for later in range(3)]
        for moment in moments:
            self.set_alarm(form, moment, "Leave for the train")
        self.assertEqual("3", self.desk.settings.read(list_of(begun)))
        key("Escape")
        self.program.wait_closed("Alarms...")

        self.program.show_pane("Phonebook")
        self.program.menu("Phonebook", "Add Entry...")
        entry = self.program.dialog("Add Entry")
        field = self.program.find(id="Text3", within=entry)
        click(field)
        wait_until(lambda: is_focused(field), "the focus in the entry")
        alert = self.alert()
        self.assertEqual("Leave for the train", self.program.text("Label2", within=alert))
        # What is typed goes on into the entry.
        type_text("a b")
        wait_until(lambda: text_of(field) == "a b", "the text in the entry")
        self.assertTrue(self.program.is_open(ALERT))

        before = datetime.datetime.now()
        click(self.program.find(name="5 Minute Snooze", role="push button", within=alert))
        self.program.wait_closed(ALERT)
        after = datetime.datetime.now()
        count = self.desk.settings.read(list_of(before))
        snoozed = [minute(moment + datetime.timedelta(minutes=5)) for moment in (before, after)]
        self.assertIn(self.desk.settings.read(f"{list_of(before)}{count}T"), snoozed)
        self.assertEqual("Leave for the train",
                         self.desk.settings.read(f"{list_of(before)}{count}M"))
        self.assertEqual("3", count, "the alarm that rang is gone, and the snoozed one is there")
        self.program.dialog("Add Entry")

    def test_alarms_are_changed_and_removed_by_mouse(self):
        self.start()
        self.program.click_id("MainToolbar_Alarm")
        form = self.program.dialog("Alarms...")
        day = datetime.datetime.now()
        late, early = (day.replace(hour=hour, minute=0) for hour in (23, 0))
        self.set_alarm(form, late, "late")
        self.set_alarm(form, early, "early")
        self.set_alarm(form, late, "later")
        self.wait_rest(form, ["23:00", "00:00"])
        self.assertEqual("later", self.desk.settings.read(f"{list_of(day)}1M"))
        click(self.program.find(name="23:00", role="list item", within=form))
        wait_until(lambda: self.program.text("Text1", within=form) == "later", "the message")
        click(self.program.find(name="Remove", role="push button", within=form))
        self.wait_rest(form, ["00:00"])
        self.assertEqual([list_of(day), f"{list_of(day)}1M", f"{list_of(day)}1T"],
                         self.desk.settings.keys(list_of(day)))
        self.assertEqual("1", self.desk.settings.read(list_of(day)))
        click(self.program.find(name="Close", role="push button", within=form))
        self.program.wait_closed("Alarms...")
        self.assert_closes_well()

    def test_a_weekly_task_rings_above_the_minimised_window(self):
        now = datetime.datetime.now()
        for number in range(3):
            moment = now + datetime.timedelta(minutes=number)
            day = f"Weekly\\{moment:%A}\\"
            self.desk.settings.save(f"{day}{number + 1}T", minute(moment))
            self.desk.settings.save(f"{day}{number + 1}M", "Put the bins out")
            self.desk.settings.save(f"{day}NumTasks", "3")
        self.start()
        self.minimise()
        box = wait_until(lambda: next(iter(self.program.dialogs("Alarm")), None), "the box",
                         TWO_MINUTES)
        labels = [element.get_name() for element in self.program.find_all(role="label", within=box)]
        self.assertIn("Velmora Weekly Task Alarm\n\nPut the bins out", labels)
        click(self.program.find(name="OK", role="push button", within=box))
        wait_until(lambda: not self.program.dialogs("Alarm"), "the box to close")
        self.assertEqual("3", self.desk.settings.read(f"Weekly\\{now:%A}\\NumTasks"))


if __name__ == "__main__":
    unittest.main()
