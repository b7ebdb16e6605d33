#!/usr/bin/env python3
"""Checks the delivered phrase file.

    tools/check_phrases.py [data/Formulierungen.txt]

A phrase is stored in its masculine form with "*****" for the name. For a girl the program works
through a fixed table of text replacements, and what a teacher edits goes through the same table
the other way. The table knows no grammar, so a phrase must be worded with care: this script applies
the table in both directions and names every phrase that does not come back byte for byte, or that
would read wrong for a girl. It prints one line a finding and ends with status 1 if there is any.
"""

import re
import sys
from pathlib import Path

FIRST_LINE = "[Beurteilungsvorlagen für Tafelquell 3.0]"
PLACEHOLDER = "*****"
MARKS = "+o-"
MIN_AREAS, MAX_AREAS = 10, 99
MIN_PHRASES, MAX_PHRASES = 15, 200
MIN_PER_MARK = 5

# Masculine and feminine side, applied row by row, each to the result of the row before.
TABLE = (
    (" er ", " sie "),
    ("Er ", "Sie "),
    (" sein ", " ihr "),
    ("Sein ", "Ihr "),
    (" seine ", " ihre "),
    ("Seine ", "Ihre "),
    (" seiner ", " ihrer "),
    ("Seiner ", "Ihrer "),
    (" seinen ", " ihren "),
    ("Seinen ", "Ihren "),
    ("ihm ", "ihr "),
    ("Ihm ", "Ihr "),
    ("ihn ", "sie "),
    ("Ihn ", "Sie "),
    ("ruhiger ", "ruhige "),
    ("loser ", "lose "),
    ("Schüler ", "Schülerin "),
    ("Schüler.", "Schülerin."),
)

BOYS = ("Lukas", "Emil", "Jonas-Elias")
GIRLS = ("Anna", "Zoë", "Marie-Luise")

# What may not stand in the stored form, with the reason to print.
STORED_RULES = (
    (r"\b(sie|ihr|ihre|ihrer|ihren|ihrem|ihres)\b", "a feminine or plural pronoun comes back masculine"),
    (r"\b(ihm|ihn)\b", "comes back from a girl as another case"),
    (r"\b(seinem|seines)\b", "has no feminine row"),
    (r"\b(er|sein|seine|seiner|seinen)[^\w\s]", "a pronoun before a punctuation mark is not adapted"),
    (r"^(?-i:er|sein|seine|seiner|seinen)\b", "a lower-case pronoun at the start does not come back"),
    (r"(lose|loser|ruhige|ruhiger) ", "changes its ending for a girl or on the way back"),
    (r"sie ", "the end of this word comes back as 'ihn'"),
    (r"\b\w*schüler(in)?\b", "names the student's sex"),
    (r"\b(jeder|derjenige|der einzige|einer der)\b", "speaks of the student as a masculine noun"),
    (r"\b(ein|einen|als|der|den) \w*(freund|partner|kamerad|helfer|zuhörer|leser|rechner|sportler|sprecher)\b",
     "speaks of the student as a masculine noun"),
    (r"\*s\b", "a name ending in s does not take another s"),
    (r"\t|  ", "tab or double blank"),
)
GIRL_RULE = re.compile(r"\b(er|ihm|ihn|sein\w{0,2})\b", re.IGNORECASE)


def shown(line: str, name: str, girl: bool) -> str:
    """The text a teacher sees: the table works on the whole line, then mark and blank are cut off."""
    line = line.replace(PLACEHOLDER, name)
    if girl:
        for masculine, feminine in TABLE:
            line = line.replace(masculine, feminine)
    return line[2:]


def stored(text: str, name: str, girl: bool) -> str:
    """The text as the editor gives it back to the store, without mark."""
    text = text.strip().replace(name, PLACEHOLDER)
    if girl:
        for masculine, feminine in TABLE:
            text = text.replace(feminine, masculine)
    return text


def phrase_findings(line: str):
    if line[:1] not in MARKS or line[1:2] != " ":
        yield "does not begin with a mark and a blank"
        return
    text = line[2:]
    if not re.match(r"(\*{5}|[A-ZÄÖÜ])", text) or not text.endswith(".") or text != text.strip():
        yield "is no sentence from a capital or the name to the full stop"
    if text.replace(PLACEHOLDER, "").count("*"):
        yield "has a placeholder that is not five asterisks"
    for pattern, reason in STORED_RULES:
        hit = re.search(pattern, text, re.IGNORECASE)
        if hit:
            yield f"'{hit.group(0)}': {reason}"
    for name in BOYS + GIRLS:
        girl = name in GIRLS
        if stored(shown(line, name, girl), name, girl) != text:
            yield f"does not come back for {name}: {stored(shown(line, name, girl), name, girl)}"
    hit = GIRL_RULE.search(shown(line, GIRLS[0], True))
    if hit:
        yield f"'{hit.group(0)}' stays masculine for a girl"


def file_findings(raw: bytes):
    if not raw.endswith(b"\r\n") or raw.count(b"\n") != raw.count(b"\r\n") or raw.count(b"\r") != raw.count(b"\n"):
        yield 1, "line ends are not CR LF throughout"
    lines = raw.decode("cp1252").split("\r\n")[:-1]
    if lines[0] != FIRST_LINE:
        yield 1, "wrong first line"
    areas: dict[str, list[str]] = {}
    seen: dict[str, int] = {}
    area = None
    for number, line in enumerate(lines[1:], 2):
        if line.startswith("[") and line.endswith("]"):
            area = line[1:-1]
            if area in areas:
                yield number, f"area '{area}' twice"
            areas[area] = []
            continue
        if area is None:
            yield number, "a phrase before the first area"
            continue
        areas[area].append(line)
        if line[2:] in seen:
            yield number, f"same text as line {seen[line[2:]]}"
        seen[line[2:]] = number
        for finding in phrase_findings(line):
            yield number, f"{finding} | {line}"
    if not MIN_AREAS <= len(areas) <= MAX_AREAS:
        yield len(lines), f"{len(areas)} areas"
    for name, phrases in areas.items():
        if not MIN_PHRASES <= len(phrases) <= MAX_PHRASES:
            yield len(lines), f"area '{name}' has {len(phrases)} phrases"
        for mark in MARKS:
            if sum(p.startswith(mark) for p in phrases) < MIN_PER_MARK:
                yield len(lines), f"area '{name}' has too few phrases with mark {mark}"
    print(f"{len(areas)} areas, {sum(map(len, areas.values()))} phrases")


def main() -> int:
    default = Path(__file__).resolve().parent.parent / "data" / "Formulierungen.txt"
    path = Path(sys.argv[1]) if len(sys.argv) > 1 else default
    findings = 0
    for number, text in file_findings(path.read_bytes()):
        print(f"{path.name}:{number}: {text}")
        findings += 1
    print(f"{findings} findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
