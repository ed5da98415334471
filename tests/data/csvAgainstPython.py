#!/usr/bin/env python3
"""Compares how "quorvane table" and Python's csv module read the same files.

csvAgainstPython.py PROGRAM: makes files, the same in every run, from pieces that break readers. Where
Python reads a file, the description of the table has the same cells; where it refuses one, so does
the command.
"""

import csv
import io
import random
import re
import subprocess
import sys
import tempfile
from pathlib import Path

PIECES = [
    "a", "B c", "ř", "😀", "0", "-1,5", "1.5", " ", "  ", "x y ", ",", ",", ";", '"', '"', '""',
    '"a"', '","', '"\n"', '"\r\n"', '"\r"', '"a""b"', '"a,b"', "\n", "\r\n", "\r", "\n\n", "\t",
    "\\", "{", "}", "(", ")", "<b=1>", "(pt=x)", "'", "=", "|",
    '="0012"', ",,",
]
COUNT = 400


def nasty(random_numbers):
    """A text of pieces in any order."""
    return "".join(random_numbers.choices(PIECES, k=random_numbers.randint(1, 25)))


def regular(random_numbers):
    """Rows of one length, as a program writes them."""
    out = io.StringIO()
    writer = csv.writer(out, lineterminator=random_numbers.choice(["\n", "\r\n"]))
    columns = random_numbers.randint(1, 6)
    writer.writerow([f"column {i}" for i in range(columns)])
    for _ in range(random_numbers.randint(0, 20)):
        writer.writerow(
            ["".join(random_numbers.choices(PIECES, k=random_numbers.randint(0, 4))) + "x"
             for _ in range(columns)])
    return out.getvalue()


def unquoted(field):
    """A formula ="0012" as the text that a spreadsheet shows."""
    formula = re.fullmatch('="([^"]*)"', field)
    return formula[1] if formula else field


def by_python(text):
    """The rows that are not blank; None where they cannot be read or do not have the length of the
    first."""
    try:
        rows = [[unquoted(field) for field in row]
                for row in csv.reader(io.StringIO(text, newline=""), strict=True)
                if len(row) == 1 or any(row)]
    except csv.Error:
        return None
    if not rows or any(len(row) != len(rows[0]) for row in rows) or len(rows[0]) > 63:
        return None
    shown_columns = [i for i, name in enumerate(rows[0]) if name or any(row[i] for row in rows)]
    shown_columns = shown_columns or list(range(len(rows[0])))
    rows[0] = [name or f"Column {i + 1}" for i, name in enumerate(rows[0])]
    return [[row[i] for i in shown_columns] for row in rows]


def shown(text):
    """A text as a description has it: with one kind of line break."""
    return text.replace("\r\n", "\n").replace("\r", "\n")


def described(description):
    """The rows of a description."""
    rows = []
    lines = iter(description.split("\n"))
    for line in lines:
        if line == "(row":
            rows.append([])
        elif line == "(rtf={})":
            rows[-1].append("")
        elif line.startswith('(para-text="""') and not line.endswith('""")'):
            text = []
            while (line := next(lines)) != '""")':
                text.append(line)
            rows[-1].append("\n".join(text))
        elif line.startswith('(para-text="""'):
            rows[-1].append(line[len('(para-text="""'):-len('""")')])
        elif line.startswith("(para-text="):
            rows[-1].append(line[len("(para-text="):-1])
    return rows


def by_command(program, text, folder):
    """The rows, or None where the command refuses them."""
    path = folder / "table.csv"
    path.write_bytes(text.encode())
    run = subprocess.run(
        [program, "table", "--as-description", "--delimiter", ",", "--encoding", "utf-8", path],
        capture_output=True, check=False)
    if run.returncode == 1:
        return None
    if run.returncode != 0:
        sys.exit(f"status {run.returncode} for {text!r}: {run.stderr.decode()}")
    # Only LF ends a line: a cell can hold a CR.
    return described(run.stdout.decode())


def main():
    random_numbers = random.Random(1)
    read = refused = 0
    with tempfile.TemporaryDirectory() as name:
        for number in range(COUNT):
            text = (regular if number % 2 else nasty)(random_numbers)
            expected = by_python(text)
            if expected and any('"""' in cell for row in expected for cell in row):
                continue  # No value of several lines can hold it.
            rows = by_command(sys.argv[1], text, Path(name))
            if expected is None:
                refused += 1
            else:
                read += 1
                expected = [[shown(cell) for cell in row] for row in expected]
                rows = rows and [[shown(cell) for cell in row] for row in rows]
            if rows != expected:
                sys.exit(f"{text!r}\nis read as {rows!r}\ninstead of {expected!r}")
    if read < COUNT / 3 or refused < COUNT / 10:
        sys.exit(f"Only {read} files were read, and {refused} refused.")


main()
