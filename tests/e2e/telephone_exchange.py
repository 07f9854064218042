#!/usr/bin/python3
"""Telephone services of a test's own: mocks of all three kinds on private message buses.

    exchange = TelephoneExchange()         # two buses; nobody is on them yet
    program = desk.start(**exchange.environment)
    exchange.start("ofono")                # or "modemmanager" or "kdeconnect"
    exchange.call("ofono", number="+15165551212", name="Ann")
    exchange.stop("ofono")
    exchange.end()                         # in any case

A test that has a session bus already, as one on a display has, hands its address over.

Started as a program it serves a test in another language: it writes the addresses of the system bus
and of the session bus in one line, and then obeys each line of its input, a list in JSON of a name
and keywords, and answers it with "done", until the input ends.
"""

import json
import os
import subprocess
import sys

import dbus
import dbusmock

from waiting import NotSeen, wait_until

KINDS = {
    "ofono": ("org.ofono", "/ril_0", "org.ofono.VoiceCallManager"),
    "modemmanager": ("org.freedesktop.ModemManager1", "/org/freedesktop/ModemManager1/Modem/0",
                     "org.freedesktop.ModemManager1.Modem.Voice"),
    "kdeconnect": ("org.kde.kdeconnect.daemon", "/modules/kdeconnect/devices/a1b2_3/telephony",
                   "org.kde.kdeconnect.device.telephony"),
}
MODEM_CALL = "org.freedesktop.ModemManager1.Call"
MODEM_CALLS = "/org/freedesktop/ModemManager1/Call/"


class TelephoneExchange:
    def __init__(self, session=None):
        self.processes = {}
        try:
            self.addresses = {"session": session}
            self._start_bus("system")
            if not session:
                self._start_bus("session")
        except BaseException:
            self.end()
            raise

    @property
    def environment(self):
        return {f"DBUS_{kind.upper()}_BUS_ADDRESS": address
                for kind, address in self.addresses.items()}

    def _start_bus(self, kind, place=None):
        where = [f"--address={place}"] if place else []
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address", *where],
                               stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL)
        self.processes[kind] = bus
        self.addresses[kind] = bus.stdout.readline().decode().split(",guid=")[0].strip()

    def restart_bus(self, kind):
        """The bus ends, and begins anew at its old place."""
        self._end_process(kind)
        self._start_bus(kind, self.addresses[kind])

    def _bus_of(self, service):
        kind = "session" if service == "kdeconnect" else "system"
        return dbus.bus.BusConnection(self.addresses[kind])

    def start(self, service):
        name, path, interface = KINDS[service]
        self.processes[service] = subprocess.Popen(
            ["/usr/bin/python3", "-m", "dbusmock",
             "--session" if service == "kdeconnect" else "--system", name, path, interface],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            env={**os.environ, **self.environment})
        bus = self._bus_of(service)
        wait_until(lambda: bus.name_has_owner(name), f"the service {service}")
        bus.close()

    def stop(self, service):
        self._end_process(service)

    def _mock(self, bus, service, path=None):
        name, own_path, _ = KINDS[service]
        return dbus.Interface(bus.get_object(name, path or own_path, introspect=False),
                              dbusmock.MOCK_IFACE)

    def signal(self, service, member, signature, values):
        """A signal of the service, whatever it says; values as DBus types."""
        bus = self._bus_of(service)
        self._mock(bus, service).EmitSignal(KINDS[service][2], member, signature,
                                            dbus.Array(values, signature="v"))
        bus.close()

    def call(self, service, number="", name="", state="incoming"):
        """A call as the service tells it; `state` of KDE Connect is the type of its signal."""
        if service == "ofono":
            self.signal(service, "CallAdded", "oa{sv}", [
                dbus.ObjectPath("/ril_0/voicecall01"),
                dbus.Dictionary({"State": state, "LineIdentification": number, "Name": name,
                                 "Multiparty": False}, signature="sv")])
        elif service == "kdeconnect":
            self.signal(service, "callReceived", "sss",
                        ["callReceived" if state == "incoming" else state, number, name])
        else:
            self.modem_call("added", number=number, incoming=state == "incoming")

    def modem_call(self, what, call=0, number="", incoming=True):
        """The calls of ModemManager are objects: "added", "changed" (the number) or "deleted"."""
        bus = self._bus_of("modemmanager")
        modem = self._mock(bus, "modemmanager")
        path = f"{MODEM_CALLS}{call}"
        if what == "added":
            try:
                modem.RemoveObject(path)
            except dbus.DBusException:
                pass  # it is the first of this path
            modem.AddObject(path, MODEM_CALL,
                            dbus.Dictionary({"Direction": dbus.Int32(1 if incoming else 2),
                                             "State": dbus.Int32(3), "Number": number},
                                            signature="sv"),
                            dbus.Array([], signature="(ssss)"))
            modem.EmitSignal(KINDS["modemmanager"][2], "CallAdded", "o",
                             dbus.Array([dbus.ObjectPath(path)], signature="v"))
        elif what == "changed":
            self._mock(bus, "modemmanager", path).UpdateProperties(
                MODEM_CALL, dbus.Dictionary({"Number": number}, signature="sv"))
        else:
            modem.EmitSignal(KINDS["modemmanager"][2], "CallDeleted", "o",
                             dbus.Array([dbus.ObjectPath(path)], signature="v"))
            modem.RemoveObject(path)
        bus.close()

    def _end_process(self, name):
        process = self.processes.pop(name, None)
        if process is not None:
            process.terminate()
            process.wait()
            if process.stdout:
                process.stdout.close()

    def end(self):
        for name in reversed(list(self.processes)):
            self._end_process(name)


def main():
    exchange = TelephoneExchange()
    try:
        print(exchange.addresses["system"], exchange.addresses["session"], flush=True)
        for line in sys.stdin:
            name, keywords = json.loads(line)
            getattr(exchange, name)(**keywords)
            print("done", flush=True)
    except NotSeen as why:
        print(why, flush=True)
    finally:
        exchange.end()


if __name__ == "__main__":
    main()
