# SPDX-License-Identifier: Apache-2.0
"""A person who sees, and has a keyboard only: presses a key, and sees where the keyboard is."""

import subprocess
from contextlib import contextmanager

from reader import LISTS
from stage import PATIENCE_SECONDS, Failure, wait_until

LONGEST_ROUND = 40
SECOND_LOOKS = 3
MENU_SECONDS = 15


def place_of(element):
    """What is seen to have the keyboard: of a list's item, the whole list."""
    above = element.parent
    while above is not None and above.role not in LISTS:
        above = above.parent
    return (above or element).extents


class Keys:
    def __init__(self, stage, reader):
        self.stage = stage
        self.reader = reader
        self.seen_count = 0

    def press_until(self, key, role, name=None):
        """Presses `key` until an element has the keyboard, for at most one round through a window."""
        for _ in range(LONGEST_ROUND):
            before = self._here()
            if before.role == role and name in (None, before.name):
                return before
            self.stage.press(key)
            self.moved_from(before)
        raise Failure(f'{key} does not lead to {role} "{name}"')

    def _here(self):
        return wait_until("nothing has the keyboard", self.reader.focused)

    def moved_from(self, before):
        def look():
            now = self.reader.focused()
            return now if now and now.path() != before.path() else None

        return wait_until(f"the keyboard does not leave {before.path()}", look)

    def open_menu(self, key, first):
        """Presses `key` until the menu is open whose first entry is `first`: one that comes while another menu closes is lost."""
        for patience in (MENU_SECONDS, MENU_SECONDS, PATIENCE_SECONDS):
            self.stage.press(key)
            try:
                return self.reader.await_focus("menu item", first, patience)
            except Failure as failure:
                complaint = failure
        raise complaint

    def round(self, what, expected, unseen=()):
        """Tabs once through the window and back again: the elements `expected`, each seen to have the keyboard but for those
        `unseen`."""
        for key, names in (("Tab", expected), ("shift+Tab", [expected[0], *reversed(expected[1:])])):
            met = []
            first = here = self._here()
            while not met or here.path() != first.path():
                if len(met) > LONGEST_ROUND:
                    raise Failure(f"{key} does not come back to {first.path()}: {met}")
                met.append(here.name)
                here = self._step(key, here, here.name not in unseen)
            if met != list(names):
                raise Failure(f"{key} in {what} meets {met} instead of {list(names)}")

    def _step(self, key, here, must_be_seen):
        back = "Tab" if key == "shift+Tab" else "shift+Tab"
        for _ in range(SECOND_LOOKS):
            place = place_of(here)
            with_keyboard = self.stage.crop(place)
            self.stage.press(key)
            there = self.moved_from(here)
            if not must_be_seen:
                return there
            if self.stage.crop(place) != with_keyboard:
                self.seen_count += 1
                return there
            self.stage.press(back)  # the picture may have been taken before the window was painted
            self.moved_from(there)
        raise Failure(f"one does not see that the keyboard is on {here.path()}")


@contextmanager
def speak(file):
    """The sentence sounds meanwhile."""
    process = subprocess.Popen(["paplay", "--device=sink2", file])
    try:
        yield
    finally:
        process.wait()
