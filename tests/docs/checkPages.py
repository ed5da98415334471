"""Checks the pages of the documentation: checkPages.py PROJECT

- Links lead to files and headings that exist.
- The table of contents of a page lists its sections, in their order.
- A block of code that names a file of the project repeats that file.
- The tests that docs/promises.md and docs/conformance.md name exist, and the sources that the
  pages for developers name.
- Words are spelled as in American English.
"""

import collections
import pathlib
import re
import sys

project = pathlib.Path(sys.argv[1]).resolve()
problems = []

BRITISH = re.compile(
    r"\b(colours?|coloured|behaviours?|neighbours?|neighbouring|centred?|centres|catalogues?|"
    r"analys(?:e|ed|ing)|recognis\w+|organis\w+|initialis\w+|serialis\w+|normalis\w+|"
    r"summaris\w+|optimis\w+|licences?|honours?|favours?|greys?|artefacts?|labelled|cancelled|"
    r"per cent)\b",
    re.IGNORECASE)


def report(page, line, text):
    problems.append(f"{page.relative_to(project)}:{line}: {text}")


def pages():
    return [page for folder in (".", "docs", "examples", "bindings/python", "bindings/npm")
            for page in sorted((project / folder).glob("*.md"))]


def lines_of(page):
    """The lines of a page with their numbers, and whether they are code."""
    in_code = False
    for number, line in enumerate(page.read_text(encoding="utf-8").split("\n"), 1):
        fence = line.startswith("```")
        yield number, line, in_code or fence
        in_code ^= fence


def anchor(heading):
    text = re.sub(r"[^\w\- ]", "", heading.strip().lower())
    return text.replace(" ", "-")


def headings(page):
    """The level and the anchor of each heading. An anchor that is there already gets a number."""
    found = []
    counts = collections.Counter()
    for _, line, is_code in lines_of(page):
        if not is_code and (match := re.match(r"(#+) (.*)", line)):
            name = anchor(match[2])
            found.append((len(match[1]), f"{name}-{counts[name]}" if counts[name] else name))
            counts[name] += 1
    return found


def check_links(page):
    for number, line, is_code in lines_of(page):
        if is_code:
            continue
        for target in re.findall(r"\]\(([^)\s]+)\)", re.sub(r"`[^`]*`", "", line)):
            if re.match(r"\w+:", target):
                continue
            path, _, fragment = target.partition("#")
            file = (page.parent / path).resolve() if path else page
            if not file.exists():
                report(page, number, f"{target}: there is no such file")
            elif fragment and fragment not in [name for _, name in headings(file)]:
                report(page, number, f"{target}: there is no such heading")


def check_contents(page):
    text = page.read_text(encoding="utf-8")
    contents = re.findall(r"^- \[[^\]]*\]\(#([^)]*)\)", text.split("\n## ")[0], re.MULTILINE)
    sections = [name for level, name in headings(page) if level == 2]
    if contents and contents != sections:
        report(page, 1, f"the contents list {contents}, the sections are {sections}")


def check_code(page):
    """A block that begins with ```LANGUAGE FOLDER/FILE is that file."""
    text = page.read_text(encoding="utf-8")
    for block in re.finditer(r"^```\w+ (\S+/\S+)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL):
        file = project / block[1]
        number = text.count("\n", 0, block.start()) + 1
        if not file.exists():
            report(page, number, f"{block[1]}: there is no such file")
        elif file.read_text(encoding="utf-8") != block[2]:
            report(page, number, f"the code differs from {block[1]}")


def check_programs(page, folder):
    """A page shows every program of a folder."""
    text = page.read_text(encoding="utf-8")
    for file in sorted(folder.iterdir()):
        if file.suffix in {".rtfspec", ".rtfss", ".png"}:
            continue
        name = file.relative_to(project).as_posix()
        if not re.search(rf"^```\w+ {re.escape(name)}$", text, re.MULTILINE):
            report(page, 1, f"{name} is not shown")


def check_sources(page, sources):
    """The sources that a page names exist, by their names or by the ends of their paths."""
    for number, line, is_code in lines_of(page):
        for name in re.findall(r"`([\w./]+\.(?:cpp|h|py|cmake|txt))`", "" if is_code else line):
            if not any(f"/{source}".endswith(f"/{name}") for source in sources):
                report(page, number, f"{name}: there is no such file")


def source_files():
    generated = ["quorvaneInterfaces.h"]
    folders = ["quorvane", "com", "cli", "tests", "cmake", "bench", "scripts", "examples",
               "packaging", "bindings/npm"]
    return generated + [file.relative_to(project).as_posix()
                        for folder in folders for file in (project / folder).rglob("*.*")]


def check_spelling(page):
    for number, line, is_code in lines_of(page):
        for word in BRITISH.findall("" if is_code else re.sub(r"`[^`]*`|\([^)]*\)", "", line)):
            report(page, number, f"\"{word}\" is not American spelling")


def test_names():
    """The names of all tests, of GoogleTest as well as of CTest."""
    names = set()
    for file in (project / "tests").rglob("*"):
        if file.suffix == ".cpp":
            names.update(f"{suite}.{name}" for suite, name in re.findall(
                r"\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\)", file.read_text(encoding="utf-8")))
        elif file.name == "CMakeLists.txt":
            names.update(re.findall(r"NAME (\w+\.\w+)", file.read_text(encoding="utf-8")))
    return names


class Promises:
    """What docs/promises.md names as proof."""

    def __init__(self):
        self.page = project / "docs" / "promises.md"
        self.tests = test_names()
        self.suites = {name.split(".")[0] for name in self.tests}
        self.files = {file.name for file in (project / "tests").rglob("*")}
        self.suite = ""

    def exists(self, proof):
        if "/" in proof:
            return (project / proof).exists()
        if proof.endswith("_fuzz"):
            return (project / "tests" / "fuzz" / f"{proof}.cpp").exists()
        if proof.endswith((".h", ".cpp", ".py")):
            return proof in self.files
        suite, _, name = proof.rstrip("…").partition(".")
        self.suite = suite or self.suite
        if not name:
            return self.suite in self.suites
        if proof.endswith("…"):
            return any(test.startswith(f"{self.suite}.{name}") for test in self.tests)
        return f"{self.suite}.{name}" in self.tests

    def check(self):
        for number, line, _ in lines_of(self.page):
            if not line.startswith("|") or line.startswith(("|---", "| promise |")):
                continue
            proofs = re.findall(r"`([^`]+)`", line.rsplit("|", 2)[1])
            if not proofs:
                report(self.page, number, "the promise names no test")
            for proof in proofs:
                if not self.exists(proof):
                    report(self.page, number, f"{proof}: there is no such test or file")


def package_tests():
    """The names of the tests of the packages for Python and JavaScript."""
    names = set()
    for file in (project / "bindings").rglob("test*/*"):
        if file.suffix == ".py":
            names.update(re.findall(r"^def (test_\w+)", file.read_text(encoding="utf-8"),
                                    re.MULTILINE))
        elif file.suffix == ".mjs":
            names.update(re.findall(r"^test\('([^']+)'", file.read_text(encoding="utf-8"),
                                    re.MULTILINE))
    return names


def check_conformance():
    """Each cell of docs/conformance.md names tests that exist, or says no."""
    page = project / "docs" / "conformance.md"
    tests = test_names() | package_tests()
    for number, line, _ in lines_of(page):
        if not line.startswith("|") or line.startswith(("|---", "| capability |")):
            continue
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        for cell in cells[1:]:
            proofs = re.findall(r"`([^`]+)`", cell)
            if not proofs and not re.match(r"no\b", cell):
                report(page, number, f"\"{cell}\" names no test")
            for proof in proofs:
                if proof not in tests and not ("/" in proof and (project / proof).exists()):
                    report(page, number, f"{proof}: there is no such test or file")


for page in pages():
    check_links(page)
    check_contents(page)
    check_code(page)
    check_spelling(page)
for name in ("CONTRIBUTING.md", "docs/internals.md", "docs/promises.md"):
    check_sources(project / name, source_files())
check_programs(project / "docs" / "languages.md", project / "examples" / "languages")
Promises().check()
check_conformance()
if problems:
    sys.exit("\n".join(problems))
print(f"{len(pages())} pages are sound.")
