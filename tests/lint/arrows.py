#!/usr/bin/env python3
"""Checks that no room includes one that stands above it, and that foreign headers stay in their rooms."""

import pathlib
import re
import sys

PLATFORM = {"platform", "platform/controls"}
NAVIGATION = PLATFORM | {"navigation"}
REPORT = NAVIGATION | {"report", "documents"}
SUBSYSTEMS = {f"sections/{name}" for name in ("activity_io", "cluster", "contention", "memory", "objects", "sql",
                                              "summary", "waits")}
SECTIONS = REPORT | {"sections", "sections/sql"}
SHELL = SECTIONS | {"shell", "analysis"}
BACK_ENDS = {"repository_file", "odbc"}

# The rooms of the language; the files that lie in none of its folders are common ground.
LANGUAGE = {
    "oracle_sql": set(),
    "oracle_sql/text": {"oracle_sql"},
    "oracle_sql/number": {"oracle_sql", "oracle_sql/text"},
    "oracle_sql/date": {"oracle_sql", "oracle_sql/text", "oracle_sql/number"},
    "oracle_sql/functions": {"oracle_sql", "oracle_sql/text", "oracle_sql/number", "oracle_sql/date"},
    "oracle_sql/syntax": {"oracle_sql", "oracle_sql/text"},
    "oracle_sql/meaning": {"oracle_sql", "oracle_sql/text", "oracle_sql/number", "oracle_sql/date",
                           "oracle_sql/functions", "oracle_sql/syntax"},
}

# A room may include itself and those that its entry names. A folder without an entry is part of the room around it.
ROOMS = {
    **LANGUAGE,
    "statspack": {*LANGUAGE},
    "platform/controls": set(),
    "platform": PLATFORM,
    "chm": {"platform"},
    "odbc": {"platform", *LANGUAGE},
    # Lowering knows nothing of a file; how a value and a sort key are written stands beside it.
    "repository_file/lowering": {"platform", *LANGUAGE, "repository_file/names.h", "repository_file/sort_keys.h",
                                 "repository_file/storage.h"},
    "repository_file/writing": {"platform", "statspack", *LANGUAGE},
    "repository_file": {"platform", "statspack", *LANGUAGE, "repository_file/lowering", "repository_file/writing"},
    "import": {"platform", "statspack", *LANGUAGE, "repository_file/writing"},
    "demo": {"platform", "statspack", "repository_file/writing"},
    "navigation": NAVIGATION,
    "documents": NAVIGATION,
    "report": REPORT,
    "sections/shared": REPORT,
    **{room: REPORT | {"sections/shared"} for room in SUBSYSTEMS},
    "sections": SECTIONS | SUBSYSTEMS,
    "analysis": SECTIONS,
    "shell": SHELL,
    "desktop": SHELL | {"chm"},
    "app": SHELL | BACK_ENDS | {"desktop"},
    "tools/console": PLATFORM | {"documents"},
    "tools/kestrelix-report": SECTIONS | {"analysis", "statspack", "tools/console", "repository_file",
                                          "app/back_ends.h"},
    "tools/kestrelix-repository": {"platform", "statspack", *LANGUAGE, "odbc", "repository_file",
                                   "repository_file/writing", "import", "demo", "documents", "tools/console"},
}

# Headers of libraries, and the only rooms that may see them.
FOREIGN = [
    (re.compile(r"^Q[A-Z]|^Qt"), {"desktop", "app"}),
    (re.compile(r"^sql(ext|types|ucode)?\.h$|^odbcinst\.h$"), {"odbc"}),
    (re.compile(r"^chm_lib\.h$"), {"chm"}),
    (re.compile(r"^sqlite3\.h$"), {"repository_file", "repository_file/writing"}),
]

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def room_of(path):
    """The room that a path lies in, src/ left out: the longest name that fits."""
    fits = [room for room in ROOMS if path.startswith(room + "/")]
    return max(fits, key=len) if fits else None


def target_of(file, name, root):
    """What an include in quotes means, as a path with src/ left out; None for no file of ours."""
    if (file.parent / name).exists():
        return (file.parent / name).relative_to(root).as_posix().removeprefix("src/")
    if file.is_relative_to(root / "tools") and room_of("tools/" + name):
        return "tools/" + name
    return name if room_of(name) else None


def check_file(file, root):
    relative = file.relative_to(root).as_posix()
    room = room_of(relative.removeprefix("src/"))
    if room is None:
        return [f"{relative}: lies in no room"]
    faults = []
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        quote, name = match.groups()
        for pattern, allowed in FOREIGN:
            if pattern.match(name) and room not in allowed:
                faults.append(f"{relative}:{number}: <{name}> belongs in {', '.join(sorted(allowed))}")
        if quote != '"':
            continue
        target = target_of(file, name, root)
        if target is None:
            faults.append(f"{relative}:{number}: {name} lies in no room")
        elif room_of(target) != room and not {room_of(target), target} & ROOMS[room]:
            faults.append(f"{relative}:{number}: {room} must not include {name}")
    return faults


def main():
    root = pathlib.Path(sys.argv[1])
    files = [file for folder in ("src", "tools") for file in sorted((root / folder).rglob("*"))
             if file.suffix in (".h", ".cpp")]
    if not files:
        sys.exit(f"no sources under {root}: nothing was checked")
    faults = [fault for file in files for fault in check_file(file, root)]
    print("\n".join(faults) or f"the includes of {len(files)} files keep to the arrows")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
