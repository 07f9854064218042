"""The sample books: laid out as Velmora writes them, invented throughout, always the same."""

import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
RECORD = 1595
LAST, FIRST, COMPANY = slice(15, 35), slice(0, 15), slice(45, 95)
PHONES = (slice(535, 555), slice(555, 575), slice(575, 595), slice(595, 620), slice(620, 640))
MAIL, WEB = slice(640, 740), slice(740, 940)


def make(folder, *arguments):
    return subprocess.run([ROOT / "tools" / "make-sample-data", *arguments, folder],
                          capture_output=True, text=True)


class SampleData(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        done = make(cls.folder)
        assert done.returncode == 0, done.stderr
        cls.books = {}
        for name in ("DATAY.QEL", "DATAW.QEL"):
            content = (cls.folder / name).read_bytes()
            assert len(content) % RECORD == 0
            cls.books[name] = [content[at:at + RECORD] for at in range(0, len(content), RECORD)]

    def entries(self, name):
        return [record for record in self.books[name] if record[LAST].strip() != b"DELETED"]

    def all_entries(self):
        return self.entries("DATAY.QEL") + self.entries("DATAW.QEL")

    @staticmethod
    def line(record):
        last, first, company = (record[part].decode("windows-1252").strip()
                                for part in (LAST, FIRST, COMPANY))
        return f"{last}, {first}" if last else company

    def lines(self, name):
        return sorted(self.line(record) for record in self.entries(name))

    def test_hold_some_three_hundred_entries(self):
        self.assertEqual(180, len(self.entries("DATAW.QEL")))
        self.assertIn(len(self.entries("DATAY.QEL")), range(110, 131))

    def test_show_no_entry_twice(self):
        for name in self.books:
            lines = self.lines(name)
            self.assertEqual(len(lines), len({line.upper() for line in lines}))

    def test_show_the_b_of_the_yellow_pages(self):
        self.assertEqual(
            ["Barlow, Edith", "Baxter Tool Hire", "Beaumont, Clara", "Bell & Larch Optics",
             "Bellweather, Adrian", "Benedek, Zsófia", "Birchfield Joinery", "Blackwood, Hugo",
             "Boateng, Abena", "Bramble Hill Dairy", "Brandt, Matthias", "Brightwater Printing",
             "Buckley, Noor"],
            [line for line in self.lines("DATAY.QEL") if line.startswith("B")])

    def test_accents_are_single_bytes(self):
        self.assertIn(b"Zs\xf3fia".ljust(15),
                      [record[FIRST] for record in self.entries("DATAY.QEL")])

    def test_fields_are_padded_with_blanks(self):
        for record in self.all_entries():
            self.assertNotIn(0, record)

    def test_a_deleted_entry_keeps_nothing(self):
        for name, records in self.books.items():
            deleted = [record for record in records if record not in self.entries(name)]
            self.assertGreater(len(deleted), 0)
            for record in deleted:
                self.assertEqual(bytes(15) + b"DELETED".ljust(20) + bytes(RECORD - 35), record)

    def test_no_comma_stands_in_a_name(self):
        for record in self.all_entries():
            self.assertNotIn(b",", record[FIRST] + record[LAST])
            if not record[LAST].strip():
                self.assertNotIn(b",", record[COMPANY])

    def test_numbers_and_addresses_reach_nobody(self):
        for record in self.all_entries():
            for part in PHONES:
                self.assertRegex(record[part].decode().strip(), r"^(\(\d{3}\) 555-01\d\d)?$")
            for part in (MAIL, WEB):
                self.assertRegex(record[part].decode().strip(), r"^([\w.@-]+\.example)?$")

    def test_the_same_seed_gives_the_same_books(self):
        with tempfile.TemporaryDirectory() as same, tempfile.TemporaryDirectory() as other:
            make(same)
            make(other, "--seed", "2")
            for name in self.books:
                first = (self.folder / name).read_bytes()
                self.assertEqual(first, (pathlib.Path(same) / name).read_bytes())
                self.assertNotEqual(first, (pathlib.Path(other) / name).read_bytes())

    def test_a_book_that_is_there_stays(self):
        with tempfile.TemporaryDirectory() as folder:
            book = pathlib.Path(folder) / "DATAY.QEL"
            book.write_bytes(b"mine")
            self.assertEqual(1, make(folder).returncode)
            self.assertEqual(b"mine", book.read_bytes())


if __name__ == "__main__":
    unittest.main()
