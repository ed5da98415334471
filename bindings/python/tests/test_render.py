"""Rendering of descriptions and templates."""

import datetime
import decimal
import io
import os
import pathlib
from typing import Any, Dict, Mapping

import pytest
import quorvane

from bodies import body

VASE = "; quorvane 2\n(doc\n(r\n(c\n(p\n(pt=Vase {€})\np)\nc)\nr)\ndoc)\n"
VASE_BODY = (b"{\\intbl\\trowd\\trql\\trgaph70\\trleft0 \\cellx8504 \r\n\r\n\r\n"
             b"\\pard\\plain\\intbl Vase \\{{\\uc1\\u8364?}\\}\\cell\\row}"
             b"\\pard\\plain\\sl-20\\slmult0\\fs2\\par}")
ORIGINAL = "(doc\n(r\n(c\n(p\n(pt=Vase)\n(ps=small)\np)\nc)\nr)\ndoc)\n"
SMALL = ("{ name: normal; style-def: s; format: \\fs22 }\n"
         "{ name: small; style-def: s; format: \\fs14 }")
ORDER = ("; quorvane 2\n(doc\n(r\n(c\n(p\n"
         "(pt={{name}}: {{price|money}} on {{day|date:dd.MM.yyyy}})\np)\nc)\nr)\ndoc)\n")
PICTURE = "; quorvane 2\n(doc\n(r\n(c\n(p\n(picture=logo.png)\np)\nc)\nr)\ndoc)\n"
LOGO = pathlib.Path(__file__).parent / "logo.png"
LOGO_BYTES = LOGO.read_bytes()


def test_a_description_becomes_the_bytes_of_a_document() -> None:
    rendered = quorvane.render(VASE)
    assert rendered.startswith(b"{\\rtf1\\ansi")
    assert body(rendered) == VASE_BODY
    assert rendered.diagnostics == ()


def test_a_stylesheet_formats_the_text() -> None:
    assert quorvane.render(ORIGINAL, SMALL).count(b"\\s101\\fs14 Vase\\cell") == 1


def test_paths_are_read_and_pictures_come_from_beside(tmp_path: pathlib.Path) -> None:
    (tmp_path / "logo.png").write_bytes(LOGO_BYTES)
    description = tmp_path / "page.rtfspec"
    description.write_text(PICTURE)
    assert quorvane.render(description).count(b"\\pngblip") == 1


def test_a_description_without_path_reads_no_file() -> None:
    with pytest.raises(quorvane.Error) as raised:
        quorvane.render(PICTURE)
    assert raised.value.identifier == "wrong-picture"


def test_pictures_come_from_the_mapping_of_files() -> None:
    assert quorvane.render(PICTURE, files={"logo.png": LOGO_BYTES}).count(b"\\pngblip") == 1
    with pytest.raises(quorvane.Error):
        quorvane.render(PICTURE, files={"other.png": LOGO_BYTES})


def test_pictures_come_from_the_folders_of_a_job() -> None:
    named = PICTURE.replace("logo.png", str(LOGO))
    assert quorvane.Job(pictures=[LOGO.parent]).render(named).count(b"\\pngblip") == 1


def test_parts_of_templates_come_from_the_mapping_of_files() -> None:
    template = "; quorvane 2\n(doc\n{{>row}}\ndoc)\n"
    row = b"(r\n(c\n(p\n(pt={{name}})\np)\nc)\nr)\n"
    rendered = quorvane.render(template, data={"name": "Vase"}, files={"row.rtfpart": row})
    assert rendered.count(b" Vase\\cell") == 1


def test_what_a_mapping_of_files_raises_is_raised() -> None:
    class Broken(Dict[str, bytes]):
        def __getitem__(self, name: str) -> bytes:
            raise RuntimeError(f"no {name} today")

    with pytest.raises(RuntimeError, match="no logo.png today"):
        quorvane.render(PICTURE, files=Broken())
    with pytest.raises(RuntimeError, match="no logo.png today"):
        quorvane.check(PICTURE, files=Broken())


def test_bytes_of_windows_1252_are_read() -> None:
    windows = ORIGINAL.replace("Vase", "Glück").encode("windows-1252")
    assert quorvane.render(windows, SMALL).count(b"Gl\xfcck") == 1
    assert quorvane.render(windows, SMALL, encoding="windows-1252").count(b"Gl\xfcck") == 1
    with pytest.raises(quorvane.Error) as raised:
        quorvane.render(windows, SMALL, encoding="utf-8")
    assert raised.value.identifier == "not-utf-8"


@pytest.mark.parametrize("data", [
    {"name": "{Vase}", "price": decimal.Decimal("1234.50"), "day": datetime.date(2027, 2, 1)},
    '{"name": "{Vase}", "price": 1234.50, "day": "2027-02-01"}',
    b'{"name": "{Vase}", "price": "1234.5", "day": "2027-02-01"}',
])
def test_a_template_is_filled_with_data(data: Any) -> None:
    rendered = quorvane.render(ORDER, data=data, locale="de-DE")
    assert rendered.count(b" \\{Vase\\}: 1.234,50 on 01.02.2027\\cell") == 1


def test_a_template_is_filled_with_the_data_of_a_file(tmp_path: pathlib.Path) -> None:
    data = tmp_path / "order.json"
    data.write_text('{"name": "Vase"')
    with pytest.raises(quorvane.Error) as raised:
        quorvane.render(ORDER, data=data)
    assert (raised.value.file, raised.value.line) == (str(data), 1)
    assert raised.value.identifier == "wrong-json"


def test_a_missing_name_is_an_error_with_its_place() -> None:
    with pytest.raises(quorvane.Error) as raised:
        quorvane.render(ORDER, data={"name": "Vase", "price": 1})
    error = raised.value
    assert (error.identifier, error.line, error.column) == ("missing-name", 6, 34)
    assert str(error) == "description:6:34: day is not in the data."


@pytest.mark.parametrize("data", [{1, 2}, {"x": object()}])
def test_data_that_json_has_no_form_for_is_a_type_error(data: Any) -> None:
    with pytest.raises(TypeError, match="cannot be data"):
        quorvane.render(ORDER, data=data)


def test_data_that_is_not_a_number_is_a_value_error() -> None:
    with pytest.raises(ValueError):
        quorvane.render(ORDER, data={"price": float("nan")})


def test_empty_data_is_an_error() -> None:
    with pytest.raises(quorvane.Error, match="The data is empty"):
        quorvane.render(ORDER, data="")


def test_a_job_renders_with_and_without_data() -> None:
    job = quorvane.Job()
    one = job.render(ORDER.replace("{{price|money}}", "{{name}}").replace("{{day", "{{name")
                     .replace("|date:dd.MM.yyyy", ""), data={"name": "A"})
    assert one.count(b" A: A on A\\cell") == 1
    assert body(job.render(VASE)) == VASE_BODY


def test_a_job_goes_on_after_an_error() -> None:
    with quorvane.Job(SMALL) as job:
        with pytest.raises(quorvane.Error):
            job.render("(doc\n")
        assert job.render(ORIGINAL).count(b"\\s101\\fs14 Vase") == 1


def test_a_document_is_written_to_a_file_whole(tmp_path: pathlib.Path) -> None:
    target = tmp_path / "Übersicht.rtf"
    assert quorvane.render_to(target, VASE) == ()
    assert target.read_bytes() == quorvane.render(VASE)
    with pytest.raises(quorvane.Error):
        quorvane.render_to(target, "(doc\n")
    assert target.read_bytes() == quorvane.render(VASE)
    assert os.listdir(tmp_path) == ["Übersicht.rtf"]


def test_a_document_is_written_to_a_file_object() -> None:
    file = io.BytesIO()
    quorvane.render_to(file, VASE)
    assert file.getvalue() == quorvane.render(VASE)
    again = io.BytesIO()
    quorvane.render(VASE).write_to(again)
    assert again.getvalue() == file.getvalue()


def test_a_file_object_that_takes_little_at_a_time_gets_everything() -> None:
    class Slow:
        def __init__(self) -> None:
            self.taken = b""

        def write(self, data: bytes) -> int:
            self.taken += data[:1000]
            return min(1000, len(data))

    slow = Slow()
    quorvane.render_to(slow, VASE)
    assert slow.taken == quorvane.render(VASE)


def test_a_file_object_that_takes_nothing_is_an_error() -> None:
    class Full:
        def write(self, data: bytes) -> int:
            return 0

    with pytest.raises(BlockingIOError):
        quorvane.render_to(Full(), VASE)


def test_what_a_file_object_raises_is_raised() -> None:
    class Broken:
        def write(self, data: bytes) -> int:
            raise KeyboardInterrupt

    with pytest.raises(KeyboardInterrupt):
        quorvane.render_to(Broken(), VASE)


def test_a_file_object_cannot_use_the_job_that_writes_to_it() -> None:
    job = quorvane.Job()

    class Again:
        def write(self, data: bytes) -> int:
            job.render(VASE)
            return len(data)

    with pytest.raises(quorvane.Error, match="cannot be used while it calls"):
        job.render_to(Again(), VASE)
    assert body(job.render(VASE)) == VASE_BODY


def test_with_check_warnings_are_in_the_diagnostics() -> None:
    inline = ORIGINAL.replace("Vase", "<b>Vase</b>")
    assert quorvane.render(inline, SMALL).diagnostics == ()
    rendered = quorvane.render(inline, SMALL, check=True)
    assert [each.identifier for each in rendered.diagnostics] == ["html-tag"]
    assert not rendered.diagnostics[0].is_error


@pytest.mark.parametrize("arguments", [{"description": 7}, {"description": None},
                                       {"description": VASE, "stylesheet": 7}])
def test_what_is_not_a_text_is_a_type_error(arguments: Mapping[str, Any]) -> None:
    with pytest.raises(TypeError, match="A text is a str, bytes or a pathlib.Path"):
        quorvane.render(**arguments)


def test_a_destination_that_is_neither_path_nor_file_is_a_type_error() -> None:
    with pytest.raises(TypeError, match="goes to a path or to a file object, not to int"):
        quorvane.render_to(7, VASE)  # type: ignore[arg-type]


def test_an_unknown_encoding_is_a_value_error() -> None:
    with pytest.raises(ValueError, match="encoding is one of 'utf-8', 'windows-1252', 'auto'"):
        quorvane.render(VASE, encoding="latin-2")


def test_a_closed_job_is_an_error() -> None:
    job = quorvane.Job()
    job.close()
    job.close()
    with pytest.raises(quorvane.Error, match="The job is closed."):
        job.render(VASE)


def test_jobs_and_results_show_what_they_are() -> None:
    job = quorvane.Job(path="orders/page.rtfspec")
    assert repr(job) == "<quorvane.Job: path 'orders/page.rtfspec'>"
    rendered = job.render(VASE)
    assert repr(rendered) == f"<quorvane.Rendered: {len(rendered)} bytes, 0 diagnostics>"
    job.close()
    assert repr(job) == "<quorvane.Job: closed>"
