#!/usr/bin/env python3
"""holdsFile.py PAGE FILE: fails unless the page shows the file as it is."""

import sys

with open(sys.argv[1], encoding="utf-8") as page, open(sys.argv[2], encoding="utf-8") as file:
    if "\n" + file.read() + "```\n" not in page.read():
        sys.exit(f"{sys.argv[1]} does not show {sys.argv[2]} as it is")
