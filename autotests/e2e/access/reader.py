# SPDX-License-Identifier: Apache-2.0
"""The program as a screen reader meets it: its windows and their elements, read over the accessibility bus."""

import time
import warnings
from functools import cached_property

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from stage import PATIENCE_SECONDS, Failure, wait_until  # noqa: E402

warnings.filterwarnings("ignore", category=DeprecationWarning)

APPLICATION = "TamrexDiagnostics"
# The toolkit's current item is "focused" in a list without the keyboard as well.
LISTS = ("table", "list", "tree table", "tree", "page tab list")
# While it plays a digit, the program answers nobody.
ANSWER_MS = 20000


class Element:
    """One element. What is asked of it once stays as it was then."""

    def __init__(self, accessible, parent=None):
        self.accessible = accessible
        self.parent = parent

    @cached_property
    def role(self):
        return self.accessible.get_role_name()

    @cached_property
    def name(self):
        return self.accessible.get_name() or ""

    @cached_property
    def description(self):
        return self.accessible.get_description() or ""

    @cached_property
    def states(self):
        return {state.value_nick for state in self.accessible.get_state_set().get_states()}

    @cached_property
    def interfaces(self):
        return set(self.accessible.get_interfaces())

    @cached_property
    def extents(self):
        if "Component" not in self.interfaces:
            return (0, 0, 0, 0)
        place = self.accessible.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        return (place.x, place.y, place.width, place.height)

    @cached_property
    def children(self):
        found = (self.accessible.get_child_at_index(index) for index in range(self.accessible.get_child_count()))
        return [Element(child, self) for child in found if child]

    def has(self, *states):
        return all(state in self.states for state in states)

    def walk(self):
        """This one and what is shown within it."""
        yield self
        for child in self.children:
            if child.has("showing", "visible"):
                yield from child.walk()

    def step(self):
        return f'{self.role} "{self.name}"'

    def path(self):
        return self.step() if self.parent is None else f"{self.parent.path()} / {self.step()}"

    def is_shown(self):
        return self.has("showing", "visible") and self.extents[2] > 0 and self.extents[3] > 0

    def is_focused(self):
        above = self.parent
        while above is not None and above.role not in LISTS:
            above = above.parent
        return self.has("focused") and (above is None or above.has("focused"))

    def find(self, role, name=None):
        """The shown element with that role and name."""
        for element in self.walk():
            if name in (None, element.name) and element.role == role and element.is_shown():
                return element
        return None

    def value(self):
        return self.accessible.get_value_iface().get_current_value() if "Value" in self.interfaces else None

    def line(self):
        told = [f"{self.role} \"{self.name}\""]
        if self.description:
            told.append(f"({self.description})")
        kept = ("active", "checked", "checkable", "expanded", "focusable", "focused", "modal", "read-only", "selected")
        told += [state for state in kept if state in self.states]
        told += [] if self.has("sensitive") else ["disabled"]
        told += [] if self.is_shown() else ["hidden"]
        if "Value" in self.interfaces:
            told.append(f"value {self.value():g}")
        return " ".join(told + ["%d,%d %dx%d" % self.extents])

    def tree(self, depth=0):
        return "\n".join(["  " * depth + self.line()] + [child.tree(depth + 1) for child in self.children])


class Reader:
    def __init__(self):
        Atspi.init()
        Atspi.set_timeout(ANSWER_MS, ANSWER_MS)
        self._application = None
        self.heard = []
        self._listener = Atspi.EventListener.new(self._hear)
        for kind in ("object:announcement", "object:property-change", "object:state-changed:focused", "object:text-changed",
                     "object:selection-changed", "object:active-descendant-changed", "window:activate"):
            self._listener.register(kind)

    def _hear(self, event):
        if event.type.startswith("object:state-changed:focused") and not event.detail1:
            return
        try:
            source = f'{event.source.get_role_name()} "{event.source.get_name()}"'
        except (AttributeError, GLib.GError):  # already gone
            source = "?"
        self.heard.append((time.monotonic(), event.type, source))

    @staticmethod
    def pump():
        """Takes in what the program has told meanwhile."""
        while GLib.MainContext.default().iteration(False):
            pass

    def application(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_name() == APPLICATION:
                child.set_cache_mask(Atspi.Cache.NONE)
                return child
        return None

    def windows(self):
        """Those on the screen."""
        self.pump()
        application = self.application()
        if application is None:
            return []
        children = [application.get_child_at_index(index) for index in range(application.get_child_count())]
        shown = [child for child in children if child and child.get_state_set().contains(Atspi.StateType.SHOWING)]
        return [Element(child) for child in shown]

    def active(self):
        """The window with the keyboard."""
        return next((window for window in self.windows() if window.has("active")), None)

    def await_window(self, what, matches):
        return wait_until(f"{what} does not come up",
                          lambda: next((window for window in self.windows() if matches(window)), None))

    def await_active(self, what, matches=lambda window: True):
        def look():
            window = self.active()
            return window if window is not None and matches(window) else None

        try:
            return wait_until(f"{what} does not get the keyboard", look)
        except Failure as failure:
            raise Failure(f"{failure}; there are: " + "; ".join(window.line() for window in self.windows())) from failure

    def focused(self):
        """The innermost element with the keyboard."""
        window = self.active()
        if window is None:
            return None
        chain = [element for element in window.walk() if element.is_focused()]
        while len(chain) > 1 and chain[-1].role in ("filler", "panel"):  # the inside of a text says that it has it as well
            chain.pop()
        return chain[-1] if chain else None

    def await_focus(self, role, name=None, seconds=PATIENCE_SECONDS):
        def look():
            self.seen = self.focused()
            return self.seen if self.seen and self.seen.role == role and name in (None, self.seen.name) else None

        self.seen = None
        wanted = role if name is None else f'{role} "{name}"'
        try:
            return wait_until("", look, seconds)
        except Failure:
            raise Failure(f"the keyboard is not on {wanted} but on {self.seen.path() if self.seen else 'nothing'}") from None
