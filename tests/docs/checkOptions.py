"""Compares the options in docs/command.md with the help of the command: checkOptions.py COMMAND PAGE"""

import pathlib
import re
import subprocess
import sys

command, page = sys.argv[1], pathlib.Path(sys.argv[2]).read_text(encoding="utf-8")
SECTIONS = {"render": "Options", "check": "Checking", "format": "Formatting",
            "table": "Tables"}
EVERYWHERE = {"-h", "--help", "-V", "--version"}
OPTION = re.compile(r"(?<![\w-])--?[a-zA-Z][\w-]*")


def in_page(section):
    text = re.search(rf"^## {section}\n(.*?)(?=^## |\Z)", page, re.MULTILINE | re.DOTALL)[1]
    rows = re.findall(r"^\| (`-.*?) \|", text, re.MULTILINE)
    return {name for row in rows for name in OPTION.findall(row)}


def in_help(subcommand):
    text = subprocess.run([command, subcommand, "--help"], capture_output=True, text=True,
                          check=True).stdout
    rows = re.findall(r"^  (-\S*)", text.split("\nOptions:\n")[1], re.MULTILINE)
    return {name for row in rows for name in OPTION.findall(row)}


failed = False
for subcommand, section in SECTIONS.items():
    difference = (in_page(section) ^ in_help(subcommand)) - EVERYWHERE
    if difference:
        failed = True
        print(f"{subcommand}: only the page or only the help has {', '.join(sorted(difference))}")
sys.exit(failed)
