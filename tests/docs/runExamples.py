"""Runs the examples of a page and compares what they print: runExamples.py PROJECT COMMAND PAGE

A block that begins with ```LANGUAGE FILE is written to that file. In a block that begins with
```console, lines that begin with "$ " are commands, and the lines after each are what it prints.
Commands find the examples of the project in the folder examples.
"""

import difflib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

project, command, page = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
MARK = "\x1e"


def blocks():
    text = page.read_text(encoding="utf-8")
    return re.findall(r"^```([^\n]+)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)


def commands_of(transcript):
    """The commands of a transcript, each with the lines after it."""
    parts = re.split(r"^\$ ", transcript, flags=re.MULTILINE)
    return [part.partition("\n")[::2] for part in parts if part]


def run(commands, folder):
    """What each command prints, all of them in one shell."""
    script = "status=0\n"
    for text, _ in commands:
        script += f"(exit $status)\n{text}\nstatus=$?\nprintf '{MARK}'\n"
    environment = dict(os.environ, LC_ALL="C.UTF-8", NO_COLOR="1",
                       PATH=f"{folder / 'build' / 'release'}:{os.environ['PATH']}")
    result = subprocess.run(["bash"], input=script.encode(), cwd=folder, env=environment,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return result.stdout.decode().split(MARK)


def fill(folder):
    shutil.copytree(project / "examples", folder / "examples")
    (folder / "build" / "release").mkdir(parents=True)
    (folder / "build" / "release" / "quorvane").symlink_to(command)


def main():
    failures = runs = 0
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        fill(folder)
        for words, content in blocks():
            language, _, file = words.partition(" ")
            if language == "console":
                commands = commands_of(content)
                for (text, expected), output in zip(commands, run(commands, folder)):
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
