#!/usr/bin/env python3
"""Checks the files of the installed package: headers, libraries, symbols and traces of this machine."""

import argparse
import os
import re
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))
from exported_symbols import OUR_SYMBOL, exported_symbols, our_symbols, output_of

# Name to folder.
LIBRARIES = {
    "core": "core",
    "property": "property",
    "propertyhost": "host",
    "propertytest": "testing",
}

# What the linker and the C run-time add to every shared library.
LINKER_SYMBOLS = {"_init", "_fini", "_edata", "_end", "__bss_start"}

# Inline code of the standard library and of Qt that a compiler puts into every library using it;
# such symbols are weak, and the dynamic linker keeps one of them.
FOREIGN_INLINE_CODE = re.compile(r"\b(std::|__gnu_cxx::|Qt?[A-Z]\w*|q[A-Z]\w*)")

# The first name after our namespaces, be it of a class, a function or a variable.
EXPORTED_NAME = re.compile(r"\bTessark::(?:\w+::)?(\w+)")

# What private headers declare for our own tests and benchmarks.
FOR_OUR_TESTS = {"kitCounters"}

EXPORTED_CLASS = re.compile(r"^\s*class\s+TESSARK_\w+_EXPORT\s+(\w+)", re.MULTILINE)


def dynamic_entries(path, tag):
    """Values of a library's or program's dynamic section, such as SONAME."""
    text = output_of("readelf", "--dynamic", "--wide", str(path))
    return re.findall(rf"\({tag}\).*\[(.*)\]", text)


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

    def test_export_nothing_that_no_header_declares(self):
        for name, folder in LIBRARIES.items():
            with self.subTest(library=name):
                headers = "".join(p.read_text() for p in (include_root() / folder).rglob("*.h"))
                symbols = [symbol.readable for symbol in our_symbols(library(name))]
                exported = {EXPORTED_NAME.search(symbol).group(1) for symbol in symbols}
                self.assertEqual(exported - set(re.findall(r"\w+", headers)) - FOR_OUR_TESTS, set())

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
