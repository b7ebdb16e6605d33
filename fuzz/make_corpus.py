#!/usr/bin/env python3
"""Writes the corpora of the fuzz targets: good and damaged files, made from a small good one."""

from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent
CP = "cp1252"
CRLF = b"\r\n"


def lines_of(data):
    return data.split(CRLF)[:-1]


def joined(lines, end=CRLF):
    return b"".join(line + end for line in lines)


def sections_of(data):
    """The first line, and each section as a list of its lines."""
    head, *rest = lines_of(data)
    sections = []
    for line in rest:
        if line.startswith(b"[") and line.endswith(b"]"):
            sections.append([])
        sections[-1].append(line)
    return head, sections


def variants(data):
    """Damage that any of our files may meet."""
    yield "gut", data
    yield "leer", b""
    yield "lf", data.replace(CRLF, b"\n")
    yield "cr", data.replace(CRLF, b"\r")
    yield "gemischt", data.replace(CRLF, b"\n", 7).replace(CRLF, b"\r", 5)
    yield "ohne-letztes-zeilenende", data[:-2]
    yield "utf8", data.decode(CP).encode("utf-8")
    yield "utf8-bom", data.decode(CP).encode("utf-8-sig")
    yield "utf16", data.decode(CP).encode("utf-16")
    yield "nul", data.replace(b"a", b"\0", 20)
    yield "zweimal", data + data
    yield "nur-kopf", data.split(CRLF)[0] + CRLF
    yield "alle-bytes", data[:-2] + bytes(b for b in range(256) if b not in (10, 13)) + CRLF
    yield "lange-zeile", data[:-2] + b"x" * 3000 + CRLF
    yield "viele-felder", data[:-2] + b"\t" * 80 + CRLF
    yield "leerzeilen", data.replace(CRLF, CRLF + CRLF)
    for share in (1, 2, 3, 4, 5, 6, 7):
        yield f"abgeschnitten-{share}", data[: len(data) * share // 8]


def section_variants(data):
    head, sections = sections_of(data)
    for i, section in enumerate(sections):
        others = sections[:i] + sections[i + 1 :]
        yield f"ohne-abschnitt-{i}", joined([head] + sum(others, []))
        yield f"doppelter-abschnitt-{i}", joined([head] + sum(sections[: i + 1] + sections[i:], []))
        yield f"nur-abschnitt-{i}", joined([head] + section)
        yield f"nur-marke-{i}", joined([head, section[0]])
    yield "umgekehrt", joined([head] + sum(reversed(sections), []))


def replaced(data, *pairs):
    for old, new in pairs:
        assert old in data, old
        data = data.replace(old, new)
    return data


def database_variants(data):
    yield "version-2", data.replace(b"[Tafelquell 3.0]", b"[Tafelquell 2.0]")
    yield "version-4", data.replace(b"[Tafelquell 3.0]", b"[Tafelquell 4.0]")
    yield "probe-25", replaced(data, (b"\r\n1\t50000\t", b"\r\n25\t50000\t"))
    yield "probe-0", replaced(data, (b"\r\n1\t50000\t", b"\r\n0\t50000\t"))
    yield "probe-ohne-fach", replaced(data, (b"\r\n1\t50000\t", b"\r\n1\t50009\t"))
    yield "id-keine-zahl", replaced(data, (b"\r\n10000\tAnna", b"\r\nabc\tAnna"))
    yield "id-zu-gross", replaced(data, (b"\r\n10000\tAnna", b"\r\n99999999999\tAnna"))
    yield "id-60000", replaced(data, (b"\r\n10000\tAnna", b"\r\n60000\tAnna"))
    yield "id-kurz", replaced(data, (b"\r\n10000\tAnna", b"\r\n123\tAnna"), (b"#10000_1#", b"#00123_1#"))
    yield "marke-ohne-zahl", replaced(data, (b"#10000_1#", b"#abc#"))
    yield "marke-kurz", replaced(data, (b"#10000_1#", b"#"))
    yield "marke-slot-13", replaced(data, (b"#10000_1#", b"#10000_13#"))
    yield "marke-slot-0", replaced(data, (b"#10000_1#", b"#10000_0#"))
    yield "marke-fremd", replaced(data, (b"#10000_1#", b"#10009_1#"))
    yield "marke-zweimal", replaced(data, (b"[Parameter]", b"#10000_1#\r\n\r\nNoch ein Satz.\r\n\r\n[Parameter]"))
    yield "beurteilung-leere-zeilen", replaced(data, (b"Anna arbeitet", b"\r\n\r\nAnna arbeitet"))
    yield "beurteilung-klammern", replaced(data, (b"Sie beteiligt", b"[siehe oben]\r\nSie beteiligt"))
    yield "dezimalpunkt", replaced(data, (b"0,5", b"0.5"), (b"0,3", b"0.3"))
    yield "riesige-zahl", replaced(data, (b"0,5", b"1e300"))
    yield "negative-zahl", replaced(data, (b"0,5", b"-0,5"))
    yield "datum-2902", replaced(data, (b"24.02.", b"29.02."))
    yield "datum-3104", replaced(data, (b"24.02.", b"31.04."))
    yield "datum-wort", replaced(data, (b"24.02.", b"Februar"))
    yield "jahr-fremd", replaced(data, (b"\r\n2003/04\t24.02.", b"\r\n1990/91\t24.02."))
    yield "methode-3", replaced(data, (b"0,3\t1\t1\t0,5", b"0,3\t3\t1\t0,5"))
    yield "zeile-54", replaced(data, (b"50000\t10000\tja\t\t", b"50000\t10000\tja\t"))
    yield "zeile-56", replaced(data, (b"50000\t10000\tja\t\t", b"50000\t10000\tja\t\t\t"))
    yield "parameter-9", data[: data.rindex(b"\t")] + CRLF
    yield "klasse-wie-marke", replaced(data, (b"\r\n2003/04\t7a", b"\r\nx\t7a]\r\n[x"))


def parameter_variants(data):
    yield "version-2", data.replace(b"Tafelquell 3.0]", b"Tafelquell 2.0]")
    yield "gesamt-5", data.replace(b"\r\n10\t", b"\r\n5\t", 1)
    yield "gesamt-201", data.replace(b"\r\n10\t", b"\r\n201\t", 1)
    yield "keine-zahlen", data.replace(b"1", b"x")
    yield "stufe-14", data.replace(b"\r\n13\t", b"\r\n14\t", 1)
    yield "winzige-zahl", data.replace(b"\t94\t", b"\t1e-44\t", 1)


PHRASE_HEAD = "[Beurteilungsvorlagen für Tafelquell 3.0]".encode(CP)


def small_phrase_file(data):
    """Three areas with three phrases each."""
    head, sections = sections_of(data)
    return joined([head, *(line for section in sections[:3] for line in section[:4])])


def phrase_variants(data):
    yield "version-2", data.replace(b"3.0]", b"2.0]", 1)
    yield "kopf-abgeschnitten", data[:38]
    yield "kopf-ohne-version", data[:39]
    yield "verwaist", joined([PHRASE_HEAD, b"+ verwaist", b"[A]"])
    yield "klammern", joined([PHRASE_HEAD, b"[]", b"[", b"]", b"[x]y]", b" [x]", b"[x] "])
    yield "leere-zeilen", joined([PHRASE_HEAD, b"[A]", b"", b"+", b"? x", b""])
    for areas in (99, 100):
        yield f"bereiche-{areas}", joined([PHRASE_HEAD] + [b"[x]"] * areas)
    for phrases in (200, 201):
        yield f"formulierungen-{phrases}", joined([PHRASE_HEAD, b"[x]"] + [b"o"] * phrases)


def small_parameter_file(data):
    """Three rows of the long tables: what matters is damage, and short inputs make many executions."""
    head, sections = sections_of(data)
    return joined([head, *sections[0], *sections[1], *sections[2][:5], *sections[3][:4], sections[3][-1]])


def write(target, cases):
    folder = HERE / "corpus" / target
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.iterdir():
        old.unlink()
    for name, data in cases:
        (folder / name).write_bytes(data)


def main():
    book = (ROOT / "tests" / "data" / "klein.txt").read_bytes()
    ini = small_parameter_file((ROOT / "data" / "Tafelquell.ini").read_bytes())
    books = [*variants(book), *section_variants(book), *database_variants(book)]
    write("datenbank", books)
    write("fremdschueler", books)
    phrases = small_phrase_file((ROOT / "data" / "Formulierungen.txt").read_bytes())
    write("formulierungen", [*variants(phrases), *section_variants(phrases), *phrase_variants(phrases)])
    write("parameter", [*variants(ini), *section_variants(ini), *parameter_variants(ini)])


if __name__ == "__main__":
    main()
