"""What tests of printing begin with: a print system of their own, and the printer's dialogs."""

import planner
from desk_test import DeskTest
from print_shop import PrintShop
from velmora_driver import click, key, wait_until

MARGIN = 0.25  # of the printer's paper, inches
EXACT = 0.005
PDF = "Print to PDF"


class PrintTest(DeskTest):
    """With a printer, unless a test closes the shop before it starts the program."""

    def setUp(self):
        super().setUp()
        self.shop = PrintShop()
        self.addCleanup(self.shop.end)
        self.desk.environment.update(self.shop.environment)

    def error(self):
        """The text of the error box, which is closed."""
        return self.program.answer("Velmora", "OK")

    def start_with_appointments(self, *rows):
        planner.make_database(self.desk.book("qel.mdb"), rows)
        program = self.start()
        for text in (row[4] for row in rows):
            planner.block(program, text)
        return program

    def print_day(self):
        self.program.menu("Planner", "Print Events of the Day")

    def set_up_printer(self, printer, *choices):
        """Chooses in the printer dialog; `choices` are captions of its other controls."""
        self.program.menu("File", "Printer Setup...")
        dialog = self.program.dialog("Printer Setup")
        click(self.program.find(name=printer, role="list item", within=dialog))
        for caption in choices:
            click(self.program.find(name=caption, within=dialog))
        click(self.program.find(name="Ok", role="push button", within=dialog))
        self.program.wait_closed("Printer Setup")
        # The printer is looked up once more before it is the current one.
        wait_until(lambda: not self.program.shows("Image8"), "the end of the choice")

    def save_as(self, path):
        self.program.dialog(PDF)
        key("ctrl+a")
        planner.type_text(str(path))
        key("Return")
        self.program.wait_closed(PDF)
