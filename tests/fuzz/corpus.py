#!/usr/bin/env python3
"""Writes the statements of the golden files into a folder, one a file, as the fuzzers' first inputs."""
import pathlib
import sys


def statements(source):
    for path in sorted((source / "tests/oracle_sql/golden").glob("*.test")):
        for case in path.read_text(encoding="utf-8").split("=== ")[1:]:
            name, rest = case.split("\n", 1)
            text = rest.split("--- oracle\n", 1)[1].split("\n--- ", 1)[0]
            yield f"{path.stem}-{name}", text


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: corpus.py SOURCE_FOLDER CORPUS_FOLDER")
    target = pathlib.Path(sys.argv[2])
    target.mkdir(parents=True, exist_ok=True)
    for name, text in statements(pathlib.Path(sys.argv[1])):
        (target / name).write_text(text, encoding="utf-8")


main()
