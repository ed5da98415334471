"""Runs the examples of a page and compares what they print: runExamples.py PROJECT COMMAND PAGE

With --in FOLDER, the commands start in a copy of this folder of the project, in which the files
that --with names are too. With --only WORD, the blocks that begin with ```console WORD are run, and
without it, those that begin with ```console alone.

A block that begins with ```LANGUAGE FILE is written to that file. In a block that begins with
```console, lines that begin with "$ " are commands, and the lines after each are what it prints.
Commands find the examples of the project in the folder examples.
"""

import argparse
import difflib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

parser = argparse.ArgumentParser()
for argument in ("project", "command", "page"):
    parser.add_argument(argument, type=pathlib.Path)
parser.add_argument("--in", dest="start", default=".")
parser.add_argument("--with", dest="files", type=pathlib.Path, nargs="*", default=[])
parser.add_argument("--only", default="")
options = parser.parse_args()
project, command, page = (
    path.resolve() for path in (options.project, options.command, options.page))
MARK = "\x1e"


def blocks():
    text = page.read_text(encoding="utf-8")
    return re.findall(r"^```([^\n]+)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)


def commands_of(transcript):
    """The commands of a transcript, each with the lines after it."""
    parts = re.split(r"^\$ ", transcript, flags=re.MULTILINE)
    return [part.partition("\n")[::2] for part in parts if part]


def run(commands, folder, start):
    """What each command prints, all of them in one shell."""
    script = "status=0\n"
    for text, _ in commands:
        script += f"(exit $status)\n{text}\nstatus=$?\nprintf '{MARK}'\n"
    environment = dict(os.environ, LC_ALL="C.UTF-8", NO_COLOR="1",
                       PATH=f"{folder / 'build' / 'release'}:{os.environ['PATH']}")
    result = subprocess.run(["bash"], input=script.encode(), cwd=start, env=environment,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return result.stdout.decode().split(MARK)


def fill(folder):
    shutil.copytree(project / "examples", folder / "examples")
    (folder / "build" / "release").mkdir(parents=True)
    (folder / "build" / "release" / "quorvane").symlink_to(command)
    for file in options.files:
        shutil.copy(file, folder / options.start)


def main():
    failures = runs = 0
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        fill(folder)
        for words, content in blocks():
            language, _, file = words.partition(" ")
            if language == "console":
                commands = commands_of(content) if file == options.only else []
                start = folder / options.start
                for (text, expected), output in zip(commands, run(commands, folder, start)):
                    runs += 1
                    if output != expected:
                        failures += 1
                        print(f"{page.name}: $ {text}")
                        sys.stdout.writelines(f"  {line.rstrip()}\n" for line in difflib.ndiff(
                            expected.splitlines(), output.splitlines()))
            elif file and "/" not in file:
                (folder / file).write_text(content, "utf-8")
    if runs == 0:
        sys.exit(f"{page.name} has no examples to run.")
    if failures:
        sys.exit(f"{failures} of {runs} commands print something else than the page shows.")
    print(f"{page.name}: {runs} commands print what the page shows.")


main()
