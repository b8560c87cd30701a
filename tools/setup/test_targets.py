#!/usr/bin/env python3
"""Prints what to build for the tests that ctest chooses:   test_targets.py BUILD_DIR [CTEST_ARGUMENT...]

Prints nothing if BUILD_DIR has no such test, the names of the test programs if every chosen test only runs one of them,
and "all" otherwise: a script, or a program that an emulator runs, may use anything of the build.
"""
import json
import pathlib
import subprocess
import sys

EVERYTHING = "all"


def target_of(test, build):
    """Returns the target of a test's program, or EVERYTHING."""
    # ctest lists no command for a program that has not been built, but still the files that the test requires.
    required = [file for one in test["properties"] if one["name"] == "REQUIRED_FILES" for file in one["value"]]
    program = pathlib.Path((test.get("command") or required or [EVERYTHING])[0])
    return str(program.relative_to(build)) if program.is_relative_to(build) else EVERYTHING


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    listing = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1", *sys.argv[2:]],
                             check=True, stdout=subprocess.PIPE, text=True).stdout
    targets = {target_of(test, build) for test in json.loads(listing)["tests"]}
    print(EVERYTHING if EVERYTHING in targets else " ".join(sorted(targets)))


if __name__ == "__main__":
    main()
