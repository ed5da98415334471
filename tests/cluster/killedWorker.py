"""Renders a data set on two worker processes, one of which is killed in the middle of its work, and
compares the documents with those of the command: killedWorker.py COMMAND

Also converts a few documents to PDF, and renders a data set with wrong records.
"""

import dataclasses
import functools
import json
import os
import pathlib
import signal
import subprocess
import sys
import tempfile

import distributed

import statements

PARTITIONS = 5
RECORDS = 120
RANGE = 25
TEMPLATES = statements.TEMPLATES


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
    write_data(data, 1, 4)
    file = data / "part-0.jsonl"
    lines = file.read_text("utf-8").splitlines()
    lines[1] = "{"
    lines[2] = lines[0]
    lines[3] = lines[3].replace("K-0-0003", "../K")
    file.write_text("\n".join(lines) + "\n", "utf-8")
    done = statements.write_statements(client, data, output, size=2)
    assert done.names == ["K-0-0000"] == [each.stem for each in output.iterdir()]
    where = [failure.replace(f"{file}: ", "").split(": ")[:2] for failure in done.failures]
    assert [each[0] for each in where] == ["record 2", "record 4", "K-0-0000"], where
    assert where[2][1] == "2 records have this number"


def documents_become_pdf(client, folder):
    data, output = folder / "few", folder / "pdf"
    data.mkdir()
    write_data(data, 1, 4)
    done = statements.write_statements(client, data, output, size=2, pdf=True)
    assert done.failures == [], done.failures
    assert sorted(contents(output)) == sorted(
        name + end for name in done.names for end in (".pdf", ".rtf")), contents(output).keys()
    for name in done.names:
        pdf = (output / f"{name}.pdf").read_bytes()
        assert pdf.startswith(b"%PDF-") and pdf.rstrip().endswith(b"%%EOF")


def main():
    command = pathlib.Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as name, distributed.LocalCluster(
            n_workers=2, threads_per_worker=1, processes=True, dashboard_address=None,
            local_directory=name) as cluster, distributed.Client(cluster) as client:
        folder = pathlib.Path(name) / "test"
        folder.mkdir()
        nothing_is_lost_or_doubled(client, command, folder)
        wrong_records_are_reported(client, folder)
        documents_become_pdf(client, folder)
    print(f"{PARTITIONS * RECORDS} documents survived the death of a worker.")


if __name__ == "__main__":
    main()
