#!/usr/bin/env python3
"""Writes the corpus of the rescue copies: whole, damaged, and heads without their checksum (the target adds it)."""

from pathlib import Path

HERE = Path(__file__).resolve().parent
CONTENT = (HERE.parent / "tests" / "data" / "klein.txt").read_bytes()
TABLE = []
for start in range(256):
    value = start
    for _ in range(8):
        value = value >> 1 ^ (0x82F63B78 if value & 1 else 0)
    TABLE.append(value)


def checksum(data):
    value = 0xFFFFFFFF
    for byte in data:
        value = value >> 8 ^ TABLE[(value ^ byte) & 255]
    return b"%08x" % (value ^ 0xFFFFFFFF)


def lines(content=CONTENT, **other):
    fields = {
        "Datei": b"/home/lehrer/Klasse 7a.txt", "Geraet": b"2049", "Inode": b"4711", "Laenge": b"%d" % len(content),
        "Pruefsumme": checksum(content), "NeueDatei": b"nein", "VorherLaenge": b"12", "VorherPruefsumme": b"0000cafe",
        "Zeit": b"2003-10-12T10:30:00Z", "Rechner": b"lehrerzimmer", "Prozess": b"4711",
    } | other
    return [b"Tafelquell-Rettungskopie 1"] + [key.encode() + b": " + value for key, value in fields.items()]


def bare(all_lines):
    return b"".join(line + b"\n" for line in all_lines)


def whole(all_lines, content=CONTENT):
    head = bare(all_lines)
    return head + b"Kopfpruefsumme: " + checksum(head) + b"\n\n" + content


def cases():
    good = whole(lines())
    yield "gut", good
    yield "leerer-inhalt", whole(lines(b""), b"")
    yield "neue-datei", whole(lines(NeueDatei=b"ja"))
    yield "zeichen-im-pfad", whole(lines(Datei="/a%25%0a/ä ö.txt".encode()))
    yield "leer", b""
    yield "nur-leerzeile", b"\n\n"
    yield "nur-inhalt", CONTENT
    yield "ohne-summe", bare(lines())
    yield "falsche-summe", good.replace(b"lehrerzimmer", b"lehrerzimmel")
    yield "anderer-inhalt", good[:-1] + b"x"
    yield "fassung-2", whole([b"Tafelquell-Rettungskopie 2"] + lines()[1:])
    yield "zeilen-vertauscht", whole(lines()[:1] + lines()[:0:-1])
    yield "zeile-doppelt", whole(lines()[:3] + lines()[2:])
    yield "zeile-fehlt", whole(lines()[:5] + lines()[6:])
    yield "cr-lf", good.replace(b"\n", b"\r\n")
    yield "pfad-relativ", bare(lines(Datei=b"buch.txt"))
    yield "pfad-leer", bare(lines(Datei=b""))
    yield "pfad-nul", bare(lines(Datei=b"/a%00b"))
    yield "pfad-lang", bare(lines(Datei=b"/" + b"%0a" * 1200))
    yield "laenge-riesig", bare(lines(Laenge=b"9223372036854775807"))
    yield "laenge-negativ", bare(lines(Laenge=b"-1"))
    yield "laenge-ueberlauf", bare(lines(Laenge=b"99999999999999999999"))
    yield "fuehrende-null", bare(lines(Inode=b"0004711"))
    yield "zeit-keine", bare(lines(Zeit=b""))
    yield "zeit-2902", bare(lines(Zeit=b"2003-02-29T10:30:00Z"))
    yield "nullen", bytes(len(CONTENT))
    yield "anfang-und-nullen", CONTENT + CONTENT[:400] + bytes(len(CONTENT) - 400)
    for share in range(1, 8):
        yield f"abgeschnitten-{share}", good[: len(good) * share // 8]


def main():
    folder = HERE / "corpus" / "rettung"
    folder.mkdir(parents=True, exist_ok=True)
    for name, data in cases():
        (folder / name).write_bytes(data)


if __name__ == "__main__":
    main()
