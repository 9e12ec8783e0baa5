#!/usr/bin/env python3
"""Holds every #include of the house against the arrows that are allowed, and looks for units that need each other."""

import os
import re
import sys

# What a room may include, itself apart. What is not named here may include every room.
ARROWS = {
    "core": set(),
    "table": {"core"},
    "sound": {"core"},
    "dialogs": {"core"},
    "store": {"core"},
    "kit": {"core"},
    "table/window": {"core", "table", "kit"},
    "dialogs/window": {"core", "dialogs", "kit"},
    "sound/player": {"core", "sound"},
    "menus": {"kit"},
    "script": {"core", "table", "sound", "dialogs", "store"},
    "resources": {"kit"},
}
EVERYONE = {"app", "tests", "bench"}

# The list of what the rules ask of a window belongs to the table, the need for it to the rules. The dispatch of the
# timers serves the program and the headless table.
EXCEPTIONS = {("core", "table/table_view.h"), ("script", "app/tick.h")}

# The rooms that know Qt, and the one that knows what makes a sound.
QT = {"store", "kit", "table/window", "dialogs/window", "sound/player", "menus", "app", "resources"} | EVERYONE
SOUND = {"sound/player"} | EVERYONE
# Of the rooms that know everyone, the files that must run without Qt.
WITHOUT_QT = {"app/tick.h", "app/tick.cpp"}


def room_of(path):
    """The innermost room that the path lies in, or none."""
    folders = os.path.dirname(path).split("/")
    while folders and "/".join(folders) not in ARROWS.keys() | EVERYONE:
        folders.pop()
    return "/".join(folders)


def faults_of(path, text):
    room = room_of(path)
    if not room:
        yield f"{path}: lies in no room"
        return
    for header in re.findall(r'^#include "([^"]+)"', text, re.M):
        to = room_of(header)
        allowed = room in EVERYONE or to == room or to in ARROWS[room]
        if not allowed and (room, header) not in EXCEPTIONS:
            yield f"{path}: {room} may not include {header}"
    for header in re.findall(r"^#include <([^>]+)>", text, re.M):
        qt = re.match(r"Q[A-Z]|Qt", header)
        if qt and (room not in QT or path in WITHOUT_QT):
            yield f"{path}: {room} may not use Qt ({header})"
        if re.match(r"SDL|alsa/|mpg123", header) and room not in SOUND:
            yield f"{path}: {room} may not use what sounds ({header})"


def cycles(needs):
    """The units of each cycle, by a walk that remembers its way."""
    state, found = {}, []

    def walk(unit, way):
        state[unit] = "open"
        for other in sorted(needs.get(unit, ())):
            if state.get(other) == "open":
                found.append(" -> ".join(way[way.index(other):] + [other]))
            elif other not in state:
                walk(other, way + [other])
        state[unit] = "done"

    for unit in sorted(needs):
        if unit not in state:
            walk(unit, [unit])
    return found


def main():
    root = sys.argv[1]
    faults, needs = [], {}
    for folder, folders, names in os.walk(root):
        folders[:] = [f for f in folders if f != ".git" and not os.path.exists(os.path.join(folder, f, "CMakeCache.txt"))]
        for name in names:
            path = os.path.relpath(os.path.join(folder, name), root)
            if not path.endswith((".cpp", ".h")):
                continue
            with open(os.path.join(root, path), encoding="utf-8") as file:
                text = file.read()
            faults += faults_of(path, text)
            unit = os.path.splitext(path)[0]
            others = {os.path.splitext(header)[0] for header in re.findall(r'^#include "([^"]+)"', text, re.M)}
            needs.setdefault(unit, set()).update(others - {unit})
    faults += [f"units need each other: {cycle}" for cycle in cycles(needs)]
    if len(needs) < 50:
        faults.append(f"only {len(needs)} units found: not the root of the house?")
    print("\n".join(faults) or f"{len(needs)} units, every arrow allowed, no cycle")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
