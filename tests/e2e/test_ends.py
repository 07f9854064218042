"""The program is told to end, or loses its display: nothing that was typed is lost."""

import contextlib
import os
import signal
import subprocess
import unittest

import planner
from desk_test import DeskTest
from velmora_driver import click, key, text_of, type_text, wait_until

LETTER = "Dear Adrian"
APPOINTMENT = "Tea with Lucian"


@contextlib.contextmanager
def another_display():
    """A screen with a window manager; gives what takes it away."""
    before = os.environ["DISPLAY"]
    reader, writer = os.pipe()
    screen = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1400x1000x24", "-nolisten", "tcp"],
        pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    with os.fdopen(reader) as numbers:
        os.environ["DISPLAY"] = f":{numbers.readline().strip()}"
    manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)

    def managed():
        done = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True)
        return b"window id" in done.stdout

    try:
        wait_until(managed, "the window manager")
        yield screen.kill
    finally:
        os.environ["DISPLAY"] = before
        for process in (screen, manager):
            process.kill()
            process.wait()


class Ends(DeskTest):
    def type_letter(self):
        self.program.focus("Text4")
        type_text(LETTER)
        wait_until(lambda: text_of(self.program.find(id="Text4")) == LETTER, "the letter")

    def type_more(self, more):
        pad = self.program.find(id="Text4")
        before = text_of(pad)
        self.program.focus("Text4")
        key("ctrl+End")
        type_text(more)
        wait_until(lambda: text_of(pad) == before + more, "what was typed")

    def type_into_the_day(self):
        self.program.focus("SSDay1")
        type_text(APPOINTMENT)
        wait_until(lambda: any(text_of(edit) == APPOINTMENT for edit in self.program.find_all(
            role="text", within=self.program.find(id="SSDay1"))), "the editor in the day")

    def stored_appointments(self):
        return [row[4] for row in planner.rows_of(self.desk.book("qel.mdb"))]

    def ended_by(self, which):
        self.program.process.send_signal(which)
        return self.program.wait_end()

    def test_each_signal_ends_it_and_the_letter_is_offered_at_the_next_start(self):
        # Shells have what they start in the background ignore SIGINT.
        for which in (signal.SIGTERM, signal.SIGHUP):
            with self.subTest(which):
                self.start()
                self.type_letter()
                self.assertEqual(0, self.ended_by(which))
                self.program = self.desk.start()
                self.program.answer("DocPad", "Yes")
                wait_until(lambda: text_of(self.program.find(id="Text4")) == LETTER, "the letter")
                self.program.activate()
                key("alt+F4")
                self.program.answer("Save", "No")
                self.assertEqual(0, self.program.wait_end())

    def test_an_entry_in_its_form_goes_on_at_the_next_start(self):
        program = self.start_in_phonebook()
        program.menu("Phonebook", "Add Entry...")
        form = program.dialog("Add Entry")
        program.fill("Text3", "Adair", within=form)
        program.fill("Text2", "Lucian", within=form)
        self.assertEqual(0, self.ended_by(signal.SIGTERM))
        self.program = program = self.desk.start()
        self.assertIn("(Lucian Adair)", program.answer("Phonebook", "Yes"))
        form = program.dialog("Add Entry")
        self.assertEqual("Adair", program.text("Text3", within=form))
        click(program.find(name="Add Entry", role="push button", within=form))
        program.wait_closed("Add Entry")
        wait_until(lambda: b"Adair" in self.yellow.read_bytes(), "the entry in the book")
        self.assert_closes_well()

    def test_what_stands_in_the_day_is_stored(self):
        self.start()
        self.type_into_the_day()
        self.assertEqual(0, self.ended_by(signal.SIGTERM))
        self.assertEqual([APPOINTMENT], self.stored_appointments())

    def test_a_lost_display_costs_nothing_that_was_typed(self):
        with another_display() as take_away:
            self.start()
            self.type_letter()
            self.type_into_the_day()
            take_away()
            self.program.wait_end()
        self.assertEqual([APPOINTMENT], self.stored_appointments())
        self.program = self.desk.start()
        self.program.answer("DocPad", "Yes")
        wait_until(lambda: text_of(self.program.find(id="Text4")) == LETTER, "the letter")

    def test_a_signal_while_a_question_is_open_is_no_answer_to_it(self):
        self.start()
        self.type_letter()
        self.program.activate()
        key("alt+F4")
        self.program.dialog("Save")
        self.assertEqual(0, self.ended_by(signal.SIGTERM))
        self.program = self.desk.start()
        self.program.dialog("DocPad")
        self.assertEqual(0, self.ended_by(signal.SIGTERM))
        self.program = self.desk.start()
        self.assertIn("Do you want it back?", self.program.answer("DocPad", "Yes"))
        wait_until(lambda: text_of(self.program.find(id="Text4")) == LETTER, "the letter")

    def test_a_signal_while_a_file_is_being_chosen_writes_nothing(self):
        letter = self.desk.book("letter.txt")
        letter.write_bytes(b"on the disk")
        self.start()
        self.program.activate()
        key("ctrl+o")
        self.program.dialog("Open")
        type_text(str(letter))
        key("Return")
        wait_until(lambda: text_of(self.program.find(id="Text4")) == "on the disk", "the file")
        self.type_more(" and more")
        key("ctrl+s")
        self.program.dialog("Save As")
        self.assertEqual(0, self.ended_by(signal.SIGTERM))
        self.assertEqual(b"on the disk", letter.read_bytes())
        self.assertFalse(letter.with_name("letter.txt~").exists())


if __name__ == "__main__":
    unittest.main()
