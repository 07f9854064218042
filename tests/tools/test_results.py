"""The closing count of ./test, fed with runs that went well and runs that went wrong."""

import pathlib
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parents[2]
COUNT = ROOT / "tests" / "count_results.py"
RUNNER = ROOT / "tests" / "python_tests.py"

GOOD = '<testcase name="Works" classname="Thing" status="run" result="completed"/>'
BAD = '<testcase name="Breaks" classname="Thing"><failure message="no"/></testcase>'
SKIPPED = '<testcase name="Rests" classname="Thing"><skipped message="no tray"/></testcase>'


class Folder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.results = self.folder / "results"
        self.results.mkdir()

    def results_of(self, name, *cases):
        (self.results / name).write_text(
            "<testsuites><testsuite>" + "".join(cases) + "</testsuite></testsuites>")

    def count(self, *arguments):
        done = subprocess.run([COUNT, self.results, *arguments], capture_output=True, text=True)
        self.assertEqual("", done.stderr)
        lines = done.stdout.splitlines()
        return done.returncode, lines[-1], lines[:-1]


class Counting(Folder):
    def test_good_cases_pass(self):
        self.results_of("a.xml", GOOD)
        self.results_of("b.xml", GOOD, GOOD)
        self.assertEqual((0, "3 passed, 0 failed", []), self.count())

    def test_a_failed_case_fails_the_run(self):
        self.results_of("a.xml", GOOD, BAD)
        self.assertEqual((1, "1 passed, 1 failed", ["failed: Thing.Breaks"]), self.count())

    def test_a_skipped_case_is_named_and_not_counted(self):
        self.results_of("a.xml", GOOD, SKIPPED)
        self.assertEqual((0, "1 passed, 0 failed", ["skipped: Thing.Rests: no tray"]), self.count())

    def test_a_run_without_tests_fails(self):
        self.assertEqual((1, "0 passed, 0 failed", []), self.count())

    def test_results_that_were_cut_off_fail(self):
        (self.results / "a.xml").write_text("<testsuites>")
        code, line, _ = self.count()
        self.assertEqual((1, "0 passed, 1 failed"), (code, line))

    def test_checks_count_as_one_each(self):
        (self.results / "checks").write_text("passed format\nfailed build for release\n")
        self.assertEqual((1, "1 passed, 1 failed", ["failed: build for release"]), self.count())


class CrashedProgram(Folder):
    def build_with(self, program, log=""):
        """A build folder in which ctest knows one test program, a script."""
        build = self.folder / "build"
        (build / "Testing" / "Temporary").mkdir(parents=True)
        (build / "Testing" / "Temporary" / "LastTest.log").write_text(log)
        path = build / "tests_thing"
        path.write_text(program)
        path.chmod(0o755)
        (build / "CTestTestfile.cmake").write_text(f'add_test(tests_thing "{path}")\n')
        return build

    LISTING = '#!/bin/sh\nprintf "Thing.\\n  Works\\n  Crashes\\n  DISABLED_Rests\\n"\n'

    def test_its_missing_cases_fail(self):
        build = self.build_with(self.LISTING)
        code, line, notes = self.count(build)
        self.assertEqual((1, "0 passed, 2 failed"), (code, line))
        self.assertEqual("failed: Thing.Crashes: no result, tests_thing ended too early", notes[1])

    def test_its_cases_that_ended_well_before_pass(self):
        build = self.build_with(self.LISTING, "[       OK ] Thing.Works (0 ms)\n[ RUN ] Thing.Crashes")
        code, line, _ = self.count(build)
        self.assertEqual((1, "1 passed, 1 failed"), (code, line))

    def test_a_program_that_left_its_results_is_counted_by_them(self):
        build = self.build_with(self.LISTING)
        self.results_of("tests_thing.xml", GOOD, GOOD.replace("Works", "Crashes"))
        self.assertEqual((0, "2 passed, 0 failed", []), self.count(build))

    def test_a_program_that_does_not_start_fails(self):
        build = self.build_with("#!/bin/sh\nexit 1\n")
        code, line, _ = self.count(build)
        self.assertEqual((1, "0 passed, 1 failed"), (code, line))


class PythonTests(Folder):
    def run_tests(self, body, *names):
        tests = self.folder / "tests"
        tests.mkdir()
        (tests / "test_thing.py").write_text("import unittest\nclass Thing(unittest.TestCase):\n"
                                             + "".join(f"    {line}\n" for line in body))
        done = subprocess.run([RUNNER, self.results / "thing.xml", tests, *names],
                              capture_output=True, text=True)
        return done.returncode, self.count()[:2]

    def test_good_and_bad_ones_are_told_apart(self):
        self.assertEqual((1, (1, "1 passed, 2 failed")), self.run_tests([
            "def test_good(self): pass",
            "def test_bad(self): self.fail()",
            "def test_broken(self): raise OSError()",
        ]))

    def test_a_failed_subtest_fails_its_test(self):
        self.assertEqual((1, (1, "0 passed, 1 failed")), self.run_tests([
            "def test_parts(self):",
            "    for part in (1, 2):",
            "        with self.subTest(part): self.assertEqual(1, part)",
        ]))

    def test_a_module_that_does_not_load_fails(self):
        self.assertEqual((1, (1, "0 passed, 1 failed")), self.run_tests(["def test_good(self) pass"]))

    def test_a_class_that_can_not_be_set_up_fails(self):
        self.assertEqual((1, (1, "0 passed, 1 failed")), self.run_tests([
            "@classmethod",
            "def setUpClass(cls): raise OSError()",
            "def test_good(self): pass",
        ]))

    def test_only_the_named_ones_run(self):
        self.assertEqual((0, (0, "1 passed, 0 failed")), self.run_tests([
            "def test_good(self): pass",
            "def test_bad(self): self.fail()",
        ], "good"))

    def test_no_test_of_that_name_fails(self):
        self.assertEqual((1, (1, "0 passed, 0 failed")), self.run_tests(
            ["def test_good(self): pass"], "other"))


class Parts(Folder):
    def test_two_parts_run_each_class_once_and_whole(self):
        tests = self.folder / "tests"
        tests.mkdir()
        (tests / "test_things.py").write_text("import unittest\n" + "".join(
            f"class Thing{kind}(unittest.TestCase):\n" + "".join(
                f"    def test_{number}(self): pass\n" for number in range(kind + 1))
            for kind in range(4)))
        seen = []
        for part in ("1/2", "2/2"):
            results = self.folder / "part.xml"
            done = subprocess.run(["/usr/bin/python3", RUNNER, "--part", part, results, tests],
                                  capture_output=True, text=True)
            self.assertEqual((0, ""), (done.returncode, done.stderr))
            seen.append({(case.get("classname"), case.get("name"))
                         for case in xml.parse(results).iter("testcase")})
        self.assertEqual(10, len(seen[0] | seen[1]))
        self.assertEqual(5, len(seen[0]))
        self.assertFalse({kind for kind, _ in seen[0]} & {kind for kind, _ in seen[1]})

    def test_a_part_that_is_none_is_refused(self):
        done = subprocess.run(["/usr/bin/python3", RUNNER, "--part", "3/2", "a.xml", "."],
                              capture_output=True, text=True)
        self.assertEqual(2, done.returncode)


if __name__ == "__main__":
    unittest.main()
