"""Entries are looked for in both books, and the hits are followed, in real windows."""

import unittest

from books import TOMBSTONE, record
from desk_test import DeskTest
from velmora_driver import click, is_checked, key, text_of, type_text, wait_until

TITLE = "Search V.L.M. Database"

BARLOW = record(First="Edith", Last="Barlow", Memo="Brings back the Buckley file")
BUCKLEY = record(First="Noor", Last="Buckley", Company="Baxter Tool Hire")
BAXTER = record(Company="Baxter Tool Hire", EMail="hire@baxter.example")


def hit(book, entry, where, value, width):
    return f"{book}: {entry}\tMatch: {where}={value.ljust(width)}"


HIT_IN_MEMO = hit("Y", "Barlow, Edith", "Note", "Brings back the Buckley file", 250)
HIT_IN_NAME = hit("W", "Buckley, Noor", "Last Name", "Buckley", 20)


class Searching(DeskTest):
    def open_form(self, yellow, white=None):
        self.program = self.start_in_phonebook(yellow, white)
        self.program.menu("Phonebook", "Search Database")
        return self.program.dialog(TITLE)

    def test_hits_of_both_books_are_found_and_followed(self):
        form = self.open_form(TOMBSTONE + BARLOW, BUCKLEY)
        program = self.program
        type_text("BUCKLEY")
        click(program.find(id="Check1", within=form))
        key("Return")
        program.wait_lines([HIT_IN_MEMO, HIT_IN_NAME], within=form)
        click(program.list_item(HIT_IN_NAME, within=form), times=2)
        program.wait_lines(["Buckley, Noor"])
        self.assertTrue(program.shows("Label19"))
        self.assertTrue(program.is_open(TITLE))
        click(program.list_item(HIT_IN_MEMO, within=form), times=2)
        program.wait_lines(["Barlow, Edith"])
        self.assertTrue(program.shows("Label18"))
        program.click_id("Command3", within=form)
        program.wait_closed(TITLE)
        program.wait_lines(["Barlow, Edith"])
        self.assert_closes_well()
        self.assert_books(TOMBSTONE + BARLOW, BUCKLEY)

    def test_it_is_done_without_the_mouse(self):
        program = self.program = self.start_in_phonebook(BARLOW, BUCKLEY)
        key("alt+h", "s")
        form = program.dialog(TITLE)
        type_text("buckley")
        key("alt+b")
        wait_until(lambda: is_checked(program.find(id="Check1", within=form)), "both books")
        key("alt+s")
        program.wait_lines([HIT_IN_MEMO, HIT_IN_NAME], within=form)
        key("alt+c")
        program.wait_lines([], within=form)
        key("alt+e")
        program.wait_closed(TITLE)
        self.assert_closes_well()

    def test_only_the_fields_that_are_ticked_are_looked_at(self):
        form = self.open_form(BARLOW + BUCKLEY)
        program = self.program
        click(program.find(id="Check11", within=form))
        click(program.find(id="Check6", within=form))
        program.fill("Text1", "b", within=form)
        key("Return")
        program.wait_lines([hit("Y", "Buckley, Noor", "Company", "Baxter Tool Hire", 50)],
                           within=form)

    def test_a_text_that_stands_nowhere_is_told(self):
        form = self.open_form(BARLOW)
        type_text("zebra")
        key("Return")
        self.assertIn("No entries were found.",
                      self.program.answer("No Entries Found", "OK"))
        self.assertEqual([], self.program.list_lines(within=form))

    def test_the_help_button_opens_the_page_about_searching(self):
        form = self.open_form(BARLOW)
        self.program.click_id("Command5", within=form)
        page = self.program.find(id="Browser1", within=self.program.dialog("Velmora Help"))
        wait_until(lambda: text_of(page).startswith("Searching the phonebook"), "the page")
        self.assert_closes_well()


class FindingAssociates(DeskTest):
    def test_all_of_a_company_are_listed_and_shown(self):
        program = self.program = self.start_in_phonebook(BUCKLEY + BARLOW + BAXTER, BUCKLEY)
        program.letter("B")
        program.select_line("Baxter Tool Hire")
        program.click_id("Command26")
        form = program.dialog("Other Associates...")
        program.wait_lines(["Y: Buckley, Noor", "Y: Baxter Tool Hire", "W: Buckley, Noor"],
                           within=form)
        click(program.list_item("Y: Baxter Tool Hire", within=form))
        wait_until(lambda: "hire@baxter.example" in program.text("Label1", within=form), "the card")
        key("Escape")
        program.wait_closed("Other Associates...")
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
