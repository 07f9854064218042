"""The calculator, the help and the about box, in real windows."""

import unittest

from desk_test import DeskTest
from velmora_driver import key, text_of, type_text, wait_until


class Accessories(DeskTest):
    def setUp(self):
        super().setUp()
        self.program = self.start()

    def page_begins(self, text):
        page = self.program.find(id="Browser1", within=self.program.dialog("Velmora Help"))
        wait_until(lambda: text_of(page).startswith(text), f"the page {text!r}")

    def test_the_calculator_is_typed_into_while_the_main_window_stays_alive(self):
        self.program.menu("Calculator")
        form = self.program.dialog("VLMCalc")
        type_text("200+10%=")
        wait_until(lambda: self.program.text("Readout", within=form) == "20", "the result")
        self.program.activate()
        self.program.show_pane("Phonebook")
        self.assertTrue(self.program.is_open("VLMCalc"))
        self.assert_closes_well()

    def test_f1_opens_the_help_and_its_index_finds_a_page(self):
        key("F1")
        window = self.program.dialog("Velmora Help")
        self.page_begins("Welcome to Velmora")
        self.program.fill("Text1", "percent", within=window)
        key("Return")
        self.page_begins("The calculator")
        key("alt+Left")
        self.page_begins("Welcome to Velmora")
        key("Escape")
        self.program.wait_closed("Velmora Help")
        self.assert_closes_well()

    def test_f1_in_a_dialog_opens_the_page_about_it(self):
        self.program.show_pane("Phonebook")
        self.program.menu("Phonebook", "Add Entry...")
        self.program.dialog("Add Entry")
        key("F1")
        self.program.dialog("Velmora Help")
        self.page_begins("Adding and changing an entry")
        key("Escape")
        self.program.wait_closed("Velmora Help")
        self.program.dialog("Add Entry")
        key("Escape")
        self.program.wait_closed("Add Entry")
        self.assert_closes_well()

    def test_the_about_box_tells_the_version(self):
        self.program.menu("Help", "About")
        box = self.program.dialog("About Velmora")
        self.assertRegex(self.program.text("Label2", within=box), r"^Version \d+\.\d+\.\d+$")
        key("Escape")
        self.program.wait_closed("About Velmora")
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
