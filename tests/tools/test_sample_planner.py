"""The sample planner: a life around today, in the forms in which Velmora keeps it."""

import datetime
import pathlib
import sqlite3
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
TODAY = datetime.date(2026, 12, 30)  # what lies ahead runs over the end of month and year


def make(folder):
    return subprocess.run(
        [ROOT / "tools" / "make-sample-planner", "--today", TODAY.isoformat(), folder],
        capture_output=True, text=True)


def minutes(time):
    return datetime.datetime.strptime(time, "%I:%M %p")


class SamplePlanner(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        done = make(cls.folder)
        assert done.returncode == 0, done.stderr
        planner = sqlite3.connect(cls.folder / "qel.mdb")
        cls.rows = planner.execute("SELECT * FROM appoint ORDER BY rowid").fetchall()
        planner.close()
        settings = sqlite3.connect(cls.folder / "config" / "velmora" / "settings.db")
        cls.settings = {key: bytes(value).decode("windows-1252")
                        for key, value in settings.execute("SELECT key, value FROM settings")}
        settings.close()

    def numbered(self, pattern, count):
        """The values of the keys 1 to count; each has to be there and not empty."""
        values = [self.settings[pattern.format(n)] for n in range(1, int(count) + 1)]
        self.assertTrue(all(value.strip() for value in values))
        return values

    def test_some_forty_appointments_lie_around_today_in_all_styles(self):
        self.assertIn(len(self.rows), range(36, 45))
        self.assertEqual({"Event", "Meeting", "Vacation", "Other"}, {row[5] for row in self.rows})
        days = [datetime.date.fromisoformat(row[1]) for row in self.rows]
        self.assertLess(min(days), TODAY - datetime.timedelta(days=14))
        self.assertGreater(max(days), TODAY + datetime.timedelta(days=14))
        self.assertGreaterEqual(days.count(TODAY), 5)

    def test_each_appointment_has_a_tag_of_its_own_and_ends_after_it_begins(self):
        self.assertEqual(len(self.rows), len({row[0] for row in self.rows}))
        for tag, _, begin, end, text, _ in self.rows:
            datetime.datetime.strptime(tag, "%Y-%m-%d %H:%M:%S")
            self.assertLess(minutes(begin), minutes(end), text)

    def test_today_has_appointments_that_overlap_and_a_long_one(self):
        today = sorted((minutes(row[2]), minutes(row[3]), row[4]) for row in self.rows
                       if row[1] == TODAY.isoformat())
        self.assertTrue(any(first[1] > second[0] for first, second in zip(today, today[1:])))
        self.assertTrue(any(len(text) > 120 for _, _, text in today))

    def test_all_texts_fit_the_code_page(self):
        for row in self.rows:
            row[4].encode("windows-1252")

    def test_today_has_alarms(self):
        count = self.settings["Alarms\\12302026"]
        self.assertGreaterEqual(int(count), 3)
        for time in self.numbered("Alarms\\12302026{}T", count):
            datetime.datetime.strptime(time, "%H:%M")
        self.numbered("Alarms\\12302026{}M", count)

    def test_tasks_of_all_three_kinds_are_there(self):
        self.assertGreaterEqual(
            len(self.numbered("Tasks\\{}", self.settings["Tasks\\NumTasks"])), 5)
        weekly = self.settings["Weekly\\Wednesday\\NumTasks"]  # the weekday of today
        self.numbered("Weekly\\Wednesday\\{}T", weekly)
        self.numbered("Weekly\\Wednesday\\{}M", weekly)
        self.numbered("Monthly\\30\\{}M", self.settings["Monthly\\30\\NumTasks"])

    def test_five_occasions_and_two_of_them_today(self):
        counts = {key: int(value) for key, value in self.settings.items()
                  if key.startswith("Events\\") and key.endswith("NumTasks")}
        self.assertEqual(5, sum(counts.values()))
        self.assertEqual(2, counts["Events\\December\\30\\NumTasks"])
        self.numbered("Events\\January\\01\\{}M",
                      counts["Events\\January\\01\\NumTasks"])

    def test_docpad_opens_a_letter(self):
        self.assertEqual("1", self.settings["KeepDoc"])
        letter = pathlib.Path(self.settings["Doc"])
        self.assertEqual(self.folder.resolve() / "letter.txt", letter)
        self.assertIn(b"Dear Adrian,\r\n\r\n", letter.read_bytes())

    def test_a_planner_or_settings_that_are_there_stay(self):
        for name in ("qel.mdb", "config/velmora/settings.db"):
            with tempfile.TemporaryDirectory() as folder:
                file = pathlib.Path(folder) / name
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_bytes(b"mine")
                self.assertEqual(1, make(folder).returncode)
                self.assertEqual([file], [path for path in pathlib.Path(folder).rglob("*")
                                          if path.is_file()])
                self.assertEqual(b"mine", file.read_bytes())


if __name__ == "__main__":
    unittest.main()
