"""A yardstick: csv_rows.py CSV PATTERN OUT writes a table of a file with commas as "quorvane table"
does. The pattern is a document of two rows that has a "@" in each cell.
"""

import csv
import sys

ROW_BEGIN = "\r\n{\\intbl"
ROW_END = "\\row}"
ESCAPES = str.maketrans({"\\": "\\\\", "{": "\\{", "}": "\\}", "\n": "\\line "})


def row_format(row):
    """A row with places for its fields."""
    return row.replace("%", "%%").replace("@", "%s")


def main():
    csv_path, pattern_path, out_path = sys.argv[1:]
    with open(pattern_path, encoding="cp1252", newline="") as file:
        document = file.read()
    second = document.rindex(ROW_BEGIN)
    first = document.rindex(ROW_BEGIN, 0, second)
    end = document.rindex(ROW_END) + len(ROW_END)
    formats = row_format(document[first:second]), row_format(document[second:end])
    with open(csv_path, encoding="utf-8", newline="") as source, \
            open(out_path, "w", encoding="cp1252", newline="") as out:
        out.write(document[:first])
        rows = csv.reader(source)
        next(rows)
        for number, row in enumerate(rows):
            out.write(formats[number % 2] % tuple(field.translate(ESCAPES) for field in row))
        out.write(document[end:])


main()
