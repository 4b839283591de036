#!/usr/bin/env python3
"""Checks the property list schema itself, and each sample against it.

usage: check_schema.py SCHEMA SAMPLES

The samples under "valid" and "beyond the schema" must be accepted, those under
"wrong" refused. tst_PropertyListSchema reads the same samples with the reader,
which must accept the first and refuse the other two. Of pictures, "dot.png" is
there and "text.png" is none.
"""

import json
import sys

try:
    import jsonschema
except ImportError:
    sys.exit("python3-jsonschema is missing")


def document(sample):
    if "rows" in sample:
        return {"version": 1, "properties": sample["rows"]}
    return sample["list"]


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        schema = json.load(file)
    with open(sys.argv[2], encoding="utf-8") as file:
        samples = json.load(file)

    jsonschema.Draft7Validator.check_schema(schema)
    validator = jsonschema.Draft7Validator(schema)
    failures = 0
    checked = 0
    for group, accepted in (("valid", True), ("wrong", False), ("beyond the schema", True)):
        if not samples[group]:
            sys.exit(f"no samples under {group!r}")
        for sample in samples[group]:
            checked += 1
            errors = list(validator.iter_errors(document(sample)))
            if accepted == (not errors):
                continue
            failures += 1
            reason = errors[0].message if errors else "accepted"
            print(f"FAIL: {group}: {sample['name']}: {reason}")
    print(f"{checked} samples, {failures} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
