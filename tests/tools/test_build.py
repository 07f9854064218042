"""tools/build, in a project of its own that is moved after a build."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]

LISTS = """cmake_minimum_required(VERSION 3.25)
project(Small LANGUAGES NONE)
add_custom_target(told ALL COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_SOURCE_DIR}/told)
"""
PRESETS = """{ "version": 6,
  "configurePresets": [ { "name": "small", "generator": "Ninja",
                          "binaryDir": "${sourceDir}/build/small" } ],
  "buildPresets": [ { "name": "small", "configurePreset": "small" } ] }
"""


class Build(unittest.TestCase):
    def setUp(self):
        base = tempfile.TemporaryDirectory()
        self.addCleanup(base.cleanup)
        self.base = pathlib.Path(base.name)
        self.checkout = self.base / "first"
        (self.checkout / "tools").mkdir(parents=True)
        shutil.copy2(ROOT / "tools/build", self.checkout / "tools")
        (self.checkout / "CMakeLists.txt").write_text(LISTS)
        (self.checkout / "CMakePresets.json").write_text(PRESETS)
        self.build(self.checkout)

    def build(self, checkout):
        done = subprocess.run([checkout / "tools/build", "small"], capture_output=True, text=True)
        self.assertEqual(0, done.returncode, done.stdout + done.stderr)
        self.assertTrue((checkout / "told").exists())
        (checkout / "told").unlink()

    def mark(self, checkout):
        """A file in the build folder, which is gone when that is begun anew."""
        (checkout / "build/small/mark").touch()
        return checkout / "build/small/mark"

    def test_a_second_build_goes_on_with_the_first(self):
        mark = self.mark(self.checkout)
        self.build(self.checkout)
        self.assertTrue(mark.exists())

    def test_a_checkout_that_was_moved_is_built_anew(self):
        moved = self.base / "moved to here"
        self.checkout.rename(moved)
        mark = self.mark(moved)
        self.build(moved)
        self.assertFalse(mark.exists())

    def test_a_copy_is_built_anew_and_the_first_stays_as_it_is(self):
        copy = self.base / "copy"
        shutil.copytree(self.checkout, copy)
        self.build(copy)
        self.assertFalse((self.checkout / "told").exists(), "the copy is what is built")
        mark = self.mark(self.checkout)
        self.build(self.checkout)
        self.assertTrue(mark.exists())

    def test_a_link_to_the_checkout_leads_to_the_same_build(self):
        link = self.base / "link"
        link.symlink_to(self.checkout)
        mark = self.mark(self.checkout)
        self.build(link)
        self.assertTrue(mark.exists())


if __name__ == "__main__":
    unittest.main()
