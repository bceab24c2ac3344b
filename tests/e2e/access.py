# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Finding controls as assistive technology does: by role and name, in the program's tree."""

import pyatspi
from gi.repository import Atspi, GLib

from waiting import wait_for

GONE = (LookupError, NotImplementedError, GLib.Error)


def application(pid):
    """The program's root, as soon as it is there. Nothing is cached: the program changes."""

    def registered():
        desktop = pyatspi.Registry.getDesktop(0)
        for index in range(desktop.childCount):
            child = desktop.getChildAtIndex(index)
            if child is not None and child.get_process_id() == pid:
                return child
        return None

    root = wait_for(registered, "the program in the accessibility tree")
    root.set_cache_mask(Atspi.Cache.NONE)
    return root


def role_of(node):
    return node.getRoleName()


def states_of(node):
    return {pyatspi.stateToString(state) for state in node.getState().getStates()}


def is_showing(node):
    return {"showing", "visible"} <= states_of(node)


def children_of(node):
    for index in range(node.childCount):
        child = node.getChildAtIndex(index)
        if child is not None:
            yield child


def walk(node):
    """The node and all below it, in reading order, but for the cells of tables and file lists."""
    yield node
    cells_follow = role_of(node) in ("table", "tree")
    for child in children_of(node):
        if cells_follow and role_of(child) == "table cell":
            break
        yield from walk(child)


def walk_showing(node):
    """The node and all below it, without what is hidden and all below that, nor a file list's cells:
    there may be thousands."""
    if is_showing(node):
        yield node
        cells_follow = role_of(node) == "tree"
        for child in children_of(node):
            if cells_follow and role_of(child) == "table cell":
                break
            yield from walk_showing(child)


def matches(node, role, name):
    if role is not None and role_of(node) != role:
        return False
    return name is None or node.name == name or name_of(node) == name


def name_of(node):
    """What a screen reader calls it: by the control that is its label, or by its own name."""
    for relation in node.getRelationSet():
        if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY:
            return relation.getTarget(0).name
    return node.name


def find_all(root, role=None, name=None):
    try:
        return [n for n in walk(root) if matches(n, role, name) and is_showing(n)]
    except GONE:
        return []


def find(root, role=None, name=None):
    """The only showing one of this role and name; waits for it."""

    def only():
        found = find_all(root, role, name)
        return found[0] if len(found) == 1 else None

    return wait_for(only, f"one {role or 'control'} named {name!r}")


def text_of(node):
    text = node.queryText()
    return text.getText(0, text.characterCount)


def rectangle(node):
    """Left, top, width and height on the screen."""
    extents = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return extents.x, extents.y, extents.width, extents.height


def centre(node):
    left, top, width, height = rectangle(node)
    return left + width // 2, top + height // 2


def is_alive(node, role, name):
    """Whether what was found before still shows under its role and name."""
    try:
        return is_showing(node) and matches(node, role, name)
    except GONE:
        return False


def focused_in(window):
    """Role and name of what has the keyboard: a control, or else an open list's current entry."""
    entries = []
    for node in walk_showing(window):
        if "focused" not in states_of(node):
            continue
        found = role_of(node), name_of(node)
        if found[0] not in ("list item", "table cell"):
            return found
        entries.append(found)
    return entries[0] if entries else None
