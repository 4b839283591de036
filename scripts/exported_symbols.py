"""What a shared library offers to others."""

import re
import subprocess
from typing import NamedTuple

# A mangled name inside namespace Tessark, be it a function, a table, a type or an adjustor of one.
OUR_SYMBOL = re.compile(r"^_Z(T[VTIS]|Th\d*n?\d+_|Tv\d*n?\d+_n?\d+_|Tc.*_|GV|GR)?N[rVK]*[RO]?7Tessark")


class Symbol(NamedTuple):
    kind: str  # nm's letter: W, V and u for what several libraries may define
    mangled: str
    readable: str

    def is_inline(self):
        """Code and variables of which each user has a copy, unlike the tables and types of a class."""
        return self.kind in "WVu" and not self.mangled.startswith("_ZT")


def output_of(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


def exported_symbols(path):
    """All symbols that the library defines for the dynamic linker."""
    names = output_of("nm", "--dynamic", "--defined-only", "--portability", str(path))
    lines = [line.split() for line in names.splitlines()]
    readable = output_of("c++filt", input="\n".join(line[0] for line in lines)).splitlines()
    return [Symbol(line[1], line[0], text) for line, text in zip(lines, readable)]


def our_symbols(path):
    """Those of namespace Tessark: inline code of Qt and the standard library differs with compilers."""
    return [symbol for symbol in exported_symbols(path) if OUR_SYMBOL.match(symbol.mangled)]
