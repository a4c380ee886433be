#!/usr/bin/env python3
"""Windows, KEEP, groupings, and percentiles on random rows, held against plain loops over the rows.

usage: windows_against_rows.py KESTRELIX_REPOSITORY [SEED]

Exit 1 and the first differences if there are any.
"""
import collections
import csv
import io
import math
import pathlib
import random
import subprocess
import sys
import tempfile
from decimal import Decimal

ROWS = 60
ROUNDS = 12  # random frames and orders each
SHOWN = 5

Row = collections.namedtuple("Row", "id group key value")
# The rows lie in a table that the releases have.
COLUMNS = {"id": "snap_id", "group": "instance_number", "key": "statistic#", "value": "value"}
VIEW = "(select snap_id id, instance_number g, statistic# k, value v from stats$sysstat)"


def number(text):
    return None if text == "" else Decimal(text)


def known(values):
    return [v for v in values if v is not None]


def total(values):
    values = known(values)
    return sum(values) if values else None


class Check:
    def __init__(self, program, repository, rows, dice):
        self.program, self.repository, self.rows, self.dice = program, repository, rows, dice
        self.compared = self.wrong = 0

    def query(self, sql):
        run = subprocess.run([self.program, "query", self.repository, sql], capture_output=True, text=True)
        if run.returncode != 0:
            raise SystemExit(f"{sql}\n{run.stderr}")
        return list(csv.reader(io.StringIO(run.stdout, newline="")))[1:]

    def same(self, what, actual, expected):
        self.compared += 1
        if actual == expected:
            return
        self.wrong += 1
        if self.wrong <= SHOWN:
            print(f"{what}\n  expected {expected}\n  actual   {actual}")

    def ranges(self):
        for _ in range(ROUNDS):
            near, far = sorted((self.dice.choice([0, 1, 2.5]), self.dice.choice([0, 2, 3.5, 5])))
            start, end = self.dice.choice([("preceding", "preceding"), ("preceding", "following"),
                                           ("following", "following")])
            first, second = (far, near) if start == end == "preceding" else (near, far)
            descending = self.dice.random() < 0.5
            parts = self.dice.random() < 0.5
            over = (f"over ({'partition by g ' if parts else ''}order by k {'desc ' if descending else ''}"
                    f"{self.dice.choice(['', 'nulls first ', 'nulls last '])}"
                    f"range between {first} {start} and {second} {end})")
            low = -first if start == "preceding" else first
            high = -second if end == "preceding" else second
            result = self.query(f"select count(*) {over}, sum(v) {over}, max(v) {over} from {VIEW} order by id")
            for row, line in zip(self.rows, result):
                def holds(other):
                    if row.key is None or other.key is None:
                        return row.key is other.key
                    distance = other.key - row.key
                    return low <= (-distance if descending else distance) <= high
                frame = [r for r in self.rows if (not parts or r.group == row.group) and holds(r)]
                values = [r.value for r in frame]
                self.same(f"{over} of {row}", (int(line[0]), number(line[1]), number(line[2])),
                          (len(frame), total(values), max(known(values), default=None)))

    def keeps(self):
        def place(value, descending, nulls_first):
            if value is None:
                return (0, 0) if nulls_first else (2, 0)
            return (1, -value if descending else value)

        for _ in range(ROUNDS):
            keys = [(name, self.dice.random() < 0.5, self.dice.choice([None, True, False]))
                    for name in self.dice.choice([("key",), ("value",), ("key", "value")])]
            last = self.dice.random() < 0.5
            order = ", ".join(f"{name[0]}{' desc' if descending else ''}"
                              f"{'' if nulls is None else ' nulls first' if nulls else ' nulls last'}"
                              for name, descending, nulls in keys)
            keep = f"keep (dense_rank {'last' if last else 'first'} order by {order})"

            def place_of(row):
                return [place(getattr(row, name), descending, descending if nulls is None else nulls)
                        for name, descending, nulls in keys]
            for line in self.query(f"select g, count(*) {keep}, sum(id) {keep}, min(v) {keep}, max(k) {keep}, "
                                   f"count(distinct k) {keep} from {VIEW} group by g"):
                group = [r for r in self.rows if r.group == int(line[0])]
                best = (max if last else min)(place_of(r) for r in group)
                kept = [r for r in group if place_of(r) == best]
                numbers = known(r.key for r in kept)
                self.same(f"{keep} of group {line[0]}", [number(cell) for cell in line[1:]],
                          [len(kept), sum(r.id for r in kept), min(known(r.value for r in kept), default=None),
                           max(numbers, default=None), len(set(numbers))])

    def neighbours(self):
        wide = "over (order by id rows between 2 preceding and 3 following)"
        for n in (1, 2, 3, 5):
            result = self.query(
                f"select lag(v, {n}, 999) ignore nulls over (partition by g order by id), "
                f"lead(v ignore nulls, {n}) over (order by id), lag(v, {n}) over (order by id), "
                f"nth_value(v, {n}) ignore nulls {wide}, first_value(v) ignore nulls {wide}, "
                f"last_value(v ignore nulls) {wide} from {VIEW} order by id")
            for i, (row, line) in enumerate(zip(self.rows, result)):
                before = known(r.value for r in self.rows[:i] if r.group == row.group)
                behind = known(r.value for r in self.rows[i + 1:])
                frame = known(r.value for r in self.rows[max(0, i - 2):i + 4])
                self.same(f"neighbours {n} of {row}", [number(cell) for cell in line],
                          [before[-n] if len(before) >= n else 999, behind[n - 1] if len(behind) >= n else None,
                           self.rows[i - n].value if i >= n else None, frame[n - 1] if len(frame) >= n else None,
                           frame[0] if frame else None, frame[-1] if frame else None])

    def percentiles(self):
        for share in ("0", "0.1", "0.25", "0.5", "0.9", "0.99", "1"):
            for line in self.query(f"select g, percentile_cont({share}) within group (order by v), "
                                   f"percentile_disc({share}) within group (order by v desc), median(v) "
                                   f"from {VIEW} group by g"):
                values = sorted(known(r.value for r in self.rows if r.group == int(line[0])))

                def at(part):
                    place = part * (len(values) - 1)
                    low, high = math.floor(place), math.ceil(place)
                    return values[low] + (values[high] - values[low]) * (place - low)
                falling = values[::-1]
                self.same(f"percentile {share} of group {line[0]}", [number(cell) for cell in line[1:]],
                          [at(Decimal(share)), falling[max(1, math.ceil(Decimal(share) * len(values))) - 1],
                           at(Decimal("0.5"))])

    def rollup(self):
        expected = []
        for grouping in (0, 1, 3):
            groups = collections.defaultdict(list)
            for row in self.rows:
                groups[None if grouping & 2 else row.group, None if grouping & 1 else row.key].append(row.value)
            expected += [[g, k, len(values), total(values), grouping] for (g, k), values in groups.items()]
        actual = [[number(cell) for cell in line]
                  for line in self.query(f"select g, k, count(*), sum(v), 2 * grouping(g) + grouping(k) from {VIEW} "
                                         "group by rollup(g, k)")]

        def order(line):
            return [(cell is not None, cell or 0) for cell in line]
        self.same("rollup", sorted(actual, key=order), sorted(expected, key=order))



def main():
    program = sys.argv[1]
    dice = random.Random(int(sys.argv[2]) if len(sys.argv) > 2 else 1)
    rows = [Row(i, dice.randint(1, 3), dice.choice([None, *range(30)]),
                dice.choice([None, Decimal(dice.randint(-5, 5)), Decimal(dice.randint(-50, 50)) / 4]))
            for i in range(ROWS)]
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder, "csv")
        source.mkdir()
        lines = [["" if cell is None else str(cell) for cell in row] for row in rows]
        with open(source / "stats$sysstat.csv", "w", newline="") as out:
            csv.writer(out).writerows([list(COLUMNS.values()), *lines])
        repository = str(pathlib.Path(folder, "file.sqlite"))
        subprocess.run([program, "import", str(source), repository], check=True, capture_output=True)
        check = Check(program, repository, rows, dice)
        for part in (check.ranges, check.keeps, check.neighbours, check.percentiles, check.rollup):
            part()
    print(f"{check.compared} results compared, {check.wrong} differ")
    return 1 if check.wrong else 0


if __name__ == "__main__":
    sys.exit(main())
