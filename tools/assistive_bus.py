"""What is on the screen, as assistive programs are told by the accessibility bus."""

import ctypes
import os
import sys
from pathlib import Path

from virtual_display import wait_for

REGISTRY = "org.a11y.atspi.Registry"
ROOT = "/org/a11y/atspi/accessible/root"
ACCESSIBLE = "org.a11y.atspi.Accessible"
CHECKED, FOCUSABLE, FOCUSED = 4, 11, 12  # the bits of the state

systemd = ctypes.CDLL("libsystemd.so.0")


def text(value):
    return ctypes.c_char_p(value.encode())


class Message:
    """An answer or a signal, which is read from its start on."""

    def __init__(self, pointer):
        self.pointer = pointer

    def __del__(self):
        systemd.sd_bus_message_unref(self.pointer)

    def read(self, kind, holder):
        """The next value of a basic type; nothing behind the last."""
        value = holder()
        found = systemd.sd_bus_message_read(self.pointer, text(kind), ctypes.byref(value)) > 0
        return value.value if found else None

    def enter(self, kind, contents):
        return systemd.sd_bus_message_enter_container(self.pointer, ctypes.c_char(kind.encode()), text(contents)) > 0

    def leave(self):
        systemd.sd_bus_message_exit_container(self.pointer)


class Bus:
    """A connection."""

    def __init__(self, address):
        self.pointer = ctypes.c_void_p()
        check = [
            systemd.sd_bus_new(ctypes.byref(self.pointer)),
            systemd.sd_bus_set_address(self.pointer, text(address)),
            systemd.sd_bus_set_bus_client(self.pointer, 1),
            systemd.sd_bus_start(self.pointer),
        ]
        if min(check) < 0:
            sys.exit(f"{Path(sys.argv[0]).name}: there is no bus at {address}")

    def call(self, destination, path, interface, method, types="", *arguments):
        """The answer; nothing when the call fails."""
        answer = ctypes.c_void_p()
        result = systemd.sd_bus_call_method(
            self.pointer, *map(text, (destination, path, interface, method)), None, ctypes.byref(answer), text(types),
            *arguments,
        )
        return Message(answer) if result >= 0 else None

    def signals(self):
        """Those that have come since this was last asked, as members with their first text."""
        heard = []
        while True:
            signal = ctypes.c_void_p()
            result = systemd.sd_bus_process(self.pointer, ctypes.byref(signal))
            if result <= 0:
                return heard
            if not signal:
                continue
            message = Message(signal)
            systemd.sd_bus_message_get_member.restype = ctypes.c_char_p
            member = systemd.sd_bus_message_get_member(signal)
            if member:
                heard.append((member.decode(), (message.read("s", ctypes.c_char_p) or b"").decode()))


class Element:
    """An object of the tree."""

    def __init__(self, bus, owner, path):
        self.bus, self.owner, self.path = bus, owner, path

    def ask(self, method, types="", *arguments, interface=ACCESSIBLE):
        return self.bus.call(self.owner, self.path, interface, method, types, *arguments)

    def children(self):
        answer = self.ask("GetChildren")
        found = []
        if answer and answer.enter("a", "(so)"):
            while answer.enter("r", "so"):
                owner, path = answer.read("s", ctypes.c_char_p), answer.read("o", ctypes.c_char_p)
                found.append(Element(self.bus, owner.decode(), path.decode()))
                answer.leave()
        return found

    def name(self):
        answer = self.ask("Get", "ss", text(ACCESSIBLE), text("Name"), interface="org.freedesktop.DBus.Properties")
        if not answer or not answer.enter("v", "s"):
            return ""
        return answer.read("s", ctypes.c_char_p).decode()

    def has_state(self, bit):
        answer = self.ask("GetState")
        if not answer or not answer.enter("a", "u"):
            return False
        return bool(answer.read("u", ctypes.c_uint32) >> bit & 1)

    def press(self):
        self.ask("DoAction", "i", ctypes.c_int32(0), interface="org.a11y.atspi.Action")


def accessibility_bus():
    """That of the session, which is told that somebody listens."""
    session = Bus(os.environ["DBUS_SESSION_BUS_ADDRESS"])
    where = "org.a11y.Bus", "/org/a11y/bus"
    session.call(*where, "org.freedesktop.DBus.Properties", "Set", "ssv", text("org.a11y.Status"), text("IsEnabled"),
                 text("b"), ctypes.c_int(1))
    answer = session.call(*where, "org.a11y.Bus", "GetAddress")
    if not answer:
        sys.exit(f"{Path(sys.argv[0]).name}: there is no accessibility bus")
    return Bus(answer.read("s", ctypes.c_char_p).decode())


def elements(bus):
    """All that is in the program's window now."""
    applications = Element(bus, REGISTRY, ROOT).children()
    windows = [window for application in applications for window in application.children()]
    return [element for window in windows for element in window.children()]


def find(bus, name):
    def look():
        return next((element for element in elements(bus) if element.name() == name), None)

    return wait_for(f"an element called {name}", look)
