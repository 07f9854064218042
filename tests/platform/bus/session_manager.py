#!/usr/bin/python3
"""A session manager that a message bus starts when it is asked: it takes one request and writes it down.

Usage: session_manager.py NAME PATH INTERFACE OPERATION FILE
"""

import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

name, path, interface, operation, file = sys.argv[1:]


def take(_self):
    with open(file, "w", encoding="ascii") as written:
        written.write(operation)
    GLib.idle_add(loop.quit)


take.__name__ = operation
Manager = type("Manager", (dbus.service.Object,), {operation: dbus.service.method(interface)(take)})

dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus()
owned = dbus.service.BusName(name, bus)
loop = GLib.MainLoop()
manager = Manager(bus, path)
loop.run()
