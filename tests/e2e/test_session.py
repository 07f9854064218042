"""The session manager of the desktop asks the program to save itself, and to end."""

import os
import unittest

from desk_test import DeskTest
from session_manager import SessionManager
from velmora_driver import click, key, text_of, type_text, wait_until

LETTER = "Dear Adrian"


class Session(DeskTest):
    @classmethod
    def setUpClass(cls):
        cls.session = SessionManager()
        cls.addClassCleanup(cls.session.close)

    def start_in_session(self):
        self.session.events.clear()
        self.program = self.desk.start(SESSION_MANAGER=self.session.address,
                                       ICEAUTHORITY=os.devnull)
        self.wait_event("saved")  # what every program is asked for when it is new
        return self.program

    def wait_event(self, event):
        wait_until(lambda: event in self.session.events, f"{event!r} from the program")

    def type_letter(self, text=LETTER):
        pad = self.program.find(id="Text4")
        before = text_of(pad)
        self.program.focus("Text4")
        key("ctrl+End")
        type_text(text)
        self.wait_letter(before + text)

    def wait_letter(self, text=LETTER):
        wait_until(lambda: text_of(self.program.find(id="Text4")) == text, f"{text!r} in DocPad")

    def recovery_files(self):
        folder = self.desk.base / "config" / "velmora"
        return sorted(path.name for path in folder.glob("*.recovery*"))

    def end_session(self):
        self.session.end_program()
        self.assertEqual(0, self.program.wait_end())

    def test_without_interaction_nothing_is_asked_and_all_is_kept(self):
        program = self.start_in_session()
        self.type_letter()
        program.menu("Phonebook", "Add Entry...")
        program.fill("Text3", "Adair", within=program.dialog("Add Entry"))
        self.session.save(shutdown=True)
        self.wait_event("saved")
        self.assertNotIn("interact", self.session.events)
        self.assertFalse(program.asks())
        self.assertEqual(["docpad.recovery1", "entry.recovery1"], self.recovery_files())
        self.end_session()
        self.program = program = self.desk.start()
        program.answer("DocPad", "Yes")
        self.wait_letter()
        self.assertIn("(Adair)", program.answer("Phonebook", "Yes"))
        self.assertEqual("Adair", program.text("Text3", within=program.dialog("Add Entry")))

    def test_with_interaction_a_yes_saves(self):
        program = self.start_in_session()
        self.type_letter()
        self.session.save(shutdown=True, ask=True)
        self.assertIn("Save your DocPad changes?", program.answer("Save", "Yes"))
        program.dialog("Save As")
        letter = self.desk.book("letter.txt")
        type_text(str(letter))
        key("Return")
        self.wait_event("saved")
        self.assertEqual(LETTER.encode() + b"\r\n", letter.read_bytes())
        self.end_session()
        self.assertEqual([], self.recovery_files())

    def test_a_no_leaves_nothing_behind_once_the_session_has_ended(self):
        program = self.start_in_session()
        self.type_letter()
        self.session.save(shutdown=True, ask=True)
        program.answer("Save", "No")
        self.wait_event("saved")
        # Another program may still call it off.
        self.session.call_off()
        self.type_letter(" again")
        self.session.save(shutdown=True, ask=True)
        program.answer("Save", "No")
        self.wait_event("saved")
        self.end_session()
        self.assertEqual([], self.recovery_files())

    def test_a_checkpoint_does_not_end_the_program(self):
        program = self.start_in_session()
        self.type_letter()
        self.session.save(shutdown=False)
        self.wait_event("saved")
        self.assertEqual(["docpad.recovery1"], self.recovery_files())
        self.type_letter(" and more")
        program.activate()
        key("alt+F4")
        program.answer("Save", "No")
        self.assertEqual(0, program.wait_end())
        self.assertEqual([], self.recovery_files())


if __name__ == "__main__":
    unittest.main()
