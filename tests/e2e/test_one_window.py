"""Starts of one user on one folder share one window; the desktop finds it by its name."""

import os
import pathlib
import shutil
import signal
import subprocess
import unittest

import dbus

from desk_test import DeskTest
from velmora_driver import Atspi, Velmora, has_state, key, text_of, wait_until, xdo

NAME = "example.velmora.Velmora"


class StartedByOthers:
    """A process that is no child of this one, as far as the driver asks for it."""

    def __init__(self, pid):
        self.pid = pid
        self.returncode = None

    def poll(self):
        try:
            state = pathlib.Path(f"/proc/{self.pid}/stat").read_text().rpartition(")")[2].split()[0]
        except FileNotFoundError:
            state = "Z"
        if state == "Z":
            self.returncode = 0
        return self.returncode

    def wait(self, timeout=None):
        return wait_until(lambda: self.poll() is not None, "the end of the program")

    def kill(self):
        os.kill(self.pid, signal.SIGKILL)


class OneWindow(DeskTest):
    def start_again(self, **environment):
        """A start that is to end by itself; its exit code."""
        done = subprocess.run([self.desk.binary], stdin=subprocess.DEVNULL, timeout=60,
                              env={**os.environ, **self.desk.environment, **environment})
        return done.returncode

    def wait_active(self, window):
        wait_until(lambda: has_state(window, Atspi.StateType.ACTIVE), "the window to be active")

    def test_a_second_start_brings_the_window_of_the_first_to_the_front(self):
        program = self.start()
        window = program.main_window_id()
        xdo("windowminimize", window)
        wait_until(lambda: not has_state(program.main, Atspi.StateType.ACTIVE),
                   "the window to be minimised")
        self.assertEqual(0, self.start_again())
        self.wait_active(program.main)
        self.assertEqual(0, self.start_again(XDG_ACTIVATION_TOKEN="a-token"))
        self.assert_closes_well()

    def test_a_dialog_that_is_open_comes_with_it(self):
        program = self.start()
        program.menu("Help", "About")
        about = wait_until(lambda: next(
            (window for window in program.windows()
             if window.get_name() != program.main.get_name()), None), "the about box")
        self.assertEqual(0, self.start_again())
        self.wait_active(about)
        key("Escape")
        self.assert_closes_well()

    def test_another_folder_other_settings_and_a_wish_for_another_have_windows_of_their_own(self):
        first = self.start()
        elsewhere = self.desk.base / "elsewhere"
        elsewhere.mkdir()
        shutil.copy2(self.desk.binary, elsewhere / "velmora")
        settings = str(self.desk.base / "other settings")
        for binary, more in ((elsewhere / "velmora", {}),
                             (self.desk.binary, {"XDG_CONFIG_HOME": settings}),
                             (self.desk.binary, {"VELMORA_ANOTHER": "1"})):
            other = Velmora(binary, {**self.desk.environment, **more}, activate=False)
            self.addCleanup(other.end)
            self.assertIsNone(first.process.poll())
            self.assertIsNone(other.process.poll())
            other.end()

    def test_a_link_to_the_folder_leads_to_the_same_window(self):
        self.start()
        link = self.desk.base / "link"
        link.symlink_to(self.desk.folder)
        done = subprocess.run([link / "velmora"], timeout=60,
                              env={**os.environ, **self.desk.environment})
        self.assertEqual(0, done.returncode)
        self.assert_closes_well()

    def test_one_that_was_killed_is_no_obstacle(self):
        self.start().end()
        self.start()
        self.assertEqual(0, self.start_again())
        self.assert_closes_well()

    def open_link(self, link):
        """As the desktop does when a link is clicked; a program that is not there is started."""
        bus = dbus.bus.BusConnection(os.environ["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(bus.close)
        desktop = bus.get_object(NAME, "/" + NAME.replace(".", "/"), introspect=False)
        dbus.Interface(desktop, "org.freedesktop.Application").Open(
            [link], dbus.Dictionary({"activation-token": "a-token"}, signature="sv"))
        return int(bus.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                     "org.freedesktop.DBus", "GetConnectionUnixProcessID", "s",
                                     (NAME,)))

    def wait_number(self, program, number):
        wait_until(lambda: program.shows("Label16"), "the Dialer pane")
        wait_until(lambda: text_of(program.find(id="Label16")) == number, "the number")
        self.assertFalse(self.desk.book("phonelog.txt").exists())

    def test_a_telephone_link_brings_its_number_and_dials_nothing(self):
        program = self.start()
        bus = dbus.SessionBus()
        wait_until(lambda: bus.name_has_owner(NAME), "the name on the bus")
        self.assertEqual(program.process.pid, self.open_link("tel:+1-516-555-1212;ext=9"))
        self.wait_number(program, "+15165551212")
        self.wait_active(program.main)
        self.assert_closes_well()

    def offer_service(self):
        """What the package has for the message bus, for the program of this desk."""
        services = pathlib.Path(os.environ["XDG_RUNTIME_DIR"]) / "dbus-1/services"
        services.mkdir(parents=True, exist_ok=True)
        start = self.desk.base / "start"
        more = {**os.environ, **self.desk.environment, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                "VELMORA_TEST_IDS": "1"}
        start.write_text("#!/usr/bin/python3\nimport os\n"
                         f"os.execve({str(self.desk.binary)!r}, ['velmora'], {more!r})\n")
        start.chmod(0o755)
        service = services / f"{NAME}.service"
        service.write_text(f"[D-BUS Service]\nName={NAME}\nExec={start}\n")
        self.addCleanup(service.unlink)

    def test_a_telephone_link_starts_the_program_where_it_does_not_run(self):
        self.offer_service()
        process = StartedByOthers(self.open_link("tel:5551212"))
        program = self.program = Velmora(self.desk.binary, process=process)
        self.addCleanup(program.end)
        self.wait_number(program, "5551212")
        program.activate()
        key("ctrl+q")
        wait_until(lambda: process.poll() is not None, "the end")


if __name__ == "__main__":
    unittest.main()
