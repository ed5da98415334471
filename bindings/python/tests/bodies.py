"""What is compared in the tests."""


def body(rtf: bytes) -> bytes:
    """A document from its first row on."""
    return rtf[rtf.rindex(b"{\\intbl\\trowd"):]

