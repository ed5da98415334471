#!/usr/bin/python3
"""Makes a statement of account of each record of a data set, on many machines.

    statements.py [--pdf] [--scheduler ADDRESS] [--range RECORDS] DATA OUTPUT

DATA is a folder of JSON Lines files, its partitions. Each record becomes OUTPUT/NUMBER.rtf, named
after the number of the customer, with --pdf also NUMBER.pdf, which takes LibreOffice. All machines
have both folders under the same paths. Without the address of a Dask scheduler, two processes of
this machine do the work.
"""

import argparse
import collections
import dataclasses
import json
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile

import distributed

import quorvane

TEMPLATES = pathlib.Path(__file__).resolve().parent.parent / "templates"
# LibreOffice takes about 250 arguments, and says nothing about the documents after them.
CONVERTED_AT_A_START = 200
# It needs some 0.1 seconds for a document. Seconds after which it will not come to an end.
LONGEST_START = 600
# Two processes of this machine, and any free port for Dask's own pages.
LOCAL_CLUSTER = {"n_workers": 2, "threads_per_worker": 1, "dashboard_address": "localhost:0"}


@dataclasses.dataclass(frozen=True)
class Range:
    """Records of a partition that follow one another: the work of one task."""

    file: str
    offset: int
    first: int
    records: int


@dataclasses.dataclass(frozen=True)
class Done:
    """What became of a range: names of documents, and messages of the records that failed."""

    names: list
    failures: list


@dataclasses.dataclass(frozen=True)
class Template:
    """The texts that each task needs. They travel with it, so that no worker reads them."""

    description: str
    stylesheet: str


def load_template(folder=TEMPLATES):
    return Template((folder / "statement.rtfspec").read_text("utf-8"),
                    (folder / "statement.rtfss").read_text("utf-8"))


def is_record(line):
    """Blank lines are no records, as for `quorvane render --each`."""
    return bool(line.strip(b" \t\r\n"))


def ranges(folder, size):
    """The ranges of all partitions. A task goes straight to its first byte."""
    for file in sorted(pathlib.Path(folder).resolve().glob("*.jsonl")):
        offset = start = records = first = 0
        with file.open("rb") as lines:
            for line in lines:
                offset += len(line)
                records += is_record(line)
                if records == size:
                    yield Range(str(file), start, first + 1, records)
                    first, start, records = first + records, offset, 0
        if records:
            yield Range(str(file), start, first + 1, records)


def name_of(record):
    """The name of a document. A number that is not a plain one leads nowhere else."""
    number = record["customer"]["number"]
    if type(number) not in (str, int) or not re.fullmatch(r"[\w-]{1,60}", str(number)):
        raise ValueError(f"{number!r} cannot be the name of a file")
    return str(number)


def render(part, template, output):
    """Renders the records of a range. It can be done again: each document appears whole, in the
    place of the one with the same bytes."""
    done = Done([], [])
    with quorvane.Job(template.stylesheet) as job, open(part.file, "rb") as lines:
        lines.seek(part.offset)
        for number, line in zip(range(part.first, part.first + part.records),
                                filter(is_record, lines)):
            try:
                name = name_of(json.loads(line))
                job.render_to(os.path.join(output, name + ".rtf"), template.description, data=line)
                done.names.append(name)
            except quorvane.FileError:
                raise
            except (quorvane.Error, ValueError, KeyError, TypeError,
                    RecursionError) as error:
                done.failures.append(f"{part.file}: record {number}: {error}")
    return done


def convert(done, output):
    """Converts the documents of a range to PDF."""
    names = list(dict.fromkeys(done.names))
    with tempfile.TemporaryDirectory() as profile:
        for begin in range(0, len(names), CONVERTED_AT_A_START):
            convert_documents(names[begin:begin + CONVERTED_AT_A_START], output, profile)
    return done


def convert_documents(names, output, profile):
    """Converts documents with one start of LibreOffice. The PDF files appear whole."""
    with tempfile.TemporaryDirectory(dir=output, prefix=".pdf-") as folder:
        try:
            status = status_of(
                ["soffice", "--headless", f"-env:UserInstallation={pathlib.Path(profile).as_uri()}",
                 "--convert-to", "pdf", "--outdir", folder,
                 *(os.path.join(output, name + ".rtf") for name in names)])
        except subprocess.TimeoutExpired:
            raise OSError(f"LibreOffice did not convert {len(names)} documents beginning with "
                          f"{names[0]}.rtf within {LONGEST_START} seconds") from None
        made = len(os.listdir(folder))
        if status != 0 or made < len(names):
            raise OSError(f"LibreOffice converted {made} of {len(names)} documents beginning with "
                          f"{names[0]}.rtf, and ended with status {status}")
        for name in names:
            os.replace(os.path.join(folder, name + ".pdf"), os.path.join(output, name + ".pdf"))


def status_of(command):
    """Runs a program to its end, or ends it, with the programs that it started."""
    with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          start_new_session=True) as process:
        try:
            return process.wait(LONGEST_START)
        finally:
            if process.returncode is None:
                os.killpg(process.pid, signal.SIGKILL)


def failed_range(part, error):
    last = part.first + part.records - 1
    return (f"A range failed: {part.file}, records {part.first} to {last}: "
            f"{type(error).__name__}: {error}")


def write_statements(client, folder, output, *, size=500, pdf=False, task=render):
    """Writes the documents of a data set; returns what became of all of them."""
    output = str(pathlib.Path(output).resolve())
    os.makedirs(output, exist_ok=True)
    # Dask gives a range whose worker died to another one. The retries are for errors, such as those
    # of a network folder.
    parts = list(ranges(folder, size))
    futures = client.map(task, parts, template=load_template(), output=output, retries=2,
                         pure=False)
    if pdf:
        futures = client.map(convert, futures, output=output, retries=2, pure=False)
    names = collections.Counter()
    failures = []
    part_of = {future.key: part for future, part in zip(futures, parts)}
    for future in distributed.as_completed(futures):
        try:
            done = future.result()
        except Exception as error:  # Whatever it is, the other ranges go on.
            failures.append(failed_range(part_of[future.key], error))
        else:
            names.update(done.names)
            failures += done.failures
    failures += [f"{name}: {count} records have this number"
                 for name, count in names.items() if count > 1]
    return Done(sorted(names), sorted(failures))


def main():
    parser = argparse.ArgumentParser(description="Makes a statement of each record of a data set.")
    parser.add_argument("data", help="folder of JSON Lines files")
    parser.add_argument("output", help="folder of the documents")
    parser.add_argument("--pdf", action="store_true", help="also convert the documents to PDF")
    parser.add_argument("--scheduler", help="address of a Dask scheduler")
    parser.add_argument("--range", type=int, default=500, help="records of a task")
    arguments = parser.parse_args()
    with distributed.Client(arguments.scheduler,
                            **({} if arguments.scheduler else LOCAL_CLUSTER)) as client:
        done = write_statements(client, arguments.data, arguments.output, size=arguments.range,
                                pdf=arguments.pdf)
    for failure in done.failures:
        print(failure, file=sys.stderr)
    print(f"{len(done.names)} documents, {len(done.failures)} failures")
    return 1 if done.failures else 0


if __name__ == "__main__":
    sys.exit(main())
