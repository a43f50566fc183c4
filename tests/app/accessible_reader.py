#!/usr/bin/env python3
"""What a screen reader sees of a program and hears from it, for tests: questions and answers in lines of JSON.

accessible_reader.py PROGRAM, with the session bus that the program is on. The questions:
{"windows": 1}               names and roles of its windows
{"tree": "window"}           the objects of a window, each with the number of the one it is in
{"press": "window", "path": [names]}   what a click on the last of nested objects does
{"grab": "window", "name": name, "role": role}   gives it the keyboard
{"focus": 1}                 what has the keyboard
{"listen": seconds}          what was told meanwhile
"""
import collections
import json
import os
import sys

SYSTEM_PYTHON = "/usr/bin/python3"
try:
    import pyatspi
except ImportError:
    # It comes with the system's Python alone, and another may stand before that one.
    if os.path.realpath(sys.executable) == os.path.realpath(SYSTEM_PYTHON):
        raise
    os.execv(SYSTEM_PYTHON, [SYSTEM_PYTHON, *sys.argv])
import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PROGRAM = sys.argv[1]
MOST_CHILDREN = 120
MOST_DEPTH = 40


def application():
    for child in pyatspi.Registry.getDesktop(0):
        if child is not None and child.name == PROGRAM:
            child.set_cache_mask(Atspi.Cache.NONE)
            return child
    raise LookupError(f"no {PROGRAM}")


def children(node):
    # Those of a large table would take minutes.
    for number in range(min(node.childCount, MOST_CHILDREN)):
        child = node.getChildAtIndex(number)
        if child is not None:
            yield child


def window_named(name):
    for window in children(application()):
        if window.name == name and window.getState().contains(pyatspi.STATE_SHOWING):
            return window
    raise LookupError(f"no window {name}")


def labels(node):
    return [relation.getTarget(number).name for relation in node.getRelationSet()
            if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY
            for number in range(relation.getNTargets())]


def described(node, parent):
    states = [Atspi.StateType(state).value_nick for state in node.getState().get_states()]
    told = {"in": parent, "name": node.name or " ".join(labels(node)), "role": node.getRoleName(),
            "description": node.description, "states": states, "children": node.childCount,
            "interfaces": list(pyatspi.listInterfaces(node))}
    if "Component" in told["interfaces"]:
        place = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        told["place"] = [place.x, place.y, place.width, place.height]
    if "Value" in told["interfaces"]:
        told["value"] = node.queryValue().currentValue
    return told


def tree(window):
    found = []

    def visit(node, parent, depth):
        try:
            found.append(described(node, parent))
        except (LookupError, GLib.Error, NotImplementedError):
            # A row may end meanwhile, and a window may not.
            if parent is None:
                raise
            return
        number = len(found) - 1
        if depth < MOST_DEPTH:
            for child in children(node):
                visit(child, number, depth + 1)
    visit(window, None, 0)
    return found


def find(node, fits, depth=0):
    for child in children(node):
        if fits(child):
            return child
        found = find(child, fits, depth + 1) if depth < MOST_DEPTH else None
        if found is not None:
            return found
    return None


def press(window, path):
    node = window_named(window)
    for name in path:
        # A page has the name of its tab.
        node = find(node, lambda child, name=name: child.name == name and (
            name != path[-1] or "Action" in pyatspi.listInterfaces(child)))
        if node is None:
            raise LookupError(name)
    actions = node.queryAction()
    names = [actions.getName(number) for number in range(actions.nActions)]
    wanted = next(name for name in ("Press", "Toggle", "ShowMenu", "SetFocus") if name in names)
    try:
        actions.doAction(names.index(wanted))
    except GLib.Error:
        # A question that has come up answers when it is closed.
        pass


def grab(window, name, role):
    node = find(window_named(window),
                lambda child: child.name == name and child.getRoleName() == role)
    return node is not None and node.queryComponent().grabFocus()


def focus():
    def is_focused(node):
        return node.getState().contains(pyatspi.STATE_FOCUSED)
    for window in children(application()):
        if not window.getState().contains(pyatspi.STATE_ACTIVE):
            continue
        found = find(window, is_focused)
        # A table has the keyboard, and a cell of it.
        if found is not None and "Table" in pyatspi.listInterfaces(found):
            table = found.queryTable()
            found = next((cell for row in table.getSelectedRows()
                          for cell in (table.getAccessibleAt(row, column)
                                       for column in range(table.nColumns))
                          if is_focused(cell)), found)
        if found is not None:
            return described(found, None) | {"window": window.name}
    return None


def listen(seconds):
    heard = collections.Counter()
    told = []

    def note(event):
        if event.host_application is None or event.host_application.name != PROGRAM:
            return
        heard[str(event.type)] += 1
        if str(event.type).startswith("object:property-change"):
            told.append([str(event.type), event.source.name, event.source.description])
    pyatspi.Registry.registerEventListener(note, "object", "window", "focus")
    GLib.timeout_add(int(seconds * 1000), pyatspi.Registry.stop)
    pyatspi.Registry.start()
    pyatspi.Registry.deregisterEventListener(note, "object", "window", "focus")
    return {"heard": heard, "told": told}


def answer(question):
    if "windows" in question:
        return [[window.name, window.getRoleName()] for window in children(application())
                if window.getState().contains(pyatspi.STATE_SHOWING)]
    if "tree" in question:
        return tree(window_named(question["tree"]))
    if "press" in question:
        return press(question["press"], question["path"])
    if "grab" in question:
        return grab(question["grab"], question["name"], question["role"])
    return focus() if "focus" in question else listen(question["listen"])


for line in sys.stdin:
    try:
        print(json.dumps({"answer": answer(json.loads(line))}), flush=True)
    except (LookupError, GLib.Error, NotImplementedError) as why:
        print(json.dumps({"error": f"{type(why).__name__}: {why}"}), flush=True)
