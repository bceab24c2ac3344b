# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""An input method of the test's own, which the toolkit reaches over the session bus as it reaches a
desktop's. Once Control+space has switched it on, letters are composed until Return decides them."""

import threading

from gi.repository import Gio, GLib

NAME = "org.freedesktop.portal.IBus"
BUS_PATH = "/org/freedesktop/IBus"
CONTEXT_PATH = BUS_PATH + "/InputContext_1"
CONTEXT = "org.freedesktop.IBus.InputContext"

#: With this the toolkit finds it, and waits for its answer to each key before it takes the next.
ENVIRONMENT = {"QT_IM_MODULE": "ibus", "IBUS_USE_PORTAL": "1", "IBUS_ENABLE_SYNC_MODE": "1"}

INTERFACES = Gio.DBusNodeInfo.new_for_xml("""
<node>
  <interface name="org.freedesktop.IBus.Portal">
    <method name="CreateInputContext">
      <arg type="s" direction="in"/><arg type="o" direction="out"/>
    </method>
  </interface>
  <interface name="org.freedesktop.IBus.InputContext">
    <method name="ProcessKeyEvent">
      <arg type="u" direction="in"/><arg type="u" direction="in"/><arg type="u" direction="in"/>
      <arg type="b" direction="out"/>
    </method>
    <method name="SetCapabilities"><arg type="u" direction="in"/></method>
    <method name="FocusIn"/>
    <method name="FocusOut"/>
    <method name="Reset"/>
    <method name="SetCursorLocation">
      <arg type="i" direction="in"/><arg type="i" direction="in"/>
      <arg type="i" direction="in"/><arg type="i" direction="in"/>
    </method>
    <method name="SetCursorLocationRelative">
      <arg type="i" direction="in"/><arg type="i" direction="in"/>
      <arg type="i" direction="in"/><arg type="i" direction="in"/>
    </method>
    <method name="SetSurroundingText">
      <arg type="v" direction="in"/><arg type="u" direction="in"/><arg type="u" direction="in"/>
    </method>
    <property name="ClientCommitPreedit" type="(b)" access="write"/>
    <signal name="CommitText"><arg type="v"/></signal>
    <signal name="UpdatePreeditText"><arg type="v"/><arg type="u"/><arg type="b"/></signal>
  </interface>
</node>""").interfaces

RETURN = 0xff0d
CONTROL = 1 << 2
RELEASED = 1 << 30


def bus_text(text):
    """A text in the form that input methods send."""
    attributes = GLib.Variant("(sa{sv}av)", ("IBusAttrList", {}, []))
    return GLib.Variant("(sa{sv}sv)", ("IBusText", {}, text, attributes))


class InputMethod:
    """Serves from its start to the end of the process, in a thread."""

    def __init__(self):
        self.is_on = False
        self.composed = ""
        self.connection = None
        ready = threading.Event()
        threading.Thread(target=self.serve, args=(ready,), daemon=True).start()
        assert ready.wait(20), "the input method has not started"

    def serve(self, ready):
        context = GLib.MainContext.new()
        context.push_thread_default()
        self.connection = Gio.DBusConnection.new_for_address_sync(
            Gio.dbus_address_get_for_bus_sync(Gio.BusType.SESSION),
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        for path, interface in zip((BUS_PATH, CONTEXT_PATH), INTERFACES):
            self.connection.register_object(path, interface, self.answer, None,
                                            lambda *_: True)
        Gio.bus_own_name_on_connection(self.connection, NAME, Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: ready.set(), None)
        GLib.MainLoop.new(context, False).run()

    def answer(self, _connection, _sender, _path, _interface, method, arguments, invocation):
        result = None
        if method == "CreateInputContext":
            result = GLib.Variant("(o)", (CONTEXT_PATH,))
        elif method == "ProcessKeyEvent":
            result = GLib.Variant("(b)", (self.takes(*arguments.unpack()),))
        elif method in ("Reset", "FocusOut"):
            self.composed = ""
        invocation.return_value(result)

    def takes(self, key, _code, state):
        """Whether the key is the input method's and not the program's."""
        if key == ord(" ") and state & CONTROL:
            if not state & RELEASED:
                self.is_on = not self.is_on
            return True
        if not self.is_on or state & RELEASED:
            return False
        if ord("a") <= key <= ord("z"):
            self.composed += chr(key)
            self.send("UpdatePreeditText", "(vub)",
                      (bus_text(self.composed), len(self.composed), True))
            return True
        if key == RETURN and self.composed:
            self.send("UpdatePreeditText", "(vub)", (bus_text(""), 0, False))
            self.send("CommitText", "(v)", (bus_text(self.composed),))
            self.composed = ""
            return True
        return False

    def send(self, signal, kinds, values):
        self.connection.emit_signal(None, CONTEXT_PATH, CONTEXT, signal,
                                    GLib.Variant(kinds, values))
