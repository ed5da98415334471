"""Renders a data set on two worker processes, one of which is killed in the middle of its work, and
compares the documents with those of the command: killedWorker.py COMMAND

Also converts documents to PDF, and renders data sets with wrong records and ranges that fail.
"""

import dataclasses
import functools
import json
import logging
import os
import pathlib
import shlex
import signal
import subprocess
import sys
import tempfile
import time
import unittest.mock

import distributed

import statements

PARTITIONS = 5
RECORDS = 120
RANGE = 25
TEMPLATES = statements.TEMPLATES

# Takes as many documents as LibreOffice, and converts none beside K-0-0002.rtf.
STAND_IN = """#!/usr/bin/python3
import pathlib, sys
output, documents = pathlib.Path(sys.argv[6]), [pathlib.Path(each) for each in sys.argv[7:254]]
with open(pathlib.Path(__file__).parent / "starts", "a") as starts:
    print(documents[0].stem, len(documents), file=starts)
if documents[0].stem != "K-0-0002":
    for document in documents:
        (output / f"{document.stem}.pdf").write_bytes(document.read_bytes())
"""


def dies_once(part, template, output, marker):
    """The first time, renders half of a range and kills its own worker."""
    if part.first == 1 + 2 * RANGE and part.file.endswith("part-2.jsonl"):
        try:
            os.close(os.open(marker, os.O_CREAT | os.O_EXCL))
        except FileExistsError:
            pass
        else:
            statements.render(dataclasses.replace(part, records=part.records // 2), template, output)
            os.kill(os.getpid(), signal.SIGKILL)
    return statements.render(part, template, output)


def noted(part, template, output, log):
    """Renders a range after noting its first record."""
    with open(log, "a", encoding="utf-8") as file:
        print(part.first, file=file)
    return statements.render(part, template, output)


def write_data(folder, partitions, records):
    sample = json.loads((TEMPLATES / "statements.jsonl").read_text("utf-8").splitlines()[0])
    for partition in range(partitions):
        with open(folder / f"part-{partition}.jsonl", "w", encoding="utf-8") as file:
            for record in range(records):
                sample["customer"]["number"] = f"K-{partition}-{record:04}"
                sample["closing"] = partition * 1000 + record
                file.write(json.dumps(sample, ensure_ascii=False) + "\n")


def write_expected(command, data, output):
    for file in sorted(data.glob("*.jsonl")):
        subprocess.run(
            [command, "render", "--data", file, "--each", "--mkdir",
             "-o", f"{output}/{{{{customer.number}}}}.rtf", "-s", TEMPLATES / "statement.rtfss",
             TEMPLATES / "statement.rtfspec"], check=True, stderr=subprocess.DEVNULL)


def contents(folder):
    return {file.name: file.read_bytes() for file in folder.iterdir()}


def nothing_is_lost_or_doubled(client, command, folder):
    data, output, expected = folder / "data", folder / "output", folder / "expected"
    data.mkdir()
    write_data(data, PARTITIONS, RECORDS)
    marker = folder / "killed"
    before = set(client.run(os.getpid).values())
    done = statements.write_statements(client, data, output, size=RANGE,
                                       task=functools.partial(dies_once, marker=str(marker)))
    client.wait_for_workers(2)
    after = set(client.run(os.getpid).values())
    assert marker.exists() and len(before - after) == 1, "one worker was killed"
    assert done.failures == [], done.failures[:3]
    write_expected(command, data, expected)
    assert len(done.names) == PARTITIONS * RECORDS
    written, wanted = contents(output), contents(expected)
    assert len(wanted) == PARTITIONS * RECORDS
    assert sorted(written) == sorted(wanted) == [f"{name}.rtf" for name in done.names]
    assert written == wanted, "a document differs from that of the command"


def wrong_records_are_reported(client, folder):
    data, output = folder / "wrong", folder / "wrong-output"
    data.mkdir()
    write_data(data, 1, 6)
    file = data / "part-0.jsonl"
    lines = file.read_text("utf-8").splitlines()
    lines[1] = "{"
    lines[2] = lines[0]
    lines[3] = lines[3].replace("K-0-0003", "../K")
    lines[4] = lines[4].replace("K-0-0004", "K" * 300)
    lines[5] = "[" * 100000
    file.write_text("\n".join(lines) + "\n", "utf-8")
    done = statements.write_statements(client, data, output, size=2)
    assert done.names == ["K-0-0000"] == [each.stem for each in output.iterdir()]
    where = [failure.replace(f"{file}: ", "").split(": ")[:2] for failure in done.failures]
    assert [each[0] for each in where] == [
        "record 2", "record 4", "record 5", "record 6", "K-0-0000"], where
    assert where[4][1] == "2 records have this number"


def blank_lines_are_no_records(client, command, folder):
    data, output, expected = folder / "blank", folder / "blank-output", folder / "blank-expected"
    data.mkdir()
    write_data(data, 1, 4)
    file = data / "part-0.jsonl"
    lines = file.read_text("utf-8").splitlines()
    lines[1] = lines[1].replace('"K-0-0001"', "1001")
    file.write_text("\n" + "\n \t\r\n\n".join(lines) + "\n\n", "utf-8")
    parts = [(part.first, part.records) for part in statements.ranges(data, 2)]
    assert parts == [(1, 2), (3, 2)], parts
    done = statements.write_statements(client, data, output, size=2)
    assert done == statements.Done(["1001", "K-0-0000", "K-0-0002", "K-0-0003"], []), done
    write_expected(command, data, expected)
    assert contents(output) == contents(expected)


def documents_become_pdf(client, folder):
    assert " " in str(folder), "the profiles of LibreOffice are in a path with blanks"
    data, output = folder / "few", folder / "pdf"
    data.mkdir()
    write_data(data, 1, 4)
    client.run(setattr, tempfile, "tempdir", str(folder))
    file = data / "part-0.jsonl"
    file.write_text(file.read_text("utf-8").replace("K-0-0001", "K-0-0000"), "utf-8")
    done = statements.write_statements(client, data, output, size=2, pdf=True)
    assert done.failures == ["K-0-0000: 2 records have this number"], done.failures
    assert done.names == ["K-0-0000", "K-0-0002", "K-0-0003"], done.names
    assert sorted(contents(output)) == sorted(
        name + end for name in done.names for end in (".pdf", ".rtf")), contents(output).keys()
    for name in done.names:
        pdf = (output / f"{name}.pdf").read_bytes()
        assert pdf.startswith(b"%PDF-") and pdf.rstrip().endswith(b"%%EOF")


def look_first_in(folder):
    os.environ["PATH"] = f"{folder}:{os.environ['PATH']}"


def put_stand_in(client, folder):
    """Has the workers find another soffice; returns the file where it notes its starts."""
    folder.mkdir()
    program = folder / "soffice"
    program.write_text(STAND_IN, "utf-8")
    program.chmod(0o755)
    client.run(look_first_in, str(folder))
    return folder / "starts"


def long_ranges_become_pdf(client, folder, starts):
    data, output = folder / "many", folder / "many-output"
    data.mkdir()
    write_data(data, 1, 450)
    starts.write_text("", "utf-8")
    done = statements.write_statements(client, data, output, size=450, pdf=True)
    assert done.failures == [] and len(done.names) == 450, done.failures
    assert len(list(output.glob("*.pdf"))) == 450
    assert starts.read_text("utf-8") == "K-0-0000 200\nK-0-0200 200\nK-0-0400 50\n"


def failing_ranges_cost_no_other(client, folder, starts):
    data, output, log = folder / "failing", folder / "failing-output", folder / "log"
    data.mkdir()
    write_data(data, 1, 6)
    starts.write_text("", "utf-8")
    (output / "K-0-0004.rtf").mkdir(parents=True)
    client.run(logging.getLogger("distributed.worker").setLevel, logging.ERROR)
    done = statements.write_statements(client, data, output, size=2, pdf=True,
                                       task=functools.partial(noted, log=str(log)))
    assert done.names == ["K-0-0000", "K-0-0001"], done.names
    begin = f"A range failed: {data / 'part-0.jsonl'}, records "
    converting, rendering = done.failures
    assert converting == (
        f"{begin}3 to 4: OSError: LibreOffice converted 0 of 2 documents beginning with "
        "K-0-0002.rtf, and ended with status 0"), converting
    assert rendering.startswith(f"{begin}5 to 6: FileError: "), rendering
    assert str(output / "K-0-0004.rtf") in rendering, rendering
    assert sorted(log.read_text("utf-8").split()) == ["1", "3", "5", "5", "5"], "three attempts"
    assert sorted(starts.read_text("utf-8").splitlines()) == [
        "K-0-0000 2", "K-0-0002 2", "K-0-0002 2", "K-0-0002 2"]
    assert sorted(file.name for file in output.glob("*.pdf")) == ["K-0-0000.pdf", "K-0-0001.pdf"]


def a_start_that_does_not_end_is_ended(folder):
    folder.mkdir()
    program = folder / "soffice"
    program.write_text(f"#!/bin/sh\nsleep 60 &\necho $! >{shlex.quote(str(folder))}/child\nwait\n",
                       "utf-8")
    program.chmod(0o755)
    with unittest.mock.patch.dict(os.environ, PATH=f"{folder}:{os.environ['PATH']}"), \
            unittest.mock.patch.object(statements, "LONGEST_START", 1):
        try:
            statements.convert_documents(["K-0-0001", "K-0-0002"], str(folder), str(folder))
        except OSError as error:
            assert str(error) == ("LibreOffice did not convert 2 documents beginning with "
                                  "K-0-0001.rtf within 1 seconds"), error
        else:
            raise AssertionError("It did not fail")
    child = pathlib.Path("/proc") / (folder / "child").read_text("utf-8").strip() / "stat"
    for _ in range(100):
        # A process that has ended is there until its parent takes note of it.
        if not child.exists() or child.read_text("utf-8").rpartition(")")[2].split()[0] in "ZX":
            return
        time.sleep(0.1)
    raise AssertionError("What LibreOffice started goes on")


def main():
    command = pathlib.Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory(prefix="with blanks ") as name, \
            distributed.LocalCluster(**statements.LOCAL_CLUSTER, processes=True,
                                     local_directory=name) as cluster, \
            distributed.Client(cluster) as client:
        folder = pathlib.Path(name) / "test"
        folder.mkdir()
        a_start_that_does_not_end_is_ended(folder / "endless")
        nothing_is_lost_or_doubled(client, command, folder)
        wrong_records_are_reported(client, folder)
        blank_lines_are_no_records(client, command, folder)
        documents_become_pdf(client, folder)
        starts = put_stand_in(client, folder / "bin")
        long_ranges_become_pdf(client, folder, starts)
        failing_ranges_cost_no_other(client, folder, starts)
    print(f"{PARTITIONS * RECORDS} documents survived the death of a worker.")


if __name__ == "__main__":
    main()
