"""compareUpgraded.py FOLDER NAME...: compares the pages that LibreOffice makes of descriptions with
those of their upgrades, NAME.pdf with NAME-upgraded.pdf: each must have the same pixels, but for the
few along an edge that is a twip away."""

import subprocess
import sys

# The share of a page that may differ.
TOLERANCE = 0.0005


def pages(path):
    """The width, the height and the pixels of each page."""
    data = subprocess.run(["pdftoppm", "-r", "100", path], capture_output=True, check=True).stdout
    result = []
    while data:
        kind, size, depth, rest = data.split(b"\n", 3)
        assert (kind, depth) == (b"P6", b"255"), "a picture of another kind"
        width, height = map(int, size.split())
        result.append((width, height, rest[:3 * width * height]))
        data = rest[3 * width * height:]
    return result


def difference(before, after):
    """How many pixels of two pages of one size differ."""
    return 0 if before == after else sum(
        before[at:at + 3] != after[at:at + 3] for at in range(0, len(before), 3))


def faults(name):
    before, after = pages(f"{name}.pdf"), pages(f"{name}-upgraded.pdf")
    if [page[:2] for page in before] != [page[:2] for page in after]:
        return [f"there are {len(after)} pages, should be {len(before)} of the same size"]
    counts = [difference(old[2], new[2]) for old, new in zip(before, after)]
    return [f"page {number} differs in {count} pixels" for number, (count, page) in
            enumerate(zip(counts, before), 1) if count > TOLERANCE * page[0] * page[1]]


def main():
    folder, *names = sys.argv[1:]
    found = {name: faults(f"{folder}/{name}") for name in names}
    for name, fault in found.items():
        print(f"{name}, upgraded: " + ("as it was" if not fault else "; ".join(fault)))
    sys.exit(1 if any(found.values()) else 0)


main()
