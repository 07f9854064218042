"""Export, backup and the copies of every day, from a real window to real files."""

import datetime
import pathlib
import shutil
import unittest

from books import record
from desk_test import DeskTest
from velmora_driver import children, click, key, type_text, wait_until

ADAMS = record(Last="Adams", First="Ann", Memo="first")
BAKER = record(Last="Baker", First="Bob")
ACME = record(Company="Acme")


class CopiesTest(DeskTest):
    def setUp(self):
        super().setUp()
        self.outside = pathlib.Path(self.desk.book("outside"))
        self.outside.mkdir()

    def status(self):
        return self.program.text("StatusBar1_2")

    def wait_status(self, text):
        wait_until(lambda: self.status() == text, text)

    def begin_export(self, path, both="No"):
        self.program.menu("Phonebook", "Export Data")
        self.program.dialog("Export Data")
        key("ctrl+a")
        type_text(str(path))
        key("Return")
        self.program.wait_closed("Export Data")
        if path.exists():
            self.program.answer("File Exists", "Yes")
        self.program.answer("Export Addressbook", both)
        self.program.answer("Export", "Yes")


class Exporting(CopiesTest):
    def test_both_books_are_written_over_a_file_that_is_there(self):
        self.start_in_phonebook(BAKER + ADAMS, ACME)
        target = self.outside / "out.txt"
        target.write_bytes(b"earlier")
        self.begin_export(target, both="Yes")
        wait_until(lambda: target.read_bytes() != b"earlier", "the export")
        self.wait_status("Velmora")
        lines = target.read_bytes().split(b"\r\n")
        self.assertTrue(lines[0].startswith(b"Title\tFirst Name\tLast Name\tTitle\tCompany Name\t"))
        self.assertEqual([b"\tAnn\tAdams", b"\tBob\tBaker", b"\t\t\t\tAcme", b""],
                         [line.rstrip(b"\t").split(b"\t\t\t\t\t\t")[0] for line in lines[1:]])
        self.assertEqual([target], list(self.outside.iterdir()))

    def test_cancel_in_the_status_bar_ends_it_with_whole_lines(self):
        # Each is written as often as there are of that name.
        self.start_in_phonebook(record(Last="Smith", First="Bob") * 2000)
        target = self.outside / "out.txt"
        # A window that is at work answers slowly: what was found before is found at once.
        for part in ("JobProgress", "JobCancel", "StatusBar1_2"):
            self.program.find(id=part, showing=False)
        self.begin_export(target)
        wait_until(lambda: self.program.shows("JobProgress"), "the first lines")
        self.program.click_id("JobCancel")
        wait_until(lambda: "Called off" in self.status(), "the end")
        self.assertFalse(self.program.shows("JobCancel"))
        lines = target.read_bytes().split(b"\r\n")
        self.assertEqual(b"", lines.pop())
        self.assertEqual({24}, {line.count(b"\t") for line in lines})
        self.assertIn(f"{len(lines) - 1} line", self.status())


class Backing(CopiesTest):
    def drives(self, form):
        return [item.get_name() for item in
                children(self.program.find(id="Drive1", within=form))]

    def test_a_backup_copied_back_while_velmora_runs_brings_every_entry_back(self):
        program = self.start_in_phonebook(ADAMS, BAKER, VELMORA_VOLUMES=str(self.outside))
        program.menu("File", "Backup Data on Floppy")
        form = program.dialog("Backup Phonebooks")
        wait_until(lambda: self.drives(form) == [str(self.outside)], "the drive")
        program.click_id("Command1", within=form)
        program.answer("Velmora", "OK")
        self.wait_status("Backup completed.")
        self.assertEqual(ADAMS, (self.outside / "datay.qel").read_bytes())
        self.assertEqual(BAKER, (self.outside / "dataw.qel").read_bytes())
        program.select_line("Adams, Ann")
        click(program.find(id="VLMToolbar_Delete"))
        program.answer("Confirmation:", "Yes")
        program.wait_lines([])
        shutil.copy(self.outside / "datay.qel", self.yellow.with_name("datay.qel"))
        program.letter("A")
        program.wait_lines(["Adams, Ann"])
        self.assert_closes_well()

    def test_without_a_drive_it_says_so(self):
        program = self.start(VELMORA_VOLUMES="")
        program.menu("File", "Backup Data on Floppy")
        form = program.dialog("Backup Phonebooks")
        self.assertEqual([], self.drives(form))
        key("Escape")
        program.wait_closed("Backup Phonebooks")


class OfTheDay(CopiesTest):
    def test_they_are_made_when_nobody_touches_the_window(self):
        self.start(ADAMS, BAKER, VELMORA_QUIET="1", XDG_STATE_HOME=str(self.outside))
        copies = self.outside / "velmora" / "copies"
        today = datetime.date.today().isoformat()
        wait_until(lambda: (copies / f"DATAW.QEL.{today}").exists(), "the copies")
        self.assertEqual(ADAMS, (copies / f"DATAY.QEL.{today}").read_bytes())
        wait_until(lambda: (copies / f"settings.db.{today}").exists(), "the settings")
        self.assert_closes_well()


if __name__ == "__main__":
    unittest.main()
