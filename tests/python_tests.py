#!/usr/bin/python3
"""Runs Python tests and writes their results in the format that the C++ tests use.

Usage: tests/python_tests.py [--part K/N] RESULTS.xml FOLDER [NAME...]

Runs the test_*.py of FOLDER; with names, only tests whose id holds one of them. With a part, only
the classes of tests that fall to the K-th of N runs, which may go on at the same time.
"""

import argparse
import collections
import pathlib
import sys
import time
import traceback
import unittest
import xml.etree.ElementTree as xml


class Results(unittest.TestResult):
    def __init__(self):
        super().__init__()
        self.root = xml.Element("testsuites")
        self.count = 0
        self.started = 0.0
        self.problems = []
        self.skip_reason = None

    def startTest(self, test):
        super().startTest(test)
        self.started = time.monotonic()
        self.problems = []
        self.skip_reason = None

    def stopTest(self, test):
        super().stopTest(test)
        self.record(test.id(), self.problems, self.skip_reason)

    def record(self, name, problems, skip_reason=None):
        self.count += 1
        seconds = time.monotonic() - self.started
        suite, _, case = name.rpartition(".")
        element = xml.SubElement(self.root, "testcase", classname=suite, name=case,
                                 time=f"{seconds:.3f}", result="completed")
        word = "passed"
        if skip_reason is not None:
            word = "skipped: " + skip_reason
            xml.SubElement(element, "skipped", message=skip_reason)
        if problems:
            word = "FAILED"
            xml.SubElement(element, "failure", message="\n".join(problems))
        print(f"  {name} ({seconds:.1f} s) {word}", flush=True)
        for problem in problems:
            print("    " + problem.rstrip().replace("\n", "\n    "), flush=True)

    def problem(self, error):
        self.problems.append("".join(traceback.format_exception(*error)))

    def addError(self, test, err):
        super().addError(test, err)
        if isinstance(test, unittest.TestCase):
            self.problem(err)
        else:  # the set-up of a whole class or module
            self.started = time.monotonic()
            self.record(str(test), ["".join(traceback.format_exception(*err))])

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self.problem(err)

    def addSubTest(self, test, subtest, err):
        super().addSubTest(test, subtest, err)
        if err is not None:
            self.problems.append(str(subtest))
            self.problem(err)

    def addSkip(self, test, reason):
        super().addSkip(test, reason)
        self.skip_reason = reason

    def addUnexpectedSuccess(self, test):
        super().addUnexpectedSuccess(test)
        self.problems.append("was expected to fail")


def cases_of(suite):
    for part in suite:
        if isinstance(part, unittest.TestSuite):
            yield from cases_of(part)
        else:
            yield part


def deal(tests, part, parts):
    """The tests of the classes that fall to a part, 1 to `parts`: each class to the part that has
    the fewest tests so far."""
    counts = collections.Counter(type(test) for test in tests)
    loads = [0] * parts
    mine = set()
    for kind, count in counts.most_common():
        lightest = loads.index(min(loads))
        loads[lightest] += count
        if lightest == part - 1:
            mine.add(kind)
    return [test for test in tests if type(test) in mine]


def part_of_all(text):
    part, _, parts = text.partition("/")
    if not 1 <= int(part) <= int(parts):
        raise ValueError(text)
    return int(part), int(parts)


def arguments():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--part", type=part_of_all, default=(1, 1))
    parser.add_argument("results", type=pathlib.Path)
    parser.add_argument("folder")
    parser.add_argument("names", nargs="*")
    return parser.parse_args()


def main():
    asked = arguments()
    sys.path.insert(0, asked.folder)
    found = unittest.defaultTestLoader.discover(asked.folder, top_level_dir=asked.folder)
    chosen = deal([test for test in cases_of(found)
                   if not asked.names or any(name in test.id() for name in asked.names)],
                  *asked.part)
    results = Results()
    unittest.TestSuite(chosen).run(results)
    asked.results.parent.mkdir(parents=True, exist_ok=True)
    xml.ElementTree(results.root).write(asked.results, encoding="utf-8", xml_declaration=True)
    return 0 if results.wasSuccessful() and results.count > 0 else 1


if __name__ == "__main__":
    sys.exit(main())
