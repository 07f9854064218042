"""A session manager as desktops have one, which the program finds by SESSION_MANAGER."""

import ctypes
import os
import queue
import select
import threading
from ctypes import CFUNCTYPE, POINTER, c_char_p, c_int, c_ulong, c_void_p

ICE = ctypes.CDLL("libICE.so.6")
SM = ctypes.CDLL("libSM.so.6")

SAVE_LOCAL, SAVE_BOTH = 1, 2
NO_INTERACTION, ANY_INTERACTION = 0, 2
NO_PROTOCOL_ERROR = 0
PENDING, ACCEPTED = 0, 1


def declare(library, name, result, *arguments):
    function = getattr(library, name)
    function.restype, function.argtypes = result, arguments
    return function


class Callback(ctypes.Structure):
    _fields_ = [("function", c_void_p), ("data", c_void_p)]


class Callbacks(ctypes.Structure):
    """In the library's order, which is that of the bits of its mask, too."""
    _fields_ = [(name, Callback) for name in (
        "register", "interact_request", "interact_done", "save_request", "phase2_request",
        "save_done", "close", "set_properties", "delete_properties", "get_properties")]


ALL_CALLBACKS = (1 << len(Callbacks._fields_)) - 1

NewClient = CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(Callbacks),
                      POINTER(c_char_p))
HostIsWelcome = CFUNCTYPE(c_int, c_char_p)
OnError = CFUNCTYPE(None, c_void_p)
Register = CFUNCTYPE(c_int, c_void_p, c_void_p, c_char_p)
Plain = CFUNCTYPE(None, c_void_p, c_void_p)
WithInt = CFUNCTYPE(None, c_void_p, c_void_p, c_int)
WithList = CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p)
SaveRequest = CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_int, c_int, c_int, c_int)

initialize = declare(SM, "SmsInitialize", c_int, c_char_p, c_char_p, NewClient, c_void_p,
                     HostIsWelcome, c_int, c_char_p)
generate_id = declare(SM, "SmsGenerateClientID", c_void_p, c_void_p)
register_reply = declare(SM, "SmsRegisterClientReply", c_int, c_void_p, c_void_p)
save_yourself = declare(SM, "SmsSaveYourself", None, c_void_p, c_int, c_int, c_int, c_int)
interact = declare(SM, "SmsInteract", None, c_void_p)
save_phase2 = declare(SM, "SmsSaveYourselfPhase2", None, c_void_p)
save_complete = declare(SM, "SmsSaveComplete", None, c_void_p)
shutdown_cancelled = declare(SM, "SmsShutdownCancelled", None, c_void_p)
die = declare(SM, "SmsDie", None, c_void_p)
clean_up = declare(SM, "SmsCleanUp", None, c_void_p)
no_listen = declare(ICE, "_IceTransNoListen", c_int, c_char_p)
listen = declare(ICE, "IceListenForConnections", c_int, POINTER(c_int), POINTER(POINTER(c_void_p)),
                 c_int, c_char_p)
listen_ids = declare(ICE, "IceComposeNetworkIdList", c_char_p, c_int, POINTER(c_void_p))
listen_number = declare(ICE, "IceGetListenConnectionNumber", c_int, c_void_p)
stop_listening = declare(ICE, "IceFreeListenObjs", None, c_int, POINTER(c_void_p))
welcome_hosts = declare(ICE, "IceSetHostBasedAuthProc", None, c_void_p, HostIsWelcome)
accept = declare(ICE, "IceAcceptConnection", c_void_p, c_void_p, POINTER(c_int))
connection_status = declare(ICE, "IceConnectionStatus", c_int, c_void_p)
connection_number = declare(ICE, "IceConnectionNumber", c_int, c_void_p)
process_messages = declare(ICE, "IceProcessMessages", c_int, c_void_p, c_void_p, c_void_p)
close_at_once = declare(ICE, "IceSetShutdownNegotiation", None, c_void_p, c_int)
close_connection = declare(ICE, "IceCloseConnection", c_int, c_void_p)
set_error_handler = declare(ICE, "IceSetIOErrorHandler", c_void_p, OnError)


class SessionManager:
    """Serves one program after the other, on a thread of its own, the only one in the libraries.

    `address` is for SESSION_MANAGER. `events` tells in order what the program did: "registered",
    "interact", "cancel", "saved", "not saved". Nobody may make two of these in one process.
    """

    def __init__(self):
        self.events = []
        self._client = None
        self._ending = False
        self._connections = []
        self._work = queue.SimpleQueue()
        self._wake, self._waker = os.pipe()
        self._listeners, self._count = POINTER(c_void_p)(), c_int()
        self._keep = []  # what the libraries hold on to
        self._open()
        self._ends = False
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()

    def save(self, shutdown, ask=False):
        """Asks the program to save itself; it may ask the user if `ask`."""
        self.events.clear()
        style = ANY_INTERACTION if ask else NO_INTERACTION
        self._ending = shutdown
        self._post_for_client(save_yourself, SAVE_BOTH, shutdown, style, False)

    def call_off(self):
        self._post_for_client(shutdown_cancelled)

    def end_program(self):
        self._post_for_client(die)

    def close(self):
        self._post(lambda: setattr(self, "_ends", True))
        self._thread.join()
        os.close(self._wake)
        os.close(self._waker)

    def _post_for_client(self, function, *arguments):
        # The program may have ended by itself meanwhile.
        self._post(lambda: self._client and function(self._client, *arguments))

    def _post(self, work):
        self._work.put(work)
        os.write(self._waker, b"!")

    def _open(self):
        error = ctypes.create_string_buffer(256)
        welcome = self._kept(HostIsWelcome(lambda host: 1))
        # By default a lost connection ends the process.
        set_error_handler(self._kept(OnError(lambda connection: None)))
        no_listen(b"tcp")
        if not initialize(b"velmora", b"1", self._kept(NewClient(self._new_client)), None, welcome,
                          len(error), error):
            raise OSError(error.value)
        if not listen(self._count, self._listeners, len(error), error):
            raise OSError(error.value)
        for listener in self._each_listener():
            welcome_hosts(listener, welcome)
        self.address = listen_ids(self._count, self._listeners).decode()

    def _kept(self, function):
        self._keep.append(function)
        return function

    def _each_listener(self):
        return [self._listeners[index] for index in range(self._count.value)]

    def _run(self):
        while not self._ends:
            numbers = {listen_number(one): one for one in self._each_listener()}
            connections = {connection_number(one): one for one in self._connections}
            ready, _, _ = select.select([self._wake, *numbers, *connections], [], [])
            for number in ready:
                if number == self._wake:
                    os.read(number, 1)
                    self._work.get()()
                elif number in numbers:
                    self._accept(numbers[number])
                elif connections[number] in self._connections:
                    self._serve(connections[number])
        for connection in list(self._connections):
            self._drop(connection)
        stop_listening(self._count, self._listeners)

    def _accept(self, listener):
        connection = accept(listener, c_int())
        if not connection:
            return
        self._connections.append(connection)
        while connection_status(connection) == PENDING:
            if process_messages(connection, None, None) != NO_PROTOCOL_ERROR:
                break
        if connection_status(connection) != ACCEPTED:
            self._drop(connection)

    def _serve(self, connection):
        if process_messages(connection, None, None) != NO_PROTOCOL_ERROR:
            self._drop(connection)

    def _drop(self, connection):
        self._connections.remove(connection)
        if self._client:
            clean_up(self._client)
            self._client = None
        close_at_once(connection, False)
        close_connection(connection)

    def _new_client(self, client, data, mask, callbacks, reason):
        self._client = client
        mask[0] = ALL_CALLBACKS
        functions = {
            "register": Register(self._register),
            "interact_request": WithInt(lambda client, data, kind: self._interact(client)),
            "interact_done": WithInt(lambda client, data, cancel: self._interacted(cancel)),
            "save_request": SaveRequest(lambda *arguments: None),
            "phase2_request": Plain(lambda client, data: save_phase2(client)),
            "save_done": WithInt(lambda client, data, success: self._saved(success)),
            "close": WithList(lambda *arguments: None),  # the connection's end follows
            "set_properties": WithList(lambda *arguments: None),
            "delete_properties": WithList(lambda *arguments: None),
            "get_properties": Plain(lambda *arguments: None),
        }
        for name, function in functions.items():
            getattr(callbacks[0], name).function = ctypes.cast(self._kept(function), c_void_p)
        return 1

    def _register(self, client, data, earlier):
        register_reply(client, generate_id(client))
        # Each program that is new is to save itself once.
        save_yourself(client, SAVE_LOCAL, False, NO_INTERACTION, False)
        self.events.append("registered")
        return 1

    def _interact(self, client):
        self.events.append("interact")
        interact(client)

    def _interacted(self, cancel):
        if cancel:
            self.events.append("cancel")

    def _saved(self, success):
        self.events.append("saved" if success else "not saved")
        if self._ending:
            return  # nothing is complete before the session has ended
        save_complete(self._client)
