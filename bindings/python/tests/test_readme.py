"""The examples of the manual."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
from typing import Dict

import pytest

HERE = pathlib.Path(__file__).parent
README = HERE.parent / "README.md"
EXAMPLES: Dict[str, str] = dict(re.findall(
    r"^```python (\S+)\n(.*?)^```$", README.read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL))

# What an example prints.
PRINTED = {
    "invoice.py": "0 diagnostics\n",
    "articles.py": "2 vases, 0 diagnostics\n",
    "check.py": ("description:3:5: error: lightyellow isn't a recognized color. [wrong-color]\n"
                 "did you mean light-yellow?\n"),
    "errors.py": ("description:3:5: lightyellow isn't a recognized color.\n"
                  "wrong-color 3 5\nhint: did you mean light-yellow?\n"),
}

# The documents that an example writes, each with a text in it.
WRITTEN = {
    "prices.py": {"prices.rtf": b" Vase, smoky gray\\cell"},
    "articles.py": {"articles.rtf": b" \\qr 89,50\\cell"},
    "stock.py": {"stock.rtf": b" \\qr 39.99 {\\uc1\\u8364?}\\cell"},
    "order_form.py": {"order_form.rtf": b" Vase \\{amber\\}\\cell"},
    "statements.py": {"statement0.rtf": b": 1.250,50\\cell", "statement1.rtf": b": 80,00\\cell"},
    "measurements.py": {"measurements.rtf": b" 4999\\cell"},
}


@pytest.mark.parametrize("name", sorted(EXAMPLES))
def test_an_example_of_the_manual_runs(name: str, tmp_path: pathlib.Path) -> None:
    """With the Python that PYTHON names: one in which nothing but the package is installed."""
    shutil.copy(HERE / "logo.png", tmp_path)
    (tmp_path / name).write_text(EXAMPLES[name], encoding="utf-8")
    result = subprocess.run([os.environ.get("PYTHON", sys.executable), "-I", name], cwd=tmp_path,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    assert result.stdout.decode() == PRINTED.get(name, "")
    assert result.returncode == 0
    written = {path.name for path in tmp_path.glob("*.rtf")}
    assert written == set(WRITTEN.get(name, {}))
    for document, text in WRITTEN.get(name, {}).items():
        assert text in (tmp_path / document).read_bytes()


def test_the_order_form_has_its_logo(tmp_path: pathlib.Path) -> None:
    shutil.copy(HERE / "logo.png", tmp_path)
    (tmp_path / "order_form.py").write_text(EXAMPLES["order_form.py"], encoding="utf-8")
    subprocess.run([os.environ.get("PYTHON", sys.executable), "-I", "order_form.py"], cwd=tmp_path,
                   check=True)
    document = (tmp_path / "order_form.rtf").read_bytes()
    assert document.count(b"\\pngblip") == 1
    assert b"\\pichgoal680" in document
