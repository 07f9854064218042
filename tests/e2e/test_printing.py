"""Velmora prints on a real print system, and what arrives at the printer is read."""

import datetime
import socket
import unittest

import planner
from books import record
from print_shop import QUEUE, lines_of, words_of
from printing import EXACT, MARGIN, PDF, PrintTest
from velmora_driver import click, key, text_of, type_text, wait_until


def row(begin, end, text):
    """A row of today's."""
    today = datetime.date.today()
    return (f"{today} 08:00:00", planner.stored(today), begin, end, text, "Event")


class TheDay(PrintTest):
    def test_the_events_of_the_day_arrive_at_the_printer(self):
        self.start_with_appointments(row("02:30 PM", "03:00 PM", "Dentist"),
                                     row("09:00 AM", "10:00 AM", "Breakfast"))
        self.print_day()
        sheet = self.shop.next_sheet()
        self.assertEqual(["Velmora: Events of the Day",
                          " ".join(self.program.text("Label1").split()),
                          "02:30 PM - 03:00 PM", "Dentist", "09:00 AM - 10:00 AM", "Breakfast"],
                         lines_of(sheet))
        words = words_of(sheet)
        for word in words:
            if word.text in ("Velmora:", "02:30", "Dentist", "09:00", "Breakfast"):
                self.assertAlmostEqual(MARGIN, word.left, delta=EXACT, msg=word.text)
        tops = {word.text: word.top for word in words}
        self.assertAlmostEqual(MARGIN, tops["Velmora:"], delta=0.05)
        # An appointment has two lines and an empty one.
        line = tops["Dentist"] - tops["02:30"]
        self.assertAlmostEqual(3 * line, tops["09:00"] - tops["02:30"], delta=EXACT)
        self.assertTrue(self.shop.has_nothing_more())
        self.assert_closes_well()

    def test_the_print_key_prints_the_day_while_it_is_on_show_only(self):
        program = self.start_with_appointments(row("09:00 AM", "10:00 AM", "Breakfast"))
        print_key = program.find(name="Print...", role="push button")
        click(print_key)
        self.assertIn("Breakfast", lines_of(self.shop.next_sheet()))
        program.show_pane("Phonebook")
        click(print_key)
        program.dialog("Print")
        key("Escape")
        program.wait_closed("Print")
        self.assertTrue(self.shop.has_nothing_more())

    def test_sheets_lie_on_their_side_when_they_are_asked_to(self):
        self.start_with_appointments(row("09:00 AM", "10:00 AM", "Breakfast"))
        self.set_up_printer(QUEUE, "Landscape")
        self.print_day()
        words = {word.text: word for word in words_of(self.shop.next_sheet())}
        # The sheet comes upright and what is on it lies: words are higher than they are wide.
        word = words["Breakfast"]
        self.assertGreater(word.bottom - word.top, word.right - word.left)


class TheHits(PrintTest):
    def test_the_list_of_a_search_arrives_at_the_printer(self):
        program = self.start_in_phonebook(record(First="Edith", Last="Barlow")
                                          + record(First="Noor", Last="Buckley"))
        program.menu("Phonebook", "Search Database")
        form = program.dialog("Search V.L.M. Database")
        program.fill("Text1", "noor", within=form)
        click(program.find(name="Search", role="push button", within=form))
        wait_until(lambda: program.find_all(role="list item", within=form), "the hit")
        click(program.find(name="Print List", role="push button", within=form))
        lines = lines_of(self.shop.next_sheet())
        self.assertRegex(lines[0], "^Velmora: Search Results [A-Z]")
        self.assertEqual(["Y: Buckley, Noor Match: First Name=Noor"], lines[1:])
        self.assertTrue(self.shop.has_nothing_more())


class DocPad(PrintTest):
    def type_into_docpad(self, text):
        self.start()
        self.program.focus("Text4")
        type_text(text)
        self.wait_text(text)

    def wait_text(self, text):
        wait_until(lambda: text_of(self.program.find(id="Text4")) == text, f"DocPad with {text!r}")

    def test_the_text_arrives_below_its_head(self):
        self.type_into_docpad("Thank you for the tea.")
        click(self.program.find(id="MainToolbar_PrintD"))
        sheet = self.shop.next_sheet()
        head = f"UNTITLED {datetime.date.today():%m-%d-%Y} Page # 1 of 1"
        self.assertEqual([head, "Thank you for the tea."], lines_of(sheet))
        tops = {word.text: word.top for word in words_of(sheet)}
        self.assertAlmostEqual(MARGIN + 0.5, tops["UNTITLED"], delta=0.05)
        self.assertAlmostEqual(MARGIN + 1.0, tops["Thank"], delta=0.05)
        self.assertFalse(self.program.shows("Image8"))
        self.assertTrue(self.shop.has_nothing_more())

    def test_new_with_yes_prints_and_then_clears(self):
        self.type_into_docpad("Thank you for the tea.")
        self.program.menu("File", "New DocPad")
        self.program.answer("Save", "Yes")
        self.assertIn("Thank you for the tea.", lines_of(self.shop.next_sheet()))
        self.wait_text("")

    def test_new_keeps_a_text_that_was_not_printed(self):
        self.type_into_docpad("Thank you for the tea.")
        self.set_up_printer(PDF)
        self.program.menu("File", "New DocPad")
        self.program.answer("Save", "Yes")
        self.program.dialog(PDF)
        key("Escape")
        self.program.wait_closed(PDF)
        self.wait_text("Thank you for the tea.")
        self.assertTrue(self.shop.has_nothing_more())


class PrintersThatFail(PrintTest):
    def test_a_printer_that_went_is_told_and_no_other_prints(self):
        self.start_with_appointments(row("09:00 AM", "10:00 AM", "Breakfast"))
        self.shop.add_queue("Attic", self.shop.address)
        self.set_up_printer("Attic")
        self.shop.remove_queue("Attic")
        self.print_day()
        self.assertEqual('Nothing was printed: the printer "Attic" is not there any more. Printer '
                         "Setup in the File menu chooses another one.", self.error())
        self.assertTrue(self.shop.has_nothing_more())
        self.set_up_printer(QUEUE)
        self.print_day()
        self.assertIn("Breakfast", lines_of(self.shop.next_sheet()))
        self.assert_closes_well()

    def test_a_printer_that_takes_no_jobs_is_told(self):
        self.start_with_appointments(row("09:00 AM", "10:00 AM", "Breakfast"))
        self.shop.refuse_jobs()
        self.print_day()
        self.assertRegex(self.error(),
                         f'^Nothing was printed: the printer "{QUEUE}" did not take it \\(.+\\)')
        self.assertTrue(self.shop.has_nothing_more())
        self.assert_closes_well()

    def test_without_a_print_system_a_file_is_offered(self):
        self.shop.end()
        program = self.start_with_appointments(row("09:00 AM", "10:00 AM", "Breakfast"))
        self.print_day()
        self.save_as(self.desk.base / "day.pdf")
        wait_until((self.desk.base / "day.pdf").exists, "the file")
        self.assertIn("Breakfast", lines_of(self.desk.base / "day.pdf"))
        program.menu("File", "Printer Setup...")
        dialog = program.dialog("Printer Setup")
        self.assertEqual([PDF], [item.get_name() for item in
                                 program.find_all(role="list item", within=dialog)])
        key("Escape")
        program.wait_closed("Printer Setup")
        self.assert_closes_well()

    def test_a_print_system_that_never_answers_is_called_off_or_told(self):
        self.shop.end()
        silent = socket.create_server(("127.0.0.1", 0))  # takes connections, and no more
        self.addCleanup(silent.close)
        port = silent.getsockname()[1]
        self.desk.environment["CUPS_SERVER"] = f"127.0.0.1:{port}"
        program = self.start_with_appointments(row("09:00 AM", "10:00 AM", "Breakfast"))
        self.print_day()
        wait_until(lambda: program.shows("Image8"), "the cancel icon")
        click(program.find(id="Image8"))
        wait_until(lambda: not program.shows("Image8"), "the end of the job")
        self.print_day()
        self.assertEqual("The print system does not answer.", self.error())
        self.assert_closes_well()

    def test_a_file_that_can_not_be_written_is_told(self):
        self.start_with_appointments(row("09:00 AM", "10:00 AM", "Breakfast"))
        self.set_up_printer(PDF)
        self.print_day()
        self.save_as("/sys/day.pdf")
        self.assertRegex(self.error(), "^The file /sys/day.pdf can not be written")
        self.assertTrue(self.shop.has_nothing_more())
        self.assert_closes_well()

    def test_a_file_that_is_not_named_is_not_written(self):
        program = self.start_with_appointments(row("09:00 AM", "10:00 AM", "Breakfast"))
        self.set_up_printer(PDF)
        self.print_day()
        program.dialog(PDF)
        key("Escape")
        program.wait_closed(PDF)
        self.assertEqual([], list(self.desk.base.rglob("*.pdf")))
        self.assertTrue(self.shop.has_nothing_more())
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
