#!/usr/bin/env python3
"""Passes if a command ends with the given exit code and prints the given text:

ends_with.py CODE TEXT COMMAND [ARGUMENT...]    CODE is a number, or "failure" for any but 0; TEXT may be empty
"""
import subprocess
import sys


def main():
    code, text, *command = sys.argv[1:]
    run = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace")
    print(run.stdout, end="")
    as_wanted = run.returncode != 0 if code == "failure" else run.returncode == int(code)
    print(f"ended with {run.returncode}")
    sys.exit(0 if as_wanted and text in run.stdout else 1)


if __name__ == "__main__":
    main()
