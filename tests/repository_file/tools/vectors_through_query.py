#!/usr/bin/env python3
"""Runs every published statement through kestrelix-repository query and compares the CSV with the published rows.

usage: vectors_through_query.py KESTRELIX_REPOSITORY VECTORS DEVIATIONS
"""
import csv
import decimal
import io
import json
import pathlib
import subprocess
import sys
import tempfile

REFUSED = "not supported:"


def cell(kind, text):
    """What is compared: a number by its value, NULL as the empty field that it is in CSV."""
    if text is None or text == "":
        return ""
    if kind == "N":
        return decimal.Decimal(text)
    return text


def main():
    program, vectors, deviations = sys.argv[1:]
    known = {line.split()[0] for line in pathlib.Path(deviations).read_text().splitlines()
             if line and not line.startswith("#")}
    rows = [json.loads(line) for line in pathlib.Path(vectors).read_text(encoding="utf-8").splitlines() if line]
    passed = refused = wrong = 0
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder, "csv")
        source.mkdir()
        source.joinpath("stats$idle_event.csv").write_text("EVENT\nnull event\n")
        repository = str(pathlib.Path(folder, "file.sqlite"))
        subprocess.run([program, "import", str(source), repository], check=True, capture_output=True)
        for row in rows:
            run = subprocess.run([program, "query", repository, row["sql"]], capture_output=True)
            if run.returncode == 1 and REFUSED in run.stderr.decode():
                refused += 1
                continue
            lines = list(csv.reader(io.StringIO(run.stdout.decode(), newline="")))
            kinds = row["types"]
            actual = [[cell(kinds[i], c) for i, c in enumerate(line)] for line in lines[1:]]
            expected = [[cell(kinds[i], c) for i, c in enumerate(line)] for line in row["expect"]]
            if not row["ordered"]:
                actual.sort(key=repr)
                expected.sort(key=repr)
            # A line of one empty field is an empty line, which the reader gives as no field.
            actual = [line or [""] for line in actual]
            if run.returncode == 0 and actual == expected and lines[0] == row.get("columns", lines[0]):
                passed += 1
            elif row["id"] not in known:
                wrong += 1
                print(f"{row['id']}: {row['sql']}\n  expected {expected}\n  actual   {actual}\n"
                      f"  {run.stderr.decode()}")
    print(f"{passed} of {len(rows)} published statements give the published rows, {refused} are refused by name")
    return 0 if wrong == 0 and passed >= 0.95 * len(rows) else 1


if __name__ == "__main__":
    sys.exit(main())
