"""Several threads."""

import signal
import threading
from concurrent.futures import ThreadPoolExecutor
from typing import List, Sequence

import pytest
import quorvane

ORDER = "; quorvane 2\n(doc\n(r\n(c\n(p\n(pt=Order {{number}})\np)\nc)\nr)\ndoc)\n"


def holds_its_order(rtf: bytes, number: int) -> bool:
    return f" Order {number}\\cell".encode() in rtf


def test_threads_render_side_by_side() -> None:
    def render(number: int) -> bool:
        return holds_its_order(quorvane.render(ORDER, data={"number": number}), number)

    with ThreadPoolExecutor(4) as pool:
        assert all(pool.map(render, range(400)))


def test_threads_share_a_job() -> None:
    job = quorvane.Job()

    def render(number: int) -> bool:
        return holds_its_order(job.render(ORDER, data={"number": number}), number)

    with ThreadPoolExecutor(4) as pool:
        assert all(pool.map(render, range(400)))


def test_threads_add_rows_to_one_document() -> None:
    doc = quorvane.Document()
    with ThreadPoolExecutor(4) as pool:
        list(pool.map(lambda number: doc.add_row([number]), range(1000)))
    assert sorted(int(row.cells[0].paragraphs[0].rtf) for row in doc.rows) == list(range(1000))


def test_a_signal_handler_uses_the_document_that_is_being_built() -> None:
    doc = quorvane.Document()
    seen: List[int] = []

    def look(*_: object) -> None:
        seen.append(len(doc.rows))

    before = signal.signal(signal.SIGALRM, look)
    signal.setitimer(signal.ITIMER_REAL, 0.0005, 0.0005)
    try:
        for number in range(20000):
            doc.add_row([number])
    finally:
        signal.setitimer(signal.ITIMER_REAL, 0)
        signal.signal(signal.SIGALRM, before)
    assert len(doc.rows) == 20000
    assert seen and seen == sorted(seen)


def test_other_threads_run_while_a_document_is_rendered() -> None:
    """A file object waits for another thread, which could not run if the GIL were held."""
    reached, went_on = threading.Event(), threading.Event()

    class Waiting:
        def write(self, data: bytes) -> int:
            reached.set()
            assert went_on.wait(60)
            return len(data)

    def other() -> None:
        assert reached.wait(60)
        assert quorvane.render(ORDER, data={"number": 1})
        went_on.set()

    thread = threading.Thread(target=other)
    thread.start()
    quorvane.render_to(Waiting(), ORDER, data={"number": 2})
    thread.join()


def test_a_thread_closes_what_another_one_uses() -> None:
    doc = quorvane.Document()
    errors = []

    def add_rows() -> None:
        try:
            while True:
                doc.add_row(["Vase"])
        except quorvane.Error as error:
            errors.append(str(error))

    thread = threading.Thread(target=add_rows)
    thread.start()
    doc.close()
    thread.join()
    assert errors == ["The document is closed."]


def test_a_job_is_closed_after_its_diagnostics_are_read() -> None:
    class Job(quorvane.Job):
        def _found(self) -> Sequence[quorvane.Diagnostic]:
            closing.start()
            closing.join(0.2)
            return super()._found()

    job = Job()
    closing = threading.Thread(target=job.close)
    assert [each.identifier for each in job.check("(doc\n(r\nr)\ndoc)\n")] == ["no-cell"]
    closing.join()
    with pytest.raises(quorvane.Error, match="^The job is closed.$"):
        job.check("(doc\ndoc)\n")
