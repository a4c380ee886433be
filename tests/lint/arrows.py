#!/usr/bin/env python3
"""Checks that no room includes one that stands above it, and that foreign headers stay in their rooms."""

import pathlib
import re
import sys

# The rooms of the language; the files that lie in none of its folders are common ground.
ORACLE_SQL = {
    "oracle_sql": set(),
    "oracle_sql/text": set(),
    "oracle_sql/number": {"oracle_sql", "oracle_sql/text"},
    "oracle_sql/date": {"oracle_sql", "oracle_sql/text", "oracle_sql/number"},
    "oracle_sql/functions": {"oracle_sql", "oracle_sql/text", "oracle_sql/number", "oracle_sql/date"},
    "oracle_sql/syntax": {"oracle_sql", "oracle_sql/text"},
    "oracle_sql/meaning": {"oracle_sql", "oracle_sql/text", "oracle_sql/number", "oracle_sql/date",
                           "oracle_sql/functions", "oracle_sql/syntax"},
}

# From the ground up: a room may include itself and those that its entry names.
ROOMS = {
    **ORACLE_SQL,
    "statspack": {*ORACLE_SQL},
    "platform": set(),
    "platform/embedded": {"platform", "statspack", *ORACLE_SQL},
    "platform/chm": {"platform"},
    "platform/odbc": {"platform", *ORACLE_SQL},
    "navigation": {"platform"},
    "documents": {"platform"},
    "report": {"navigation", "platform"},
    "sections": {"report", "navigation", "platform"},
    "shell": {"sections", "report", "navigation", "platform"},
    "platform/qt": {"platform/chm", "shell", "sections", "report", "navigation", "platform"},
    "app": {"platform/qt", "platform/embedded", "platform/odbc", "shell", "sections", "report", "navigation",
            "platform"},
}

# The programs without a window and what they share, beside src/. No room includes these.
TOOLS = {
    "console": {"platform"},
    "kestrelix-report": {"console", *ROOMS} - {"platform/qt"},
    "kestrelix-repository": {"console", "documents", "platform", "platform/embedded", "platform/odbc", "statspack"},
}

# Headers of libraries, and the only rooms that may see them.
FOREIGN = [
    (re.compile(r"^Q[A-Z]|^Qt"), {"platform/qt", "app"}),
    (re.compile(r"^sql(ext|types|ucode)?\.h$|^odbcinst\.h$"), {"platform/odbc"}),
    (re.compile(r"^chm_lib\.h$"), {"platform/chm"}),
    (re.compile(r"^sqlite3\.h$"), {"platform/embedded"}),
]

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def room_of(path, rooms):
    """The room that a path below src/ or tools/ lies in: the longest name that fits."""
    fits = [room for room in rooms if path == room or path.startswith(room + "/")]
    return max(fits, key=len) if fits else None


def check(folder, arrows):
    faults = []
    every_room = ROOMS.keys() | TOOLS.keys()
    for file in sorted(folder.rglob("*")):
        if file.suffix not in (".h", ".cpp"):
            continue
        relative = file.relative_to(folder).as_posix()
        room = room_of(relative, arrows)
        if room is None:
            faults.append(f"{relative}: lies in no room")
            continue
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            quote, name = match.groups()
            target = room_of(name, every_room) if quote == '"' else None
            if target and target != room and target not in arrows[room]:
                faults.append(f"{relative}:{number}: {room} must not include {name}")
            for pattern, allowed in FOREIGN:
                if pattern.match(name) and room not in allowed:
                    faults.append(f"{relative}:{number}: <{name}> belongs in {', '.join(sorted(allowed))}")
    return faults


def main():
    root = pathlib.Path(sys.argv[1])
    files = [file for folder in ("src", "tools") for file in (root / folder).rglob("*.h")]
    if not files:
        sys.exit(f"no headers under {root}: nothing was checked")
    faults = check(root / "src", ROOMS) + check(root / "tools", TOOLS)
    print("\n".join(faults) or f"the includes of {len(files)} headers and their sources keep to the arrows")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
