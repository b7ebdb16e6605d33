#!/usr/bin/env python3
"""Makes the delivered parameter file, byte for byte.

    tools/make_parameter_file.py > data/Tafelquell.ini
    tools/make_parameter_file.py --check          compares with data/Tafelquell.ini, status 1 if they differ

The rule behind each table is told in docs/tables.md. Before anything is written the tables are checked
against the rules that the program relies on. Whole numbers throughout, so that no rounding of a
machine number can show in the file.
"""

import sys
from pathlib import Path

from generated_file import write_or_check

LABELS = ("--", "-", "o", "+", "++")
FILE = Path(__file__).resolve().parent.parent / "data" / "Tafelquell.ini"

# Lowest percentage of the total for the grades 1 to 5.
TABLE_PERCENT = (90, 77, 60, 42, 21)
TABLE_TOTALS = range(10, 201)

# The middle row of the own distribution, and by how much each step to the strict side raises it.
OWN_MIDDLE = (88, 74, 60, 45, 25)
OWN_STEP = (3, 4, 4, 4, 4)

# Shares of the students for the grades 1 to 6 in percent, from strict to mild. The last one is above 0, so that the
# boundary of grade 5 lies above the lowest result: a class in which somebody has no points stays plausible.
GAUSS_SHARES = (
    (4, 12, 26, 34, 18, 6),
    (6, 16, 30, 30, 13, 5),
    (8, 22, 34, 24, 8, 4),
    (12, 26, 34, 20, 5, 3),
    (16, 32, 32, 15, 3, 2),
)

TEST_NAMES = (
    [("Probe", "Lernzielkontrolle")] * 4
    + [("Schulaufgabe", "Stegreifaufgabe")] * 6
    + [("Klausur", "Kurzarbeit")] * 3
)


def table_half_points(total: int) -> list[int]:
    """Boundaries of the grades 1 to 5 in half points: the percentage, rounded to the nearest half point, ties upward."""
    return [(2 * total * percent + 50) // 100 for percent in TABLE_PERCENT]


def german(half_points: int) -> str:
    return f"{half_points // 2},5" if half_points % 2 else str(half_points // 2)


def own_rows() -> list[list[int]]:
    """Two strict rows, the middle row, two mild rows."""
    return [[middle + steps * step for middle, step in zip(OWN_MIDDLE, OWN_STEP)] for steps in (2, 1, 0, -1, -2)]


def gauss_rows() -> list[list[int]]:
    """The shares, summed up from grade 1 on."""
    return [[sum(shares[: grade + 1]) for grade in range(5)] for shares in GAUSS_SHARES]


def falls(row) -> bool:
    return all(left > right for left, right in zip(row, row[1:]))


def check() -> None:
    for total in TABLE_TOTALS:
        row = table_half_points(total)
        assert falls(row) and row[0] <= 2 * total and row[-1] > 0, total
    assert all(falls(row) and row[0] <= 100 and row[-1] > 0 for row in own_rows())
    assert all(falls(column) for column in zip(*own_rows())), "own rows run from strict to mild"
    assert all(sum(shares) == 100 and min(shares) > 0 for shares in GAUSS_SHARES)
    assert all(falls(column[::-1]) for column in list(zip(*gauss_rows()))), "Gauss rows run from strict to mild"
    assert len(TEST_NAMES) == 13


def lines():
    grades = ["Note1", "Note2", "Note3", "Note4", "Note5"]
    yield ["[Parameter für Tafelquell 3.0]"]
    for marker, rows in (("[Eigene Verteilung]", own_rows()), ("[Gauß-Verteilung]", gauss_rows())):
        yield [marker]
        yield ["Wertung", *grades]
        for label, row in zip(LABELS, rows):
            yield [label, *map(str, row)]
    yield ["[BLLV-Verteilung]"]
    yield ["Punkte", *grades]
    for total in TABLE_TOTALS:
        yield [str(total), *map(german, table_half_points(total))]
    yield ["[Probenbezeichnungen]"]
    yield ["Klasse", "Probenbezeichnung", "ExtemporalenBezeichnung"]
    for level, names in enumerate(TEST_NAMES, 1):
        yield [str(level), *names]


if __name__ == "__main__":
    check()
    sys.exit(write_or_check(FILE, lines()))
