"""Every window fits the screen, however small that is."""

import os
import pathlib
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]

# Pixels of the device, and how many of them make one of ours.
SCREENS = (((1024, 600), "1"), ((1366, 768), "1"), ((1920, 1080), "1.5"), ((1920, 1080), "2"))


class Screens(unittest.TestCase):
    def test_hold_every_window_whole(self):
        for (width, height), scale in SCREENS:
            with self.subTest(f"{width}x{height} at {scale}"):
                done = subprocess.run(
                    [ROOT / "tools/with-display", "/usr/bin/python3",
                     ROOT / "tests/e2e/screen_walk.py", str(width), str(height), scale],
                    env={**os.environ, "VELMORA_SCREEN": f"{width}x{height}",
                         "QT_SCALE_FACTOR": scale},
                    capture_output=True, text=True)
                self.assertEqual(0, done.returncode, done.stdout + done.stderr)


if __name__ == "__main__":
    unittest.main()
