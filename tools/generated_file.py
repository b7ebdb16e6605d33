"""What the scripts share that make a text file of the program: rows become Windows-1252 with CR LF."""
import sys
from collections.abc import Iterable
from pathlib import Path


def write_or_check(file: Path, rows: Iterable[list[str]]) -> int:
    """Writes the rows to standard output; with --check it tells whether the file holds just them. Gives the exit code."""
    raw = "".join("\t".join(row) + "\r\n" for row in rows).encode("cp1252")
    if sys.argv[1:] == ["--check"]:
        same = file.read_bytes() == raw
        print(f"{file.name}: {'as generated' if same else 'differs from what this script makes'}")
        return 0 if same else 1
    sys.stdout.buffer.write(raw)
    return 0
