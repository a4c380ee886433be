#!/usr/bin/env python3
"""Finds number code that depends on the locale: figures must read the same on every desktop."""

import pathlib
import re
import sys

PATTERNS = [
    (re.compile(r"\bstd::sto(d|f|ld)\b"), "std::stod and its like"),
    (re.compile(r"\b(strtod|strtof|strtold|atof|localeconv)\b"), "strtod and its like"),
    (re.compile(r"\b\w*printf\s*\([^;]*%[-+ #0-9.*]*[aAeEfFgG]"), "printf of a floating number"),
    (re.compile(r"\bstd::to_string\s*\(\s*(static_cast<(double|float)>|[0-9]*\.[0-9])"), "to_string of a floating number"),
    (re.compile(r"\b(std::locale|setlocale|imbue)\b"), "a locale"),
]

# file: why it may
EXCEPTIONS = {}


def main():
    root = pathlib.Path(sys.argv[1])
    files = [f for folder in ("src", "tools") for f in sorted((root / folder).rglob("*")) if f.suffix in (".h", ".cpp")]
    if not files:
        sys.exit("no sources: nothing was checked")
    faults = []
    for file in files:
        relative = file.relative_to(root).as_posix()
        if relative.startswith("src/desktop/") or relative in EXCEPTIONS:
            continue
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            code = line.split("//")[0]
            for pattern, what in PATTERNS:
                if pattern.search(code):
                    faults.append(f"{relative}:{number}: {what}")
    print("\n".join(faults) or f"{len(files)} sources are free of locale-dependent number code")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
