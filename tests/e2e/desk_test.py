"""What all tests of the whole program begin with."""

import unittest

from velmora_driver import Desk


class DeskTest(unittest.TestCase):
    def setUp(self):
        self.desk = Desk()
        self.addCleanup(self.desk.clear)
        self.yellow = self.desk.book("DATAY.QEL")
        self.white = self.desk.book("DATAW.QEL")

    def start(self, yellow=None, white=None, **environment):
        """Starts the program on books of these bytes; a book of None is missing."""
        for book, content in ((self.yellow, yellow), (self.white, white)):
            if content is not None:
                book.write_bytes(content)
        self.program = self.desk.start(**environment)
        return self.program

    def start_in_phonebook(self, yellow=None, white=None, **environment):
        self.start(yellow, white, **environment)
        self.program.show_pane("Phonebook")
        return self.program

    def assert_books(self, yellow, white=None):
        """The bytes of both books; None is a book that is not there."""
        for book, content in ((self.yellow, yellow), (self.white, white)):
            self.assertEqual(content, book.read_bytes() if book.exists() else None, book.name)

    def assert_closes_well(self):
        self.assertEqual(0, self.program.close())
