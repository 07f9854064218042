#!/usr/bin/python3
"""Counts the results of a run and prints "N passed, N failed" as the last line.

Usage: tests/count_results.py RESULTS [BUILD]

RESULTS is the folder that holds what the run left behind:
  *.xml   results of test programs, in the format of GoogleTest
  checks  a line "passed NAME" or "failed NAME" for each check that is no test program
BUILD is the build folder whose test programs ctest has run. A case that one of them has but for
which it left no result, because it crashed, counts as failed. Ends with 1 when anything failed or
nothing passed.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as xml


class Count:
    def __init__(self):
        self.passed = 0
        self.failed = []
        self.skipped = []

    def add_xml(self, path):
        """Adds the results of one file; returns the names of its cases."""
        seen = set()
        try:
            cases = list(xml.parse(path).iter("testcase"))
        except xml.ParseError as error:
            self.failed.append(f"{path.name}: {error}")
            return seen
        for case in cases:
            name = f"{case.get('classname')}.{case.get('name')}"
            seen.add(name)
            skipped = case.find("skipped")
            if case.find("failure") is not None:
                self.failed.append(name)
            elif skipped is not None:
                self.skipped.append(f"{name}: {skipped.get('message', '')}")
            elif case.get("status") == "notrun":
                self.skipped.append(f"{name}: disabled")
            else:
                self.passed += 1
        return seen

    def add_crashed(self, program, log, seen):
        """Adds the cases of a program that are missing from its results."""
        cases = cases_of(program)
        if cases is None:
            self.failed.append(f"{program.name}: can not be run")
            return
        ended = set(re.findall(r"^\[       OK \] (\S+)", log, re.MULTILINE))
        for name in cases:
            if name in seen:
                continue
            if name in ended:
                self.passed += 1
            else:
                self.failed.append(f"{name}: no result, {program.name} ended too early")

    def add_checks(self, path):
        for line in path.read_text().splitlines():
            word, name = line.split(" ", 1)
            if word == "passed":
                self.passed += 1
            else:
                self.failed.append(name)


def cases_of(program):
    """All cases of a GoogleTest program by name, or None when it can not be asked."""
    try:
        done = subprocess.run([program, "--gtest_list_tests"], capture_output=True, text=True,
                              timeout=60, check=True,
                              env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    except (OSError, subprocess.SubprocessError):
        return None
    suite, cases = "", []
    for line in done.stdout.splitlines():
        name = line.split("#")[0].rstrip()
        if not name.startswith(" "):
            suite = name
        elif "DISABLED_" not in suite + name:
            cases.append(suite + name.strip())
    return cases


def programs_of(build):
    """The test programs that ctest knows in a build folder."""
    done = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"],
                          capture_output=True, text=True, check=True)
    return [pathlib.Path(test["command"][0]) for test in json.loads(done.stdout)["tests"]]


def count(folder, build):
    result = Count()
    seen = {path.stem: result.add_xml(path) for path in sorted(folder.glob("*.xml"))}
    if build is not None:
        log = build / "Testing" / "Temporary" / "LastTest.log"
        text = log.read_text(errors="replace") if log.exists() else ""
        for program in programs_of(build):
            result.add_crashed(program, text, seen.get(program.name, set()))
    if (folder / "checks").exists():
        result.add_checks(folder / "checks")
    return result


def main():
    if len(sys.argv) not in (2, 3):
        print(__doc__, file=sys.stderr)
        return 2
    build = pathlib.Path(sys.argv[2]) if len(sys.argv) == 3 else None
    result = count(pathlib.Path(sys.argv[1]), build)
    for line in result.skipped:
        print("skipped: " + line)
    for line in result.failed:
        print("failed: " + line)
    print(f"{result.passed} passed, {len(result.failed)} failed")
    return 0 if result.passed and not result.failed else 1


if __name__ == "__main__":
    sys.exit(main())
