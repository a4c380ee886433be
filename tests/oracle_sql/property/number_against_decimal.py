"""Compares NUMBER arithmetic with Python's decimal over random operands.

usage: number_against_decimal.py CALCULATOR [--pairs N] [--seed S]

Two operands a pair; for each the calculator's sum, difference, product, quotient, comparison, ROUND, TRUNC, text
and byte order are held against values that decimal gives exactly and that are then rounded once at the twentieth
base-100 digit. Exit 1 and the first differences if there are any.
"""

import argparse
import decimal
import multiprocessing
import random
import subprocess
import sys
from decimal import ROUND_DOWN, ROUND_HALF_UP, Decimal

DIGITS = 20  # of base 100
EXACT = decimal.Context(prec=420, Emin=-100000, Emax=100000, rounding=ROUND_HALF_UP)
# A quotient cut behind 100 digits: cutting doesn't change which half the rest lies in.
QUOTIENT = decimal.Context(prec=100, Emin=-100000, Emax=100000, rounding=ROUND_DOWN)
ZERO = Decimal(0)
UNIT = {e: Decimal((0, (1,), e)) for e in range(-1000, 1000)}
CHUNK = 12500


def number(value):
    """The NUMBER nearest to an exact value, or the error that there is none."""
    if not value:
        return ZERO
    value = EXACT.quantize(value, UNIT[(value.adjusted() // 2 - (DIGITS - 1)) * 2])
    adjusted = value.adjusted()
    if adjusted >= 126:
        return "!1426"
    return ZERO if adjusted < -130 else value


def significant(value):
    """Its digits without trailing zeros, and the power of ten of the first."""
    mantissa, _, exponent = f"{abs(value):E}".partition("E")
    return mantissa.replace(".", "").rstrip("0"), int(exponent)


def text(value):
    """As the server writes a number into text: 40 digits, an exponent where they don't do."""
    if not value:
        return "0"
    digits, first = significant(value)
    sign = "-" if value < 0 else ""
    if 0 <= first < 40:
        whole = digits[: first + 1].ljust(first + 1, "0")
        rest = digits[first + 1 :]
        return sign + whole + ("." + rest if rest else "")
    if first < 0 and len(digits) - first - 1 <= 40:
        return sign + "." + "0" * (-first - 1) + digits
    width = 34 if -100 < first < 100 else 33
    if first < 0 and 41 + first >= min(len(digits), width + 1):
        return text(EXACT.quantize(value, UNIT[-40]))
    mantissa, power = significant(EXACT.quantize(value, UNIT[first - width]))
    mantissa = mantissa.ljust(width + 1, "0")
    return f"{sign}{mantissa[0]}.{mantissa[1 : width + 1]}E{'-' if power < 0 else '+'}{abs(power):02d}"


class Operands:
    """Draws operands of many shapes: small, long, near to one another, at the edges of the ranges."""

    def __init__(self, seed):
        self.random = random.Random(seed).random  # its integers would take longer than the arithmetic

    def below(self, bound):
        return int(self.random() * bound)

    def pick(self, choices):
        return choices[int(self.random() * len(choices))]

    def digits(self):
        count = self.pick((1, 2, 3, 5, 9, 18, 19, 20, 37, 38, 39, 40))
        shape = self.below(6)
        if shape == 0:
            return "9" * count
        if shape == 1:
            return "1" + "0" * (count - 1)
        if shape == 2:
            return "".join(self.pick("059") for _ in range(count)).lstrip("0") or "5"
        return "".join(f"{self.below(10**10):010d}" for _ in range(4))[:count].lstrip("0") or "1"

    def exponent(self, count):
        shape = self.below(8)
        if shape == 0:
            return self.below(256) - 130
        if shape == 1:
            return self.pick((-130, -129, -65, -64, 60, 61, 62, 63, 124, 125))
        if shape < 4:
            return count - 1
        return self.below(26) - 6

    def draw(self):
        if self.below(40) == 0:
            return Decimal(self.pick((0, 1, -1, 2**63 - 1, -(2**63), 2**63, 2**64, 10**18, 3)))
        while True:
            digits = self.digits()
            exponent = self.exponent(len(digits)) - len(digits) + 1
            value = number(Decimal(f"{self.pick('+-')}{digits}E{exponent}"))
            if not isinstance(value, str):
                return value

    def pair(self):
        a = self.draw()
        shape = self.below(10)
        if shape == 0:
            b = a if self.below(2) else -a
        elif shape == 1 and a:
            b = number(EXACT.add(a, UNIT[a.adjusted() - self.below(40)]))
            b = a if isinstance(b, str) else b
        else:
            b = self.draw()
        return a, b, self.pick((-40, -19, -18, -3, -2, -1, 0, 0, 0, 1, 2, 2, 3, 5, 10, 38, 39, 100))


def expected(a, b, places):
    yield number(EXACT.add(a, b))
    yield number(EXACT.subtract(a, b))
    yield number(EXACT.multiply(a, b))
    quotient = number(QUOTIENT.divide(a, b)) if b else "!1476"
    yield quotient
    order = str((a > b) - (a < b))
    yield order
    yield number(EXACT.quantize(a, UNIT[-places]))
    yield a.quantize(UNIT[-places], ROUND_DOWN, EXACT) + 0
    yield text(a)
    yield quotient if isinstance(quotient, str) else text(quotient)
    yield order


KINDS = ("sum", "difference", "product", "quotient", "order", "round", "trunc", "text", "quotient text", "byte order")
AS_TEXT = frozenset(("order", "text", "quotient text", "byte order"))


def check(job):
    calculator, seed, pairs = job
    decimal.setcontext(EXACT)
    operands = Operands(seed)
    rows = [operands.pair() for _ in range(pairs)]
    lines = "".join(f"{a} {b} {places}\n" for a, b, places in rows)
    run = subprocess.run([calculator], input=lines, capture_output=True, text=True, check=True)
    answers = run.stdout.splitlines()
    if len(answers) != len(rows):
        return [f"{len(rows)} questions, {len(answers)} answers"]
    differences = []
    for row, answer in zip(rows, answers):
        for kind, want, got in zip(KINDS, expected(*row), answer.split(" "), strict=True):
            if isinstance(want, str) or kind in AS_TEXT or got[0] == "!":
                same = want == got
            else:
                same = want == Decimal(got)
            if not same:
                differences.append(f"{kind} of {row[0]}, {row[1]}, {row[2]}: {got}, should be {want}")
    return differences


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("calculator")
    parser.add_argument("--pairs", type=int, default=500000)
    parser.add_argument("--seed", type=int, default=20)
    arguments = parser.parse_args()
    sizes = [min(CHUNK, arguments.pairs - at) for at in range(0, arguments.pairs, CHUNK)]
    jobs = [(arguments.calculator, f"{arguments.seed}/{i}", size) for i, size in enumerate(sizes)]
    differences = []
    with multiprocessing.Pool() as pool:
        for found in pool.imap(check, jobs):
            differences += found
    for line in differences[:20]:
        print(line)
    print(f"{2 * arguments.pairs} operands, {len(differences)} differences")
    return 1 if differences or not jobs else 0


if __name__ == "__main__":
    sys.exit(main())
