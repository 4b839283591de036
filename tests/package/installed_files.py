#!/usr/bin/env python3
"""Checks the files of the installed package: headers, libraries, symbols and traces of this machine."""

import argparse
import os
import re
import subprocess
import sys
import unittest
from pathlib import Path

LIBRARIES = {"core": "core", "property": "property", "propertyhost": "host"}  # name to folder

# What the linker and the C run-time add to every shared library.
LINKER_SYMBOLS = {"_init", "_fini", "_edata", "_end", "__bss_start"}

# A mangled name inside namespace Tessark, be it a function, a table, a type or an adjustor of one.
OUR_SYMBOL = re.compile(r"^_Z(T[VTIS]|Th\d*n?\d+_|Tv\d*n?\d+_n?\d+_|Tc.*_|GV|GR)?N[rVK]*[RO]?7Tessark")

# Inline code of the standard library and of Qt that a compiler puts into every library using it;
# such symbols are weak, and the dynamic linker keeps one of them.
FOREIGN_INLINE_CODE = re.compile(r"\b(std::|__gnu_cxx::|Qt?[A-Z]\w*|q[A-Z]\w*)")

EXPORTED_CLASS = re.compile(r"^\s*class\s+TESSARK_\w+_EXPORT\s+(\w+)", re.MULTILINE)


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def dynamic_entries(path, tag):
    """Values of a library's or program's dynamic section, such as SONAME."""
    text = output_of("readelf", "--dynamic", "--wide", str(path))
    return re.findall(rf"\({tag}\).*\[(.*)\]", text)


def exported_symbols(path):
    """(kind, mangled name, readable name) of what the library offers to others."""
    command = ["nm", "--dynamic", "--defined-only", "--portability", str(path)]
    lines = [line.split() for line in output_of(*command).splitlines()]
    names = "\n".join(line[0] for line in lines)
    readable = subprocess.run(
        ["c++filt"], input=names, check=True, capture_output=True, text=True
    ).stdout.splitlines()
    return [(line[1], line[0], text) for line, text in zip(lines, readable)]


class InstalledHeaders(unittest.TestCase):
    def test_are_all_public_headers_of_the_tree(self):
        in_tree = {
            path.relative_to(options.source).as_posix()
            for folder in LIBRARIES.values()
            for path in (options.source / folder).rglob("*.h")
            if not path.name.endswith("_p.h")
        }
        self.assertEqual(installed_headers(), in_tree)
        self.assertIn("property/PropertyUI.h", in_tree)

    def test_name_no_private_header(self):
        for name in sorted(installed_headers()):
            self.assertNotRegex((include_root() / name).read_text(), r"#\s*include.*_p\.h", name)


class InstalledLibraries(unittest.TestCase):
    def test_carry_their_version_in_name_and_links(self):
        major = options.version.split(".")[0]
        for name in LIBRARIES:
            with self.subTest(library=name):
                real = library(name, "." + options.version)
                self.assertFalse(real.is_symlink())
                self.assertEqual(os.readlink(library(name, "." + major)), real.name)
                self.assertEqual(os.readlink(library(name)), f"lib{name}.so.{major}")
                self.assertEqual(dynamic_entries(real, "SONAME"), [f"lib{name}.so.{major}"])

    def test_find_one_another_in_their_own_folder(self):
        for name in LIBRARIES:
            with self.subTest(library=name):
                self.assertEqual(dynamic_entries(library(name), "RUNPATH"), ["$ORIGIN"])

    def test_export_nothing_outside_our_namespace(self):
        for name in LIBRARIES:
            for kind, mangled, readable in exported_symbols(library(name)):
                if mangled in LINKER_SYMBOLS or OUR_SYMBOL.match(mangled):
                    continue
                with self.subTest(library=name, symbol=readable, kind=kind):
                    self.assertIn(kind, "WVu", "defined by us, but outside namespace Tessark")
                    self.assertRegex(readable, FOREIGN_INLINE_CODE)

    def test_export_every_class_that_a_header_says_so_of(self):
        for name, folder in LIBRARIES.items():
            symbols = [readable for _, _, readable in exported_symbols(library(name))]
            for header in sorted((include_root() / folder).rglob("*.h")):
                for exported_class in EXPORTED_CLASS.findall(header.read_text()):
                    with self.subTest(library=name, exported_class=exported_class):
                        pattern = re.compile(rf"Tessark::\w+::{exported_class}(::|$)")
                        self.assertTrue(any(map(pattern.search, symbols)))


class InstalledProgram(unittest.TestCase):
    def test_finds_the_libraries_of_its_own_package(self):
        program = options.prefix / "bin" / "property-panel"
        self.assertEqual(program.exists(), options.tools == "1")
        if not program.exists():
            return
        found = dict(re.findall(r"^\s*(\S+) => (\S.*) \(0x", output_of("ldd", str(program)), re.M))
        ours = {n: p for n, p in found.items() if re.match(r"lib(core|property|propertyhost)\.so", n)}
        self.assertIn("libproperty.so." + options.version.split(".")[0], ours)
        for name, path in ours.items():
            self.assertEqual(Path(path).resolve().parent, library("property").resolve().parent, name)


class EveryInstalledFile(unittest.TestCase):
    def test_holds_no_path_of_the_machine_it_was_built_on(self):
        staging = options.prefix.parent / "staging"
        paths = [str(path).encode() for path in (options.source, options.build, staging)]
        files = [path for path in options.prefix.rglob("*") if path.is_file()]
        self.assertGreater(len(files), 20)
        for path in files:
            content = path.read_bytes()
            for trace in paths:
                with self.subTest(file=path.relative_to(options.prefix), trace=trace):
                    self.assertFalse(trace in content)


def include_root():
    return options.prefix / "include" / "tessark"


def installed_headers():
    return {p.relative_to(include_root()).as_posix() for p in include_root().rglob("*") if p.is_file()}


def library(name, suffix=""):
    return options.prefix / options.libdir / f"lib{name}.so{suffix}"


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__)
    for option in ("--source", "--build", "--prefix"):
        parser.add_argument(option, type=Path, required=True)
    for option in ("--libdir", "--version", "--tools"):
        parser.add_argument(option, required=True)
    options, rest = parser.parse_known_args()
    unittest.main(argv=sys.argv[:1] + rest, verbosity=2)
