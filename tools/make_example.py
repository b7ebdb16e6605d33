#!/usr/bin/env python3
"""Makes the example grade book, byte for byte.

    tools/make_example.py > data/Beispiel.txt
    tools/make_example.py --check             compares with data/Beispiel.txt, status 1 if they differ

All people, addresses and numbers are invented. The grades follow from the points by the program's own
rules, because opening a test evaluates it anew: a book whose grades disagreed would change under the
teacher's eyes. Chance comes from a small generator of its own, so that every Python makes the same file.
"""

import sys
from dataclasses import dataclass, field
from pathlib import Path

from check_phrases import shown
from generated_file import write_or_check
from make_parameter_file import german, table_half_points

DATA = Path(__file__).resolve().parent.parent / "data"
FILE = DATA / "Beispiel.txt"
LAST_YEAR, THIS_YEAR = "2025/26", "2026/27"
TITLES = ["Strasse", "Ort", "Tel", "Religion", "Geschlecht", "Staat", "Geburtstag", *(f"Daten{i}" for i in range(1, 8))]
WEIGHT_E, WEIGHT_M = 1.0, 0.5
ORAL_GRADES = ("1", "1-", "2+", "2", "2-", "3+", "3", "3-", "4", "5")

# Name, sex, religion, state, birthday, class letter, years in the class, gift for school from 0 to 100.
BOTH, LEFT, CAME = "beide", "weggezogen", "zugezogen"
PEOPLE = [
    ("Albrecht Jonas", "m", "ev", "D", "14.03.2017", "b", BOTH, 72),
    ("Bauer Anna", "w", "rk", "D", "02.11.2016", "b", BOTH, 91),
    ("Çelik Elif", "w", "isl", "D", "27.06.2017", "b", BOTH, 78),
    ("Dorn Felix", "m", "rk", "D", "19.01.2017", "b", BOTH, 55),
    ("Ebner Leonie", "w", "ev", "A", "08.09.2017", "b", BOTH, 84),
    ("Fröhlich Emil", "m", "rk", "D", "30.12.2016", "b", BOTH, 63),
    ("Großmann Ida", "w", "ev", "D", "11.05.2017", "b", BOTH, 69),
    ("Hartl Korbinian", "m", "rk", "D", "23.07.2017", "b", BOTH, 48),
    ("Ivanova Mila", "w", "ohne", "BG", "16.02.2017", "b", BOTH, 74),
    ("Jäger Moritz", "m", "ev", "D", "05.10.2016", "b", BOTH, 88),
    ("Köhler Johanna", "w", "ev", "D", "21.04.2017", "b", BOTH, 95),
    ("Lang Ben", "m", "ohne", "D", "12.08.2017", "b", BOTH, 38),
    ("Müller Clara Sophie", "w", "rk", "D", "03.03.2017", "b", BOTH, 80),
    ("Nuñez Mateo", "m", "rk", "E", "29.11.2016", "b", BOTH, 60),
    ("Öztürk Deniz", "m", "isl", "TR", "17.06.2017", "b", BOTH, 66),
    ("Pfeiffer Greta", "w", "ev", "D", "09.02.2017", "b", BOTH, 52),
    ("von Roth Konstantin", "m", "rk", "D", "25.05.2017", "b", BOTH, 76),
    ("Schäfer Paula", "w", "rk", "D", "01.07.2017", "b", BOTH, 86),
    ("Thoma Xaver", "m", "rk", "D", "13.12.2016", "b", LEFT, 58),
    ("Weiß Zoë", "w", "ohne", "D", "20.09.2017", "b", CAME, 71),
    ("Adler Oskar", "m", "ev", "D", "06.01.2017", "c", BOTH, 64),
    ("Böhm Frieda", "w", "rk", "D", "18.10.2016", "c", BOTH, 90),
    ("Dimitrov Alexander", "m", "orth", "BG", "22.03.2017", "c", BOTH, 57),
    ("Engel Marlene", "w", "ev", "D", "15.08.2017", "c", BOTH, 82),
    ("Fuchs Theo", "m", "rk", "D", "07.04.2017", "c", BOTH, 45),
    ("Gruber Magdalena", "w", "rk", "D", "28.02.2017", "c", BOTH, 77),
    ("Hofmann Luis", "m", "ev", "D", "10.12.2016", "c", BOTH, 70),
    ("Jovanovic-Klein Lara", "w", "ohne", "D", "04.06.2017", "c", BOTH, 68),
    ("Kaiser Vincent", "m", "rk", "D", "26.09.2017", "c", BOTH, 85),
    ("Lindner Nele", "w", "ev", "D", "31.01.2017", "c", BOTH, 93),
    ("Meier Quirin", "m", "rk", "D", "19.05.2017", "c", BOTH, 51),
    ("Nguyen Mai Linh", "w", "ohne", "D", "24.11.2016", "c", BOTH, 89),
    ("Pohl Sebastian", "m", "ev", "D", "08.07.2017", "c", BOTH, 61),
    ("Rößler Amelie", "w", "rk", "D", "14.10.2016", "c", BOTH, 73),
    ("Sommer Jakob", "m", "ev", "D", "03.08.2017", "c", BOTH, 79),
    ("Ünal Aylin", "w", "isl", "TR", "27.12.2016", "c", LEFT, 67),
    ("Vogt Hannes", "m", "rk", "D", "16.04.2017", "c", CAME, 43),
]
STREETS = ("Am Brunnen", "Mühlweg", "Lindenstraße", "Schulgasse", "Birkenweg", "Quellenring", "Bergstraße", "Kirchplatz")
NOTES = {
    "Ebner Leonie": "Brille",
    "Lang Ben": "Hort bis 16 Uhr",
    "Nuñez Mateo": "Allergie: Nüsse",
    "Öztürk Deniz": "Förderunterricht Deutsch",
    "Nguyen Mai Linh": "Klavier",
    "Meier Quirin": "Hort bis 16 Uhr",
}


class Chance:
    """A linear congruential generator; roll(n) gives 0 to n-1."""

    def __init__(self, seed: int):
        self.state = seed

    def roll(self, n: int) -> int:
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) % 2**64
        return (self.state >> 33) % n


@dataclass
class Test:
    """One test. What is special is told by student: None for absent, a number for these half points,
    a text for a grade set by hand (its points stay behind the minus sign as a memory, a marker had none)."""

    number: int
    date: str
    theme: str
    total: str
    boundaries: list[str] | None = None
    file: str = ""
    special: dict = field(default_factory=dict)
    guests: dict = field(default_factory=dict)
    written: bool = True
    all_by_hand: bool = False

    def half_total(self) -> int:
        return half_points(self.total)

    def limits(self) -> list[str]:
        if self.boundaries is None:
            return [german(h) for h in table_half_points(self.half_total() // 2)]
        return self.boundaries


@dataclass
class Subject:
    id: int
    name: str
    classes: str
    year: str
    limit: int
    tests: list[Test]
    oral: int
    without: tuple = ()

    def parts(self) -> list[str]:
        stem = self.classes.rstrip("abcdefghij")
        return [stem + letter for letter in self.classes[len(stem):]]

    def takes_part(self, student) -> bool:
        if self.name == "Religion (ev.)":
            return student.religion == "ev"
        return student.name not in self.without


@dataclass
class Student:
    id: int
    name: str
    klasse: str
    year: str
    sex: str
    religion: str
    state: str
    birthday: str
    gift: int
    home: int
    assessments: dict = field(default_factory=dict)

    def fields(self) -> list[str]:
        street = f"{STREETS[self.home % len(STREETS)]} {1 + self.home * 7 % 43}"
        phone = f"089 99998-{100 + self.home * 23}"
        note = NOTES.get(self.name, "") if self.year == THIS_YEAR else ""
        return [street, "99999 Quellstadt", phone, self.religion, self.sex, self.state, self.birthday, note] + [""] * 6

    def first_name(self) -> str:
        return self.name.rsplit(" ", 1)[-1]


def half_points(text: str) -> int:
    whole, _, half = text.partition(",")
    assert half in ("", "5")
    return 2 * int(whole) + (1 if half else 0)


def plausible(test: Test) -> bool:
    if not test.total or "" in test.limits():
        return False
    total, limits = test.half_total(), [half_points(text) for text in test.limits()]
    return 2 <= total <= 400 and limits[0] <= total and limits[-1] > 0 and all(a > b for a, b in zip(limits, limits[1:]))


def grade(points: int, test: Test) -> str:
    """The grade of these half points; the distance for '+' and '-' is one half point."""
    limits = [half_points(text) for text in test.limits()] + [-2]
    k = next(k for k, limit in enumerate(limits) if points >= limit)
    text = str(k + 1)
    if points < limits[k] + 1:
        text += "-"
    if k > 0 and points >= limits[k - 1] - 1:
        text += "+"
    return text


def result(student: Student, test: Test, chance: Chance) -> tuple[str, str]:
    """Grade and points of a student as they stand in the book."""
    luck = chance.roll(25) - 12
    if not test.written:
        return "", ""
    total = test.half_total() if test.total else 0
    points = max(1, min(total, total * (student.gift + luck) // 100)) if total else 0
    special = test.special.get(student.name, points)
    if special is None:
        return "ne", ""
    if isinstance(special, str):
        return special, f"-{german(points)}" if value(special) else "-0,1"
    if test.all_by_hand:
        return ORAL_GRADES[max(0, min(9, (100 - student.gift - luck) // 8))], "-0,1"
    return (grade(special, test) if plausible(test) else ""), german(special)


def value(text: str) -> int:
    """The worth of a grade while '+' and '-' don't count."""
    return int(text[0]) if text[:1].isdigit() else 0


def report_grade(grades: list[str], below: int) -> str:
    """Average of all single grades with their weights, the tests and oral grades numbered from below on left out."""
    weighted = weights = 0.0
    for block, weight in enumerate((1.0, WEIGHT_E, WEIGHT_M)):
        for text in grades[10 * block : 10 * block + below - 1]:
            if value(text):
                weighted += weight * value(text)
                weights += weight
    return str(int(weighted / weights + 0.5)) if weights else ""


def grade_row(subject: Subject, student: Student) -> list[str]:
    grades, points = [""] * 30, [""] * 20
    report = ["", ""]
    if subject.takes_part(student):
        chance = Chance(subject.id * 100003 + student.id)
        for test in subject.tests:
            grades[test.number - 1], points[test.number - 1] = result(student, test, chance)
        for k in range(subject.oral):
            place = k if k < (subject.oral + 1) // 2 else subject.limit - 1 + k - (subject.oral + 1) // 2
            if subject.year == THIS_YEAR:
                place = k
            grades[20 + place] = ORAL_GRADES[max(0, min(9, (104 - student.gift + chance.roll(17) - 8) // 8))]
        if subject.year == LAST_YEAR:
            report = [report_grade(grades, subject.limit), report_grade(grades, 11)]
    part = "ja" if subject.takes_part(student) else "nein"
    return [str(subject.id), str(student.id), part, *report, *grades, *points]


def make_subjects() -> list[Subject]:
    return [
        Subject(50000, "Deutsch", "3b", LAST_YEAR, 4, [
            Test(1, "14.10.2025", "Nachschrift: Im Herbst", "20"),
            Test(2, "27.11.2025", "Aufsatz: Reizwortgeschichte", "24", file="Reizwortgeschichte.odt",
                 special={"Lang Ben": None}),
            Test(3, "22.01.2026", "Wortarten und Satzglieder", "32"),
            Test(4, "11.03.2026", "Leseprobe: Die Honigbiene", "30", special={"Ivanova Mila": None, "Dorn Felix": None}),
            Test(5, "23.04.2026", "Aufsatz: Vorgangsbeschreibung", "24"),
            Test(6, "24.06.2026", "Rechtschreibung: Dehnung und Schärfung", "28", special={"Thoma Xaver": "4"}),
            Test(11, "30.09.2025", "Nachschlagen im Wörterbuch", "12"),
            Test(14, "18.03.2026", "Wortfeld gehen", "10"),
        ], oral=5),
        Subject(50001, "Mathematik", "3b", LAST_YEAR, 4, [
            Test(1, "21.10.2025", "Rechnen bis 1000", "36"),
            Test(2, "04.12.2025", "Längen und Sachaufgaben", "30", special={"Nuñez Mateo": None}),
            Test(3, "29.01.2026", "Schriftliche Addition", "40", ["37", "31,5", "25", "17,5", "9"]),
            Test(4, "19.03.2026", "Schriftliche Subtraktion", "40"),
            Test(5, "06.05.2026", "Geometrie: Flächen und Körper", "25"),
            Test(6, "08.07.2026", "Gewichte und Sachaufgaben", "34", special={"Köhler Johanna": 70}),
            Test(11, "07.10.2025", "Einmaleins", "20"),
            Test(12, "13.01.2026", "Kopfrechnen", "20"),
            Test(14, "21.05.2026", "Uhrzeit", "14", special={"Pfeiffer Greta": "3"}),
        ], oral=4),
        Subject(50002, "Heimat- und Sachunterricht", "3b", LAST_YEAR, 4, [
            Test(1, "13.11.2025", "Der Wald", "28"),
            Test(2, "20.01.2026", "Strom und Licht", "26"),
            Test(4, "25.03.2026", "Karten und Pläne", "30"),
            Test(5, "01.07.2026", "Wasser", "32", special={"Çelik Elif": None}),
            Test(11, "02.10.2025", "Verkehrszeichen", "10"),
        ], oral=4, without=("Öztürk Deniz",)),
        Subject(50003, "Mathematik", "3c", LAST_YEAR, 4, [
            Test(1, "22.10.2025", "Rechnen bis 1000", "36"),
            Test(2, "03.12.2025", "Längen und Sachaufgaben", "30"),
            Test(4, "18.03.2026", "Schriftliche Subtraktion", "40", special={"Fuchs Theo": "5"}),
            Test(5, "17.06.2026", "Geld und Gewichte", "22,5", ["20,5", "17,5", "13,5", "9,5", "5"]),
            Test(11, "08.10.2025", "Einmaleins", "20", special={"Pohl Sebastian": None}),
        ], oral=4),
        Subject(50004, "Musik", "3c", LAST_YEAR, 4, [
            Test(11, "11.12.2025", "Instrumente des Orchesters", "16"),
            Test(14, "12.05.2026", "Vorsingen", "", ["", "", "", "", ""], all_by_hand=True),
        ], oral=4, without=("Ünal Aylin",)),
        Subject(50005, "Deutsch", "4b", THIS_YEAR, 6, [
            Test(1, "07.10.2026", "Nachschrift: Auf dem Wochenmarkt", "24", special={"Hartl Korbinian": None}),
            Test(2, "12.11.2026", "Aufsatz: Fantasiegeschichte", "30", ["27", "23", "18", "12,5", "6,5"],
                 file="Fantasiegeschichte.odt", special={"Öztürk Deniz": "3", "Dorn Felix": "kr", "Lang Ben": None}),
            Test(3, "03.12.2026", "Leseprobe: Am Bach", "28", written=False),
            Test(11, "24.09.2026", "Wörtliche Rede", "12"),
            Test(12, "22.10.2026", "Satzglieder", "15,5", ["14", "12", "9,5", "6,5", "3,5"]),
        ], oral=2),
        Subject(50006, "Mathematik", "4b", THIS_YEAR, 6, [
            Test(1, "14.10.2026", "Zahlen bis zur Million", "40", special={"Köhler Johanna": 82, "Lang Ben": 15},
                 guests={"Winkler Marlene": 61, "Stern Noah": None}),
            Test(2, "17.11.2026", "Schriftliche Multiplikation", "36", ["32,5", "27", "27", "15", "7,5"],
                 special={"Ivanova Mila": None}),
            Test(11, "29.09.2026", "Kopfrechnen", "20", special={"Fröhlich Emil": "2"}),
            Test(12, "27.10.2026", "Überschlag", "10", ["9", "8", "6,5", "5", "4"]),
        ], oral=2),
        Subject(50007, "Heimat- und Sachunterricht", "4b", THIS_YEAR, 6, [
            Test(1, "20.10.2026", "Radfahren und Verkehr", "30", special={"Weiß Zoë": "2", "Müller Clara Sophie": None}),
            Test(11, "13.10.2026", "Teile des Fahrrads", "12"),
            Test(12, "19.11.2026", "Himmelsrichtungen", "8", ["7,5", "7", "5", "3,5", "2"]),
        ], oral=1),
        Subject(50008, "Mathematik", "4c", THIS_YEAR, 6, [
            Test(1, "15.10.2026", "Zahlen bis zur Million", "40", special={"Vogt Hannes": 12}),
            Test(11, "30.09.2026", "Kopfrechnen", "20", special={"Kaiser Vincent": None}),
        ], oral=2),
        Subject(50009, "Englisch", "4c", THIS_YEAR, 6, [
            Test(11, "21.10.2026", "Colours and numbers", "18", special={"Rößler Amelie": "2"}),
            Test(12, "11.11.2026", "At school", "20"),
        ], oral=2, without=("Dimitrov Alexander",)),
        Subject(50010, "Religion (ev.)", "4bc", THIS_YEAR, 6, [
            Test(1, "29.10.2026", "Schöpfung", "24", special={"Adler Oskar": None}, guests={"Brandt Elisa": 41}),
            Test(11, "08.10.2026", "Die Zehn Gebote", "14"),
        ], oral=1),
    ]


def make_students() -> list[Student]:
    students = []
    for year, level, absent in ((LAST_YEAR, "3", CAME), (THIS_YEAR, "4", LEFT)):
        for home, (name, sex, religion, state, birthday, letter, years, gift) in enumerate(PEOPLE):
            if years != absent:
                students.append(Student(10000 + len(students), name, level + letter, year,
                                        sex, religion, state, birthday, gift, home))
    for student in students:
        student.assessments = make_assessments(student)
    return students


def phrase_store() -> dict[str, list[str]]:
    areas: dict[str, list[str]] = {}
    for line in (DATA / "Formulierungen.txt").read_bytes().decode("cp1252").split("\r\n")[1:-1]:
        if line.startswith("["):
            name = line[1:-1]
            areas[name] = []
        else:
            areas[name].append(line)
    return areas


PHRASES = phrase_store()


def composed(student: Student, areas, chance: Chance) -> str:
    """An assessment as a teacher would put it together: a phrase from each area, the name and the pronoun in turn."""
    mark = "+" if student.gift >= 78 else "o" if student.gift >= 56 else "-"
    lines = []
    for k, area in enumerate(areas):
        # The second area shows another side of the child, so that nobody gets nothing but blame.
        wanted = mark if k != 1 else ("o" if mark == "+" else "+")
        choice = [line for line in PHRASES[area] if line.startswith(wanted) and line[2:].startswith("***** ")]
        line = choice[chance.roll(len(choice))]
        if k % 2:
            line = line[:2] + "Er" + line[7:]
        lines.append(shown(line, student.first_name(), student.sex == "w"))
    return "\r\n".join(lines)


def make_assessments(student: Student) -> dict[int, str]:
    chance = Chance(student.id)
    if student.klasse == "3b":
        return {
            1: composed(student, ("Arbeitsverhalten", "Sozialverhalten", "Lernverhalten", "Mathematik"), chance),
            2: composed(student, ("Lernverhalten", "Sozialverhalten", "Deutsch: Lesen", "Deutsch: Schreiben",
                                  "Heimat- und Sachunterricht"), chance),
        }
    if student.klasse == "4b" and student.id % 3 == 0:
        return {3: composed(student, ("Arbeitsverhalten", "Sozialverhalten", "Mathematik"), chance)}
    return OBSERVATIONS.get((student.klasse, student.name), {})


OBSERVATIONS = {
    ("4b", "Lang Ben"): {
        8: "24.09.2026: Hausaufgabe fehlt zum zweiten Mal.\r\n"
           "06.10.2026: Gespräch mit der Mutter, Hausaufgabenheft wird täglich unterschrieben.\r\n"
           "\r\n"
           "28.10.2026: Seither vollständig. Lob ausgesprochen.",
    },
    ("4c", "Lindner Nele"): {
        8: "13.10.2026: Hilft Hannes beim Einleben.\r\n10.11.2026: Vorschlag als Streitschlichterin.",
        9: "17.11.2026: Gewinnt den Vorlesewettbewerb der vierten Klassen.",
    },
    ("4c", "Vogt Hannes"): {
        3: "Hannes hat sich nach dem Schulwechsel gut eingelebt.\r\nLücken beim Einmaleins holt er mit Fleiß auf.",
    },
}


def guests(subjects):
    for subject in subjects:
        for test in subject.tests:
            for name, points in test.guests.items():
                text = "" if points is None else german(points)
                yield [str(test.number), str(subject.id), name, text, "ne" if points is None else grade(points, test)]


def test_rows(subjects):
    for subject in subjects:
        for test in sorted(subject.tests, key=lambda test: test.number):
            yield [str(test.number), str(subject.id), test.date, test.theme, test.file, test.total, *test.limits()]


def book():
    subjects, students = make_subjects(), make_students()
    yield ["[Tafelquell 3.0]"]
    yield ["[Klassen]"]
    yield ["Jahr", "Name"]
    yield from ([year, name] for year, name in
                ((LAST_YEAR, "3b"), (LAST_YEAR, "3c"), (THIS_YEAR, "4b"), (THIS_YEAR, "4c")))
    yield ["[Fächer]"]
    yield ["ID", "Name", "Klasse", "Jahr", "GrenzeP", "GrenzeE", "GrenzeM"]
    yield from ([str(s.id), s.name, s.classes, s.year, *[str(s.limit)] * 3] for s in subjects)
    yield ["[Proben]"]
    yield ["Probe_ID", "Fach_ID", "Datum", "Name", "Dateiname", "Gesamtpunktzahl", *(f"NGrenze{i}" for i in range(1, 6))]
    yield from test_rows(subjects)
    yield ["[Schüler]"]
    yield ["ID", "Name", "Klasse", "Jahr", *TITLES]
    yield from ([str(s.id), s.name, s.klasse, s.year, *s.fields()] for s in students)
    yield ["[ZSchüler]"]
    yield ["Probe_ID", "Fach_ID", "Name", "Punkte", "Note"]
    yield from guests(subjects)
    yield ["[Noten]"]
    yield ["Fach_ID", "Schüler_ID", "Teilnahme", "Gesamt1", "Gesamt2",
           *(f"N{i}" for i in range(1, 31)), *(f"P{i}" for i in range(1, 21))]
    for subject in subjects:
        for student in students:
            if student.year == subject.year and student.klasse in subject.parts():
                yield grade_row(subject, student)
    yield ["[Beurteilungen]"]
    yield ["#Schueler_ID _ Halbjahr#"]
    for student in students:
        for slot, text in sorted(student.assessments.items()):
            yield [f"#{student.id}_{slot}#"]
            yield [text]
    yield ["[Parameter]"]
    yield ["AktJahr", "Halbjahreswechsel", "Endjahreswechsel", "GrenznotenBerechnen", "GrenznotenPunkteAbstand",
           "GrenznotenBeruecksichtigen", "GrenznotenNotenAbstand", "NotenberechnenMethode", "GewichtungE", "GewichtungM"]
    yield [THIS_YEAR, "24.02.", "12.09.", "Wahr", "0,5", "Falsch", "0,3", "1", "1", "0,5"]


if __name__ == "__main__":
    sys.exit(write_or_check(FILE, book()))
