"""Addresses come in from elsewhere, in real windows."""

import unittest

from books import record
from desk_test import DeskTest
from velmora_driver import is_focused, key, text_of, type_text, wait_until

TITLE = "Import Wizard"
PEOPLE = "First,Last,Work Phone\r\nEdith,Barlow,555-0101\r\nNoor,Buckley,555-0102\r\n"
BARLOW = record(First="Edith", Last="Barlow", Memo="will be replaced")


class Importing(DeskTest):
    def choose_file(self, path):
        self.program.dialog("Please select a file for import:")
        type_text(str(path))
        key("Return")

    def test_a_list_comes_in_by_keys_alone(self):
        program = self.program = self.start_in_phonebook(BARLOW, b"")
        program.letter("B")
        program.wait_lines(["Barlow, Edith"])
        people = self.yellow.parent / "people.csv"
        people.write_text(PEOPLE, encoding="ascii", newline="")
        program.menu("Phonebook", "Import Data Into Phonebooks")
        self.choose_file(people)
        program.dialog("Tab or Comma Delimited?")
        key("Return")  # "No", as the name says
        form = program.dialog(TITLE)
        question = program.find(id="Label1", within=form)
        wait_until(lambda: is_focused(program.find(id="List1", within=form)), "the columns")

        def answer():
            asked = text_of(question)
            key("Return")
            wait_until(lambda: program.asks() or text_of(question) != asked, f"behind {asked}")

        for _question in range(6):
            answer()
        program.dialog("Separate?")
        key("Return")
        wait_until(lambda: "city field" in text_of(question), "the city")
        for _question in range(19):
            answer()
        program.dialog("Velmora")
        key("Return")
        button = program.find(id="Command3", within=form)
        wait_until(lambda: is_focused(button), "the button has the keys")
        key("Return")
        done = program.find(id="Label2", within=form)
        wait_until(lambda: text_of(done) == " F I N I S H E D !", "the end")
        self.assertIn("1 entry added, 1 replaced.", text_of(program.find(id="Note", within=form)))
        key("Return")
        program.wait_closed(TITLE)
        program.wait_lines(["Barlow, Edith", "Buckley, Noor"])
        copies = [name.name for name in self.yellow.parent.iterdir() if ".before-import-" in name.name]
        self.assertEqual(len(copies), 1)
        self.assertEqual((self.yellow.parent / copies[0]).read_bytes(), BARLOW)
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
