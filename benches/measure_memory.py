#!/usr/bin/python3
"""Measures the memory of Velmora with two large books, after it has shown the fullest letter of both.

Usage: benches/measure_memory.py FOLDER

FOLDER holds the program and both books. Runs on a display of its own: start it by
tools/with-display. The program is run twice: once to see where its controls are, and once, with
nothing that looks into it, to be measured. The window of today's events, which would lie over the
controls, is loaded and hidden.
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests" / "e2e"))

from settings import hide_events_at_start  # noqa: E402 (the path comes first)
from velmora_driver import Velmora, middle, wait_until, xdo  # noqa: E402

LIMIT_MB = 90
FULLEST_LETTER = 18  # S
MB = 1024 * 1024


def places_of_controls(binary, environment):
    """Where to click: the Phonebook pane, the fullest letter, the White Pages."""
    program = Velmora(binary, environment)
    try:
        places = [middle(program.find(id="Picture1_1"))]
        program.show_pane("Phonebook")
        places += [middle(program.find(id=id)) for id in (f"Command23_{FULLEST_LETTER}", "PhonebookToolbar_White")]
        program.close()
        return places
    finally:
        program.end()


def bytes_read(process):
    with open(f"/proc/{process.pid}/io") as file:
        return int(file.readline().split()[1])


def memory(process, name):
    with open(f"/proc/{process.pid}/status") as file:
        for line in file:
            if line.startswith(name + ":"):
                return int(line.split()[1]) * 1024 / MB
    raise ValueError(name)


def measure(binary, environment, places, book_size):
    process = subprocess.Popen([binary], cwd=binary.parent, env={**os.environ, **environment})
    try:
        wait_until(lambda: bytes_read(process) >= book_size, "the first letter to be read")
        window = wait_until(lambda: xdo("search", "--onlyvisible", "--pid", process.pid,
                                        "--name", "^Velmora$"), "the window").split()[0]
        xdo("windowactivate", "--sync", window)
        pane, letter, white = places
        xdo("mousemove", *pane, "click", 1)
        for place in (letter, white):
            before = bytes_read(process)
            xdo("mousemove", *place)
            xdo("click", 1)
            wait_until(lambda seen=before: bytes_read(process) >= seen + book_size,
                       "the book to be read")
        # It is idle again when it uses no more time.
        wait_until(lambda: idle(process), "the program to rest")
        return memory(process, "VmRSS"), memory(process, "VmHWM")
    finally:
        process.terminate()
        process.wait()


def idle(process):
    def used():
        with open(f"/proc/{process.pid}/stat") as file:
            return sum(map(int, file.read().rpartition(")")[2].split()[11:13]))
    before = used()
    time.sleep(0.3)
    return used() == before


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    folder = pathlib.Path(sys.argv[1]).resolve()
    binary = folder / "velmora"
    book_size = min((folder / name).stat().st_size for name in ("DATAY.QEL", "DATAW.QEL"))
    with tempfile.TemporaryDirectory(prefix="velmora-memory.") as configurations:
        hide_events_at_start(configurations)
        environment = {"XDG_CONFIG_HOME": configurations}
        places = places_of_controls(binary, environment)
        resident, most = measure(binary, environment, places, book_size)
    print(f"memory-two-books-of-30000 {resident:.1f} MB (limit {LIMIT_MB})")
    print(f"memory-two-books-of-30000-peak {most:.1f} MB (limit {LIMIT_MB})")
    return 0 if max(resident, most) <= LIMIT_MB else 1


if __name__ == "__main__":
    sys.exit(main())
