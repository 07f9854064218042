"""Boxes that ask: they lie above all windows of Velmora, and only their buttons answer them."""

import datetime
import subprocess
import unittest

from desk_test import DeskTest
from test_alarms import ALERT, TWO_MINUTES, list_of, minute
from velmora_driver import key, type_text, wait_until, xdo

LETTER = "Dear Adrian"


def windows_upwards():
    """The numbers of all windows on the display, the one in front last."""
    done = subprocess.run(["xprop", "-root", "_NET_CLIENT_LIST_STACKING"], capture_output=True,
                          text=True, check=True)
    return [int(word, 16) for word in done.stdout.partition("#")[2].split(",") if word.strip()]


class Boxes(DeskTest):
    def number_of(self, title):
        # Some toolkits' windows have helpers of the same name that are no clients of the manager.
        found = xdo("search", "--all", "--onlyvisible", "--pid", self.program.process.pid,
                    "--name", f"^{title}$").split()
        return next(int(number) for number in found if int(number) in windows_upwards())

    def assert_above(self, box, form):
        self.program.dialog(box)
        self.assertGreater(windows_upwards().index(self.number_of(box)),
                           windows_upwards().index(self.number_of(form)))

    def type_letter(self):
        self.program.focus("Text4")
        type_text(LETTER)

    def ask_at_the_end(self):
        self.program.activate()
        key("alt+F4")
        self.program.dialog("Save")

    def test_a_question_lies_above_the_search_window_and_escape_does_not_answer_it(self):
        program = self.start()
        self.type_letter()
        key("ctrl+f")
        program.dialog("Search...")
        self.ask_at_the_end()
        self.assert_above("Save", r"Search\.\.\.")
        key("Escape")
        xdo("key", "alt+F4")
        self.assertTrue(program.asks())
        self.assertIn("Save your DocPad changes?", program.answer("Save", "No"))
        self.assertEqual(0, program.wait_end())

    def test_boxes_lie_above_the_events_of_today(self):
        self.desk.settings.remove("EventStart")
        program = self.start()
        wait_until(lambda: program.is_open("Events for Today:"), "the events of today")
        self.type_letter()
        program.activate()
        key("ctrl+s")
        self.assert_above("Save As", "Events for Today:")
        key("Escape")
        program.wait_closed("Save As")
        self.type_letter()  # a dialog that was cancelled counts as saved
        self.ask_at_the_end()
        self.assert_above("Save", "Events for Today:")
        program.answer("Save", "No")
        self.assertEqual(0, program.wait_end())

    def test_a_question_lies_above_an_alert(self):
        now = datetime.datetime.now()
        for later in range(3):
            moment = now + datetime.timedelta(minutes=later)
            self.desk.settings.save(f"{list_of(now)}{later + 1}T", minute(moment))
            self.desk.settings.save(f"{list_of(now)}{later + 1}M", "Tea")
        self.desk.settings.save(list_of(now), "3")
        program = self.start()
        wait_until(lambda: program.is_open(ALERT), "the alert", TWO_MINUTES)
        self.type_letter()
        self.ask_at_the_end()
        self.assert_above("Save", ALERT)
        program.answer("Save", "No")
        self.assertEqual(0, program.wait_end())


if __name__ == "__main__":
    unittest.main()
