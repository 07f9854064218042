"""DocPad's text goes to the queue of a fax machine, from a real window to a real print system."""

import unittest

from desk_test import DeskTest
from print_shop import QUEUE, PrintShop, lines_of
from velmora_driver import click, text_of, type_text, wait_until

FAX = "Fax-Line"
TITLE = "Send Fax"


class Faxes(DeskTest):
    def setUp(self):
        super().setUp()
        self.shop = PrintShop()
        self.addCleanup(self.shop.end)
        self.shop.add_queue(FAX, self.shop.address)

    def test_the_text_goes_to_the_chosen_queue_which_stays_the_printer(self):
        program = self.program = self.start_in_phonebook(**self.shop.environment)
        program.menu("Phonebook", "Fax Entry")
        form = program.dialog(TITLE)
        wait_until(lambda: sorted(program.list_lines(form)) == sorted([FAX, QUEUE]), "the queues")
        line = program.find(id="Printer", within=form)
        wait_until(lambda: text_of(line) == f"The printer now: {QUEUE}", "the printer")
        program.click_id("Command1", within=form)
        self.assertEqual(["Velmora: Fax"], lines_of(self.shop.next_sheet()))
        program.focus("Text4")
        type_text("Dear Sir")
        click(program.list_item(FAX, within=form))
        program.click_id("Command1", within=form)
        self.assertEqual(["Dear Sir"], lines_of(self.shop.next_sheet()))
        wait_until(lambda: text_of(line) == f"The printer now: {FAX}", "the new printer")
        jobs = self.shop.administer("lpstat", "-W", "completed", "-o", FAX)
        self.assertEqual(1, len(jobs.splitlines()), jobs)
        self.assertTrue(self.shop.has_nothing_more())
        program.click_id("Command2", within=form)
        program.wait_closed(TITLE)


if __name__ == "__main__":
    unittest.main()
