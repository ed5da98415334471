#!/usr/bin/env python3
"""Writes a C file that defines each function of a header, and does nothing in them.

interfaceStub.py HEADER. A library made of it has the same interface as the real one, which includes
the header too, and debugging information that can be read in no time: that of the real one
describes all of C++ that it is made of.
"""

import re
import sys

with open(sys.argv[1], encoding="utf-8") as file:
    header = file.read()

print("#include <quorvane.h>\n#include <stdlib.h>")
for declaration in re.findall(r"^QUORVANE_API\s+([^;]*);", header, flags=re.MULTILINE):
    print(declaration, "{ abort(); }")
