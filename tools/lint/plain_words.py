#!/usr/bin/env python3
"""Fails where comments, names or documents use words that CONTRIBUTING.md asks to avoid."""
import pathlib
import re
import sys

FOLDERS = ("src", "companions", "tests", "bench", "tools", "cmake", "docs", "help", "packaging")
SUFFIXES = {".h", ".cpp", ".py", ".sh", ".cmake", ".md", ".txt", ".inf", ".bat"}
# Export lists are the system's words, not ours.
LEFT_OUT = ("cmake/win95-exports",)
WORDS = {
    r"(?i)\banew\b": "again",
    r"(?i)\bof before\b": "previous",
    r"(?i)\bshall\b": "must, or the present tense",
    r"\bk(Most|Least)[A-Z]\w*": "kMax..., kMin...",
    r"\w+_an_inch\b": "..._per_inch",
    r"(?i)\b(gets?|got) along\b": "works",
    r"(?i)\bwhat there is\b": "say what it is",
    r"(?i)\bnothing is won\b": "you gain nothing",
    r"(?i)\blittle busy\b": "needs little processor time",
    r"(?i)\ban error in itself\b": "an internal error",
    r"(?i)\bthe wish of\b": "the request, the setting",
    r"(?i)\bin its own right\b": "separately",
    r"(?i)\bfor so long\b": "for that time",
}
PATTERNS = [(re.compile(pattern), better) for pattern, better in WORDS.items()]


def findings(text):
    """Pairs of a line's number and what is wrong with it."""
    for number, line in enumerate(text.splitlines(), 1):
        for pattern, better in PATTERNS:
            found = pattern.search(line)
            if found:
                yield number, f'"{found[0]}"; better: {better}'


def main():
    root = pathlib.Path(sys.argv[1])
    own = {pathlib.Path(__file__).name, "plain_words_test.py", "CONTRIBUTING.md"}
    files = [file for folder in FOLDERS for file in (root / folder).rglob("*")] + list(root.glob("*.md"))
    files = [file for file in sorted(files) if file.suffix.lower() in SUFFIXES and file.name not in own
             and not str(file.relative_to(root)).startswith(LEFT_OUT)]
    found = [f"{file.relative_to(root)}:{number}: {what}" for file in files
             for number, what in findings(file.read_text(encoding="utf-8"))]
    print(*found, f"plain words: {len(files)} files looked at", sep="\n")
    sys.exit(1 if found or not files else 0)


if __name__ == "__main__":
    main()
