"""Checking and formatting."""

import pathlib

import pytest
import quorvane

WRONG = "(doc\n(r\n(rb=lightyellow)\n(c\n(p\n(pt=Vase)\np)\nc)\nr)\ndoc)\n"


def test_a_check_returns_what_is_wrong() -> None:
    assert quorvane.check(WRONG) == [quorvane.Diagnostic(
        severity="error", identifier="wrong-color",
        message="lightyellow isn't a recognized color.", hint="did you mean light-yellow?",
        file="description", line=3, column=5, length=11, byte_offset=12, byte_length=11,
        fix="light-yellow")]


def test_a_diagnostic_is_a_line_for_people() -> None:
    assert str(quorvane.check(WRONG)[0]) == (
        "description:3:5: error: lightyellow isn't a recognized color. [wrong-color]")


def test_a_check_finds_nothing_in_what_is_right() -> None:
    assert quorvane.check(WRONG.replace("lightyellow", "light-yellow")) == []


def test_a_check_reads_a_file_and_names_it(tmp_path: pathlib.Path) -> None:
    file = tmp_path / "page.rtfspec"
    file.write_text(WRONG)
    assert quorvane.check(file)[0].file == str(file)


def test_styles_are_checked_with_a_stylesheet() -> None:
    styled = WRONG.replace("(rb=lightyellow)\n", "").replace("(pt=Vase)", "(pt=Vase)\n(ps=bold)")
    stylesheet = "{ name: normal; style-def: s; format: \\fs22 }"
    assert [each.identifier for each in quorvane.check(styled, stylesheet=stylesheet)] == [
        "unknown-paragraph-style"]


def test_a_stylesheet_and_a_document_are_checked() -> None:
    assert quorvane.check("{ name: normal; style-def: x }", "stylesheet")[0].file == "stylesheet"
    assert quorvane.check(b"{\\rtf1 {", "rtf")[0].identifier == "unclosed-group"


def test_diagnostics_can_be_left_out() -> None:
    assert quorvane.check(WRONG, ignore=["wrong-color"]) == []


def test_an_unknown_identifier_is_an_error() -> None:
    with pytest.raises(quorvane.Error, match='"wrong-colour" is not the name of a diagnostic.'):
        quorvane.check(WRONG, ignore=["wrong-colour"])
    with pytest.raises(quorvane.Error, match='"unused" is not the name of a diagnostic.'):
        quorvane.check(WRONG, enable=["unused"])


def test_an_unknown_language_is_a_value_error() -> None:
    with pytest.raises(ValueError, match="language is one of 'any', 'description'"):
        quorvane.check(WRONG, "german")


def test_a_template_is_checked_with_data() -> None:
    template = "; quorvane 2\n(doc\n(r\n(c\n(p\n(pt={{nmae}})\np)\nc)\nr)\ndoc)\n"
    found = quorvane.check(template, data={"name": "Vase"})
    assert [(each.identifier, each.line) for each in found] == [("missing-name", 6)]


def test_a_description_is_formatted_as_the_kind_of_text_that_it_is() -> None:
    assert quorvane.format("(doc\n(r\nr)\ndoc)") == "(doc\n  (r\n  r)\ndoc)\n"
    assert quorvane.format(b"(doc\n(r\nr)\ndoc)") == b"(doc\n  (r\n  r)\ndoc)\n"


def test_names_can_be_long_and_short() -> None:
    assert quorvane.format("(doc\n(row\nrow)\ndoc)", names="short") == "(doc\n  (r\n  r)\ndoc)\n"
    assert quorvane.format("(doc\n(r\nr)\ndoc)", names="long") == "(doc\n  (row\n  row)\ndoc)\n"


def test_what_is_no_description_is_not_formatted() -> None:
    with pytest.raises(quorvane.Error, match="neither a description nor a stylesheet"):
        quorvane.format("{\\rtf1 }", "rtf")
