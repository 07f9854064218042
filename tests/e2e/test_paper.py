"""The phonebook on paper: listings, envelopes and letters from the real window to the printer."""

import os
import signal
import stat
import unittest

from books import record
from print_shop import lines_of, words_of
from printing import EXACT, MARGIN, PDF, PrintTest
from velmora_driver import click, is_checked, is_focused, key, text_of, type_text, wait_until

ADRIAN = record(First="Adrian", Last="Bellweather", Title="Mr.", Address1="418 Kiln Street",
                Address2="Millbrook, IL", PostalCode="60555", Phone="(312) 555-0142",
                Salutation="Dear Adrian,")
NORTHGATE = record(Company="Northgate Instruments", Address1="9 Mill Lane")
CLARA = record(First="Clara", Last="Beaumont", Salutation="Dear Clara,")


def many_people(count):
    return b"".join(record(First="Adrian", Last=f"Last{number:05}") for number in range(count))


class FormTest(PrintTest):
    def choose(self, access_key, option):
        """Chooses a book in the print dialog by its key and presses Enter."""
        program = self.program
        form = program.dialog("Print")
        wait_until(lambda: is_focused(program.find(id="Option1", within=form)), "the focus")
        key(access_key)
        wait_until(lambda: is_checked(program.find(id=option, within=form)), "the choice")
        key("Return")


class Listings(FormTest):
    def fake_opener(self):
        """What is opened by the desktop's own program goes into this file."""
        folder = self.desk.base / "bin"
        folder.mkdir()
        opener = folder / "xdg-open"
        opened = self.desk.base / "opened"
        opener.write_text(f'#!/bin/sh\nprintf %s "$1" >"{opened}.part"\n'
                          f'mv "{opened}.part" "{opened}"\n')
        opener.chmod(opener.stat().st_mode | stat.S_IXUSR)
        self.desk.environment["PATH"] = f"{folder}:{os.environ['PATH']}"
        return opened

    def test_a_listing_is_written_to_a_file_by_keys_alone_and_a_click_on_its_name_opens_it(self):
        opened = self.fake_opener()
        program = self.start_in_phonebook(ADRIAN + NORTHGATE)
        self.set_up_printer(PDF)
        key("alt+h")
        key("l")
        form = program.dialog("Print")
        wait_until(lambda: text_of(program.find(id="where", within=form)) == f"To: {PDF}, Letter",
                   "the line that says where")
        self.choose("alt+y", "Option1")
        path = self.desk.base / "listing.pdf"
        self.save_as(path)
        status = wait_until(lambda: self.status_ending_in(str(path)), "the file's name")
        self.assertEqual(f"Velmora:  {path}", text_of(status))
        lines = lines_of(path)
        self.assertRegex(lines[0], "^Telecommunications Listing: 2 Total Entries Yellow Pages "
                                   r"[-\d]+ Page # 1 of 1$")
        self.assertIn("Bellweather, Adrian Home: (312) 555-0142 Work: Fax:", lines)
        self.assertIn("Northgate Instruments Home: Work: Fax:", lines)
        click(status)
        wait_until(opened.exists, "the opened file")
        self.assertEqual(path.as_uri(), opened.read_text())
        self.assert_closes_well()

    def status_ending_in(self, end):
        status = self.program.find(id="StatusBar1_2")
        return status if text_of(status).endswith(end) else None


class ClosedMeanwhile(FormTest):
    """Closing in each phase of a job ends the program well, and nothing more is printed."""

    def print_report(self, *choice):
        self.program.menu("Phonebook", "Print Report")
        self.choose(*choice)

    def test_while_the_dialog_is_open(self):
        program = self.start_in_phonebook(ADRIAN)
        program.menu("Phonebook", "Print Report")
        program.dialog("Print")
        program.process.send_signal(signal.SIGTERM)
        self.assertEqual(0, program.wait_end())
        self.assertTrue(self.shop.has_nothing_more())

    def test_between_the_two_books(self):
        program = self.start_in_phonebook(ADRIAN, CLARA)
        self.print_report("alt+b", "Option3")
        self.shop.next_sheet()
        self.assertTrue(program.shows("Image8"), "the second book is waited for")
        self.assert_closes_well()
        self.assertTrue(self.shop.has_nothing_more())

    def test_while_the_pages_are_sent(self):
        program = self.start_in_phonebook(many_people(6000))
        self.print_report("alt+y", "Option1")
        wait_until(lambda: program.text("StatusBar1_2").startswith("Sending Page"), "the pages")
        self.assert_closes_well()
        self.assertTrue(self.shop.has_nothing_more())

    def test_while_the_name_of_the_file_is_asked_for(self):
        program = self.start_in_phonebook(ADRIAN)
        self.set_up_printer(PDF)
        self.print_report("alt+y", "Option1")
        program.dialog(PDF)
        program.process.send_signal(signal.SIGTERM)
        self.assertEqual(0, program.wait_end())
        self.assertEqual([], list(self.desk.base.rglob("*.pdf")))


class Letters(FormTest):
    def test_a_letter_arrives_for_each_entry_with_the_signature(self):
        program = self.start(ADRIAN + NORTHGATE)
        program.focus("Text4")
        type_text("Thank you for the tea.")
        program.menu("File", "Merge Print DocPad")
        self.choose("alt+y", "Option1")
        form = program.dialog("Signature...")
        wait_until(lambda: is_focused(program.find(id="Text1", within=form)), "the focus")
        self.assertEqual("", program.text("Text1", within=form))
        type_text("Helen")
        wait_until(lambda: program.text("Text1", within=form) == "Helen", "the signature")
        key("ctrl+Return")
        first, second = self.shop.next_sheet(), self.shop.next_sheet()
        self.assertEqual(["Mr. Adrian Bellweather", "418 Kiln Street", "Millbrook, IL", "60555",
                          "Dear Adrian,", "Thank you for the tea.", "Helen"], lines_of(first)[1:])
        self.assertEqual(["Northgate Instruments", "9 Mill Lane", "Thank you for the tea.", "Helen"],
                         lines_of(second)[1:])
        for word in words_of(first):
            if word.text in ("Mr.", "418", "Dear", "Thank", "Helen"):
                self.assertAlmostEqual(MARGIN, word.left, delta=EXACT, msg=word.text)
        wait_until(lambda: not program.shows("Image8"), "the end of the run")
        self.assertEqual(b"Helen\r\n", self.desk.book("sig.txt").read_bytes())
        self.assertTrue(self.shop.has_nothing_more())


class Envelopes(PrintTest):
    def address(self, form):
        boxes = (2, 3, 4, 5, 6, 10, 11)
        return [self.program.text(f"Text{number}", within=form) for number in boxes]

    def test_an_envelope_opens_by_menu_and_key_and_arrives_lying(self):
        program = self.start_in_phonebook(ADRIAN + CLARA)
        program.letter("B")
        program.select_line("Bellweather, Adrian")
        program.menu("Phonebook", "Envelope...")
        form = program.dialog("Create Envelope")
        self.assertEqual(["Mr. Adrian Bellweather", "418 Kiln Street", "Millbrook, IL", "60555",
                          "", "", ""], self.address(form))
        click(program.find(id="Command5", within=form))
        self.assertEqual("Please insert an envelope in your manual feed tray, or select your "
                         "envelope feeder.", program.answer("Envelope", "OK"))
        words = {word.text: word for word in words_of(self.shop.next_sheet())}
        # The sheet comes upright, its left edge above: what lies is read from above downwards.
        self.assertAlmostEqual(MARGIN + 5, words["418"].top, delta=EXACT)
        self.assertAlmostEqual(MARGIN + 5, words["60555"].top, delta=EXACT)
        program.wait_closed("Create Envelope")
        program.select_line("Beaumont, Clara")
        program.click_id("VLMToolbar_Env")
        form = program.dialog("Create Envelope")
        self.assertEqual(["Clara Beaumont"] + [""] * 6, self.address(form))
        key("Escape")
        program.wait_closed("Create Envelope")
        self.assertTrue(self.shop.has_nothing_more())
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
