"""Memory over many documents."""

import pathlib
from typing import Callable

import pytest
import quorvane

ORDER = "; quorvane 2\n(doc\n(r\n(c\n(p\n(pt={{number}})\np)\nc)\nr)\ndoc)\n"


def resident_kilobytes() -> int:
    status = pathlib.Path("/proc/self/status").read_text()
    return int(status.split("VmRSS:")[1].split()[0])


JOB = quorvane.Job()


def render_with_a_job() -> None:
    JOB.render(ORDER, data={"number": 1})


def fail_to_render() -> None:
    with pytest.raises(quorvane.Error):
        JOB.render(ORDER, data={})


def build_a_document() -> None:
    doc = quorvane.Document()
    doc.add_row(["Vase", "12.50"]).set(keep=True)
    assert doc.rtf


def write_a_table() -> None:
    with quorvane.TableWriter(None, ["Article"]) as writer:
        writer.add_row(["Vase"])


def write_a_table_of_data() -> None:
    quorvane.table_of_file(b"Article,Price\nVase,12.50\n", sort="Price", total="Price")


def fail_to_write_a_table_of_data() -> None:
    with pytest.raises(quorvane.Error):
        quorvane.table_of_file(b"Article,Price\nVase\n")


@pytest.mark.parametrize("make, count", [
    (render_with_a_job, 60000), (fail_to_render, 10000), (build_a_document, 20000),
    (write_a_table, 10000), (write_a_table_of_data, 10000), (fail_to_write_a_table_of_data, 20000)])
def test_memory_does_not_grow(make: Callable[[], None], count: int) -> None:
    """A leak of 100 bytes for each document is a megabyte or more here."""
    for _ in range(1000):
        make()
    before = resident_kilobytes()
    for _ in range(count):
        make()
    assert resident_kilobytes() - before < 600
