"""Including Qt in logic does not compile: tried with the very flags of a file of each logic target.

VELMORA_BUILD names the build folder whose compile commands are used.
"""

import json
import os
import pathlib
import shlex
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SUBSYSTEMS = ("platform", "core", "phonebook", "planner", "docpad", "reports", "accessories")
LOGIC = [folder for folder in SUBSYSTEMS if any((ROOT / "src" / folder).glob("*.cpp"))]


def build_folder():
    return pathlib.Path(os.environ.get("VELMORA_BUILD", ROOT / "build" / "dev")).resolve()


def flags_of(folder):
    """Compiler and flags of some file of src/<folder>, without its input and output."""
    commands = json.loads((build_folder() / "compile_commands.json").read_text())
    targets = f"src/CMakeFiles/velmora_{folder}.dir/"
    for entry in commands:
        words = shlex.split(entry["command"])
        if targets not in words[words.index("-o") + 1]:
            continue
        words = words[1:] if words[0].endswith("ccache") else words
        for option in ("-o", "-c"):
            at = words.index(option)
            del words[at:at + 2]
        return words
    return None


def compiles(flags, text):
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder) / "Probe.cpp"
        source.write_text(text)
        done = subprocess.run([*flags, "-fsyntax-only", str(source)], capture_output=True, text=True)
        return done.returncode == 0, done.stderr


class LogicWithoutQt(unittest.TestCase):
    def test_qt_is_not_found_from_logic(self):
        self.assertIn("core", LOGIC)
        for folder in LOGIC:
            with self.subTest(folder):
                flags = flags_of(folder)
                self.assertIsNotNone(flags, f"velmora_{folder} is not built")
                good, why = compiles(flags, '#include <string>\n#include "platform/Clock.h"\n')
                self.assertTrue(good, why)
                good, why = compiles(flags, '#include <QString>\n#include "platform/Clock.h"\n')
                self.assertFalse(good)
                self.assertRegex(why, "QString.*(No such file or directory|file not found)")

    def test_qt_is_found_from_an_adapter(self):
        flags = flags_of("platform_qt")
        self.assertIsNotNone(flags)
        good, why = compiles(flags, "#include <QString>\n")
        self.assertTrue(good, why)


if __name__ == "__main__":
    unittest.main()
