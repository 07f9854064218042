"""Entries are added, changed, deleted and moved by hand; the books are then read byte by byte."""

import unittest

from books import TOMBSTONE, record
from desk_test import DeskTest
from velmora_driver import (click, clipboard, drag, is_checked, is_enabled, is_focused, key,
                            text_of, type_text, wait_until)

DELETE = "Are you sure that you want to delete this record?"
MOVE = "Are you sure that you want to move this record?"
OVERWRITE = "This entry exists. Would you like to overwrite it?"

BARLOW = record(Title="Ms.", First="Edith", Last="Barlow", Phone="(312) 555-0113",
                Memo="Rings back late")
BAXTER = record(Company="Baxter Tool Hire", Phone="(312) 555-0114")
BUCKLEY = record(First="Noor", Last="Buckley", EMail="noor@buckley.example")


class PhonebookTest(DeskTest):
    def start_at(self, letter, yellow=None, white=None):
        program = self.start_in_phonebook(yellow, white)
        if letter != "A":
            program.letter(letter)
        return program

    def add_form(self):
        self.program.menu("Phonebook", "Add Entry...")
        return self.program.dialog("Add Entry")

    def fill(self, form, **values):
        for id, value in values.items():
            self.program.fill(id, value, within=form)


class Adding(PhonebookTest):
    def test_a_person_is_added(self):
        program = self.start_at("A")
        form = self.add_form()
        self.fill(form, Text1="Ms.", Text2="Clara", Text3="Beaumont", Text4="Head Gardener",
                  Text5="Arbor & Vine Nursery", Text6="27 Orchard Lane", Text7="Greenhouse 4",
                  Text8="Pinecroft, IL", Text17="Box 12", Text18="United States", Text22="60431",
                  Text9="(312) 555-0146", Text14="(312) 555-0147", Text10="(312) 555-0148",
                  Text13="(312) 555-0149", Text15="(312) 555-0190",
                  Text16="clara@arborvine.example", Text23="arborvine.example",
                  Text12="Dear Clara,", Text11="Deliver on Mondays only.", Text21="03/09/26",
                  Text20="20388", Text19="Rings back late", Text25="garden.txt",
                  Text24="Ben Beaumont")
        click(program.find(name="Add Entry", role="push button", within=form))
        program.wait_closed("Add Entry")
        # The view has moved to the letter of the new entry.
        program.wait_lines(["Beaumont, Clara"])
        self.assert_closes_well()
        self.assert_books(record(
            Title="Ms.", First="Clara", Last="Beaumont", Position="Head Gardener",
            Company="Arbor & Vine Nursery", Address1="27 Orchard Lane", Address2="Greenhouse 4",
            Address3="Pinecroft, IL", Address4="Box 12", Country="United States",
            PostalCode="60431", Phone="(312) 555-0146", WorkPhone="(312) 555-0147",
            Fax="(312) 555-0148", Pager="(312) 555-0149", OtherPhone="(312) 555-0190",
            EMail="clara@arborvine.example", WebPage="arborvine.example",
            Salutation="Dear Clara,", Memo="Deliver on Mondays only.", DateReference="03/09/26",
            Custom1="20388", Custom2="Rings back late", FileAttachment="garden.txt",
            Spouse="Ben Beaumont"))

    def test_a_company_is_added_behind_what_is_there(self):
        program = self.start_at("A", BARLOW)
        form = self.add_form()
        self.assertTrue(is_enabled(program.find(id="Text3", within=form)))
        click(program.find(id="Check1", within=form))
        wait_until(lambda: not is_enabled(program.find(id="Text3", within=form)), "no name")
        self.fill(form, Text5="Baxter Tool Hire", Text9="(312) 555-0114")
        program.click_id("Command1", within=form)
        program.wait_closed("Add Entry")
        program.wait_lines(["Barlow, Edith", "Baxter Tool Hire"])
        self.assert_books(BARLOW + BAXTER)

    def test_an_entry_takes_the_place_of_a_deleted_one(self):
        program = self.start_at("B", TOMBSTONE + BARLOW)
        form = self.add_form()
        self.fill(form, Text2="Noor", Text3="Buckley", Text16="noor@buckley.example")
        program.click_id("Command1", within=form)
        program.wait_lines(["Barlow, Edith", "Buckley, Noor"])
        self.assert_books(BUCKLEY + BARLOW)

    def test_it_is_done_without_the_mouse(self):
        program = self.start(BARLOW)
        key("alt+h", "a")
        form = program.dialog("Add Entry")
        # The check box comes first; behind it Title, First and Last.
        wait_until(lambda: is_focused(program.find(id="Text1", within=form))
                   or is_focused(program.find(id="Check1", within=form)), "the first field")
        if is_focused(program.find(id="Check1", within=form)):
            key("Tab")
        for id, text in (("Text1", "Mr."), ("Text2", "Hugo"), ("Text3", "Blackwood")):
            element = program.find(id=id, within=form)
            wait_until(lambda it=element: is_focused(it), f"the focus in {id}")
            type_text(text)
            wait_until(lambda it=element, typed=text: text_of(it) == typed, f"{text} in {id}")
            key("Tab")
        key("Return")
        program.wait_closed("Add Entry")
        program.wait_lines(["Barlow, Edith", "Blackwood, Hugo"])
        self.assert_books(BARLOW + record(Title="Mr.", First="Hugo", Last="Blackwood"))
        key("alt+f", "x")
        self.assertEqual(0, program.wait_end())

    def test_an_entry_without_a_name_is_refused(self):
        program = self.start_at("A")
        form = self.add_form()
        self.fill(form, Text2="Clara")
        program.click_id("Command1", within=form)
        text = program.answer("Incomplete Entry", "OK")
        self.assertIn("You must enter a first and last name, or click the Just a Company checkbox.",
                      text)
        self.assertEqual("Clara", program.text("Text2", within=form))
        program.click_id("Command2", within=form)
        program.wait_closed("Add Entry")
        self.assert_books(b"")

    def test_an_entry_that_exists_is_overwritten_only_after_a_question(self):
        program = self.start_at("B", BARLOW + BUCKLEY)
        form = self.add_form()
        self.fill(form, Text2="edith", Text3="barlow")
        program.click_id("Command1", within=form)
        self.assertIn(OVERWRITE, program.answer("Velmora", "No"))
        self.assert_books(BARLOW + BUCKLEY)
        program.click_id("Command1", within=form)
        self.assertIn(OVERWRITE, program.answer("Velmora", "Yes"))
        program.wait_closed("Add Entry")
        program.wait_lines(["barlow, edith", "Buckley, Noor"])
        self.assert_books(record(First="edith", Last="barlow") + BUCKLEY)

    def test_pasted_text_without_a_place_in_the_code_page_is_shown_as_it_will_be_stored(self):
        program = self.start_at("A")
        form = self.add_form()
        self.fill(form, Text2="Elsa")
        click(program.find(id="Text3", within=form))
        with clipboard("Ångström 東京 ☎"):
            key("ctrl+v")
            wait_until(lambda: program.text("Text3", within=form) == "Ångström ?? ?",
                       "what was pasted")
        program.click_id("Command1", within=form)
        program.wait_closed("Add Entry")
        program.letter("#")
        program.wait_lines(["Ångström ?? ?, Elsa"])
        self.assert_books(record(First="Elsa", Last="Ångström ?? ?"))


class Changing(PhonebookTest):
    def change(self, line):
        self.program.select_line(line)
        self.program.menu("Phonebook", "Change Entry...")
        return self.program.dialog("Edit Entry")

    def test_a_change_stays_in_its_place(self):
        program = self.start_at("B", BARLOW + BAXTER)
        form = self.change("Barlow, Edith")
        self.assertEqual("(312) 555-0113", program.text("Text9", within=form))
        self.fill(form, Text9="(312) 555-0199")
        click(program.find(name="Keep Changes", role="push button", within=form))
        program.wait_closed("Edit Entry")
        program.wait_lines(["Barlow, Edith", "Baxter Tool Hire"])
        self.assertEqual("", program.card())
        self.assert_books(record(Title="Ms.", First="Edith", Last="Barlow",
                                 Phone="(312) 555-0199", Memo="Rings back late") + BAXTER)

    def test_a_changed_entry_moves_to_the_first_place_that_is_free(self):
        program = self.start_at("B", TOMBSTONE + BAXTER)
        form = self.change("Baxter Tool Hire")
        self.assertTrue(is_checked(program.find(id="Check1", within=form)))
        self.fill(form, Text9="(312) 555-0199")
        program.click_id("Command1", within=form)
        program.wait_closed("Edit Entry")
        self.assert_books(record(Company="Baxter Tool Hire", Phone="(312) 555-0199") + TOMBSTONE)

    def test_a_name_that_another_entry_has_is_refused(self):
        program = self.start_at("B", BARLOW + BUCKLEY)
        form = self.change("Buckley, Noor")
        self.fill(form, Text2="Edith", Text3="Barlow")
        program.click_id("Command1", within=form)
        self.assertIn("This entry already exists.", program.answer("Already Exists", "OK"))
        self.assertTrue(program.is_open("Edit Entry"))
        self.assert_books(BARLOW + BUCKLEY)

    def test_without_a_selection_the_status_line_tells_what_to_do(self):
        program = self.start_at("B", BARLOW)
        program.wait_lines(["Barlow, Edith"])
        program.menu("Phonebook", "Change Entry...")
        program.find(name="Please select an entry before editing.")
        self.assertFalse(program.is_open("Edit Entry"))


class Deleting(PhonebookTest):
    def delete(self, line):
        self.program.select_line(line)
        click(self.program.find(id="VLMToolbar_Delete"))

    def test_an_entry_is_deleted_after_a_question(self):
        program = self.start_at("B", BARLOW + BAXTER + BUCKLEY)
        self.delete("Baxter Tool Hire")
        self.assertIn(DELETE, program.answer("Confirmation:", "Yes"))
        program.wait_lines(["Barlow, Edith", "Buckley, Noor"])
        self.assertEqual("", program.card())
        self.assert_books(BARLOW + TOMBSTONE + BUCKLEY)

    def test_a_no_keeps_it(self):
        program = self.start_at("B", BARLOW + BUCKLEY)
        self.delete("Barlow, Edith")
        program.answer("Confirmation:", "No")
        program.wait_lines(["Barlow, Edith", "Buckley, Noor"])
        self.assert_books(BARLOW + BUCKLEY)

    def test_a_line_is_dragged_to_the_trash(self):
        program = self.start_at("B", BARLOW + BUCKLEY)
        drag(program.list_item("Buckley, Noor"), program.find(id="Image2"))
        self.assertIn(DELETE, program.answer("Confirmation:", "Yes"))
        program.wait_lines(["Barlow, Edith"])
        self.assert_books(BARLOW + TOMBSTONE)


class Moving(PhonebookTest):
    def move(self, line):
        self.program.select_line(line)
        self.program.click_id("TButtonMove")

    def test_an_entry_moves_to_the_other_book(self):
        program = self.start_at("B", BARLOW + BUCKLEY)
        self.move("Barlow, Edith")
        self.assertIn(MOVE, program.answer("Confirmation:", "Yes"))
        program.wait_lines(["Buckley, Noor"])
        self.assert_books(TOMBSTONE + BUCKLEY, BARLOW)

    def test_all_bytes_of_an_entry_move(self):
        company = BAXTER[:1000] + bytes(range(1, 256)) + BAXTER[1255:]
        program = self.start_at("B", company, TOMBSTONE + BUCKLEY)
        self.move("Baxter Tool Hire")
        program.answer("Confirmation:", "Yes")
        program.wait_lines([])
        self.assert_books(TOMBSTONE, company + BUCKLEY)

    def test_a_no_to_overwriting_leaves_both_books(self):
        other = record(First="EDITH", Last="BARLOW", Phone="(312) 555-0199")
        program = self.start_at("B", BARLOW, other)
        self.move("Barlow, Edith")
        program.answer("Confirmation:", "Yes")
        self.assertIn(OVERWRITE, program.answer("Velmora", "No"))
        program.wait_lines(["Barlow, Edith"])
        self.assert_books(BARLOW, other)


class Looking(PhonebookTest):
    def test_each_letter_shows_its_entries(self):
        names = {letter: f"{letter}lder" for letter in "ABCDEFGHIJKLMNOPQRSTUVWXYZ"}
        book = b"".join(record(Last=name, First="Ann") for name in reversed(names.values()))
        book += record(Company="24 Hour Locksmith") + record(Last="Östberg", First="Måns")
        program = self.start_in_phonebook(book)
        program.wait_lines(["Alder, Ann"])
        for letter, name in names.items():
            program.letter(letter)
            program.wait_lines([f"{name}, Ann"])
        program.letter("#")
        program.wait_lines(["24 Hour Locksmith", "Östberg, Måns"])

    def test_the_card_tells_all_of_an_entry(self):
        program = self.start_at("B", BARLOW)
        program.select_line("Barlow, Edith")
        card = program.card()
        for text in ("Ms. Edith Barlow", "H: (312) 555-0113", "Rings back late"):
            self.assertIn(text, card)

    def test_switching_books_keeps_the_letter(self):
        program = self.start_at("B", BARLOW, BUCKLEY + record(Last="Adair", First="Lucian"))
        program.wait_lines(["Barlow, Edith"])
        program.select_line("Barlow, Edith")
        program.click_id("PhonebookToolbar_White")
        program.wait_lines(["Buckley, Noor"])
        self.assertEqual("", program.card())
        self.assertTrue(program.shows("Label19"))
        self.assertFalse(program.shows("Label18"))
        program.click_id("PhonebookToolbar_Yellow")
        program.wait_lines(["Barlow, Edith"])
        self.assertTrue(program.shows("Label18"))


if __name__ == "__main__":
    unittest.main()
