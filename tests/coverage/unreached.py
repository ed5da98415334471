#!/usr/bin/env python3
"""unreached.py COVERAGE REASONS: compares the lines that no test reaches with those for which there
is a reason. Fails when one has none, and when a reason is left of a line that is reached or gone.

COVERAGE is gcovr's report in JSON, REASONS a text: paragraphs of a reason after "#" and of lines,
each as "file: line"; several unreached lines that follow each other stand as one. A line is known by
its text, since its number changes with whatever is written above it.
"""

import collections
import json
import pathlib
import sys


def unreached(report):
    """(file, text) -> numbers of the first lines."""
    found = collections.defaultdict(list)
    for file in report["files"]:
        source = pathlib.Path(file["file"]).read_text(encoding="utf-8").splitlines()
        run = []
        lines = sorted(file["lines"], key=lambda line: line["line_number"])
        for line in [*lines, None]:
            if line is not None and line.get("gcovr/noncode"):
                continue
            if line is not None and line["count"] == 0:
                run.append(line["line_number"])
            elif run:
                text = " ".join(source[number - 1].strip() for number in run)
                found[file["file"], text].append(run[0])
                run = []
    return found


def reasons(text):
    """The (file, text) that have a reason, in their order."""
    for number, paragraph in enumerate(text.split("\n\n"), 1):
        lines = paragraph.strip().splitlines()
        if not lines or not lines[0].startswith("# "):
            sys.exit(f"paragraph {number} begins with no reason")
        for line in lines:
            if not line.startswith("#"):
                file, _, code = line.partition(": ")
                yield file, code


def main():
    found = unreached(json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")))
    known = list(reasons(pathlib.Path(sys.argv[2]).read_text(encoding="utf-8")))
    failed = False
    for (file, text), numbers in sorted(found.items()):
        # As often as it stands there: each needs a reason of its own.
        for number in numbers[known.count((file, text)):]:
            print(f"{file}:{number}: no test reaches: {text}", file=sys.stderr)
            failed = True
    for file, text in sorted(set(known)):
        if known.count((file, text)) > len(found.get((file, text), [])):
            print(f"{file}: is reached or gone: {text}", file=sys.stderr)
            failed = True
    print(f"{sum(map(len, found.values()))} places are reached by no test")
    sys.exit(failed)


main()
