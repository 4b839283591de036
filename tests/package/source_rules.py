#!/usr/bin/env python3
"""Checks which file includes which: source_rules.py ROOT.

The folders depend on one another in one direction, no two classes include each other, even through
others, private headers stay private and Qt versions are told apart in QtCompat_p.h alone.
"""

import re
import sys
import tempfile
from pathlib import Path

# Each folder of libraries and the folders it may include from.
LAYERS = {
    "core": {"core"},
    "property": {"core", "property"},
    "host": {"core", "property", "host"},
    "testing": {"core", "property", "testing"},
}
# What a library does not export and a folder above compiles once more: the driver of colour wheels must
# know which pixel means which colour.
COMPILED_AGAIN = {"testing": {"core/WheelDrag_p.h", "core/WheelGeometry_p.h"}}
INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.MULTILINE)
QUOTED_INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


def read_tree(root):
    """Maps each source file of the libraries to the files of the tree that it includes."""
    files = {
        path.relative_to(root).as_posix(): path.read_text(encoding="utf-8")
        for layer in LAYERS
        for path in sorted((root / layer).rglob("*"))
        if path.suffix in (".h", ".cpp")
    }
    includes = {name: [i for i in INCLUDE.findall(text) if i in files] for name, text in files.items()}
    return files, includes


def is_private(name):
    return name.endswith("_p.h")


def unit(name):
    """A class: its header and its source together."""
    return name.rsplit(".", 1)[0]


def find_cycle(graph):
    """The first circle of the graph as a list of its nodes, or None."""
    done, path = set(), []

    def visit(node):
        if node in path:
            return path[path.index(node):] + [node]
        if node in done:
            return None
        path.append(node)
        for target in graph.get(node, ()):
            cycle = visit(target)
            if cycle:
                return cycle
        path.pop()
        done.add(node)
        return None

    return next(filter(None, map(visit, sorted(graph))), None)


def faults_of_file(name, text, includes):
    layer = name.split("/")[0]
    is_editor = name.startswith("property/editors/") and unit(name) != "property/editors/RegisterEditors"
    for target in includes:
        if target.split("/")[0] not in LAYERS[layer]:
            yield f"{name} includes {target}, which is of a folder above it"
        if is_private(target) and name.endswith(".h") and not is_private(name):
            yield f"{name} is public and includes {target}, which is not installed"
        is_taken = target.split("/")[0] == layer or target in COMPILED_AGAIN.get(layer, ())
        if is_private(target) and not is_taken:
            yield f"{name} includes {target}, which is private to another library"
        if is_editor and target.startswith("property/editors/"):
            if not is_private(target) and unit(target) != unit(name):
                yield f"{name} includes {target}, another editor"
    for target in QUOTED_INCLUDE.findall(text):
        if target not in includes and not target.endswith(".moc"):
            yield f"{name} includes \"{target}\", which is no path from the root of the tree"
    if name.endswith(".h") and "#pragma once" not in text:
        yield f"{name} has no include guard"
    if "QT_VERSION" in text and Path(name).name != "QtCompat_p.h":
        yield f"{name} tells Qt versions apart"


def find_faults(root):
    files, includes = read_tree(root)
    missing = [layer for layer in LAYERS if not any(name.startswith(layer + "/") for name in files)]
    faults = [f"there are no sources in {layer}" for layer in missing]
    for name, text in files.items():
        faults.extend(faults_of_file(name, text, includes[name]))
    graph = {}
    for name, targets in includes.items():
        graph.setdefault(unit(name), set()).update(
            unit(target) for target in targets if unit(target) != unit(name)
        )
    cycle = find_cycle({node: sorted(targets) for node, targets in graph.items()})
    if cycle:
        faults.append("files include one another in a circle: " + " -> ".join(cycle))
    return faults, len(files)


BAD_TREE = {
    "core/A.h": '#pragma once\n#include "core/B.h"\n#include "property/P.h"\n',
    "core/B.h": '#pragma once\n#include <core/C.h>\n',
    "core/C.h": "#pragma once\n",
    "core/C.cpp": '#include "core/C.h"\n#include "core/A.h"\n',
    "core/D_p.h": "#pragma once\n",
    "property/P.h": '#pragma once\n#include "core/D_p.h"\n#if QT_VERSION > 0\n#endif\n',
    "property/editors/E.h": "#pragma once\n",
    "property/editors/F.cpp": '#include "property/editors/E.h"\n#include "E.h"\n',
    "host/H.h": "\n",
    "testing/T.cpp": "#include <core/D_p.h>\n#include <core/WheelDrag_p.h>\n",
}
FAULTS_OF_BAD_TREE = [
    "core/A.h includes property/P.h, which is of a folder above it",
    "property/P.h is public and includes core/D_p.h, which is not installed",
    "property/P.h includes core/D_p.h, which is private to another library",
    "property/P.h tells Qt versions apart",
    "property/editors/F.cpp includes property/editors/E.h, another editor",
    'property/editors/F.cpp includes "E.h", which is no path from the root of the tree',
    "host/H.h has no include guard",
    "testing/T.cpp includes core/D_p.h, which is private to another library",
    "files include one another in a circle: core/A -> core/B -> core/C -> core/A",
]


def check_ourselves():
    """Every rule must find its fault in a tree that breaks them all."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in BAD_TREE.items():
            path = Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        faults, _ = find_faults(Path(folder))
    missed = [fault for fault in FAULTS_OF_BAD_TREE if fault not in faults]
    return [f"not noticed: {fault}" for fault in missed]


def main():
    faults, count = find_faults(Path(sys.argv[1]))
    faults += check_ourselves()
    for fault in faults:
        print(fault)
    print(f"{count} files, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
