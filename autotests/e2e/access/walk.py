# SPDX-License-Identifier: Apache-2.0
"""What every element of a window has to be for somebody who hears it only."""

# With a state or a value to tell, or with something to do.
INTERACTIVE = {
    "alert", "check box", "check menu item", "combo box", "dialog", "file chooser", "label", "link", "list",
    "list item", "menu item", "page tab", "page tab list", "popup menu", "progress bar", "push button", "radio button",
    "radio menu item", "slider", "spin button", "table", "table cell", "table column header", "text", "toggle button", "tree",
    "tree table", "window"}
WITH_VALUE = {"progress bar", "slider", "spin button"}

# Role, name and rule of what is let pass, and why.
EXPLAINED = {
    ("label", "", "name"): "an icon beside words that say the same",
    ("filler", "Log", "role"): "the pages under the tabs hand the keyboard to the tabs",
    ("filler", "Protokoll", "role"): "the pages under the tabs hand the keyboard to the tabs",
}


def complaints_of(element):
    """What is wrong with this one element: pairs of the rule and the complaint."""
    if (element.role in INTERACTIVE or element.parent is None) and not element.name.strip():
        yield "name", "has no name"
    if "\t" in element.name or "_" in element.name and element.name.upper() == element.name:
        yield "name", "is named by what nobody says"
    if element.has("focusable") and element.role not in INTERACTIVE:
        yield "role", "takes the keyboard and is nothing one knows"
    if element.role in WITH_VALUE and element.value() is None:
        yield "value", "has no value"
    if element.role == "radio button" and not any(other.has("checked") for other in element.parent.children):
        yield "state", "is one of several of which none is chosen"


def faults(window):
    found = []
    for element in window.walk():
        for rule, complaint in complaints_of(element) if element.is_shown() else ():
            if (element.role, element.name, rule) not in EXPLAINED:
                found.append(f"{element.path()} {complaint}")
    return found


def ancestors(element):
    line = [element]
    while line[0].parent is not None:
        line.insert(0, line[0].parent)
    return line


def comes_before(first, second):
    """Whether one who reads from the top and from the left meets `first` before `second`, group by group."""
    for above, below in zip(ancestors(first), ancestors(second)):
        if above.path() != below.path() or above.extents != below.extents:
            break
    left, top, width, height = above.extents
    other_left, other_top, _, other_height = below.extents
    are_side_by_side = top < other_top + other_height and other_top < top + height
    return left <= other_left if are_side_by_side else top <= other_top


def order_faults(round_of_keys):
    """`round_of_keys`: the elements that Tab leads to, one after the other, from wherever."""
    steps = list(zip(round_of_keys, round_of_keys[1:] + round_of_keys[:1]))
    back = [(here, there) for here, there in steps if not comes_before(here, there)]
    return [f"Tab goes back from {here.path()} to {there.path()}" for here, there in back] if len(back) > 1 else []
