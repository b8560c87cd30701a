"""Builds the unit tests once, and then again and again with one object file exchanged; tells which mutants they catch.

The sources of the tree are never touched: a mutant is compiled from a file of its own, and its object goes to the
linker in front of the library that holds the true one.
"""
import dataclasses
import json
import os
import pathlib
import shlex
import shutil
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build" / "mutation"
JOBS = max(1, min(2, os.cpu_count() or 1))
# Tests that take longer run last, whatever they test.
SLOW_S = 0.25
# Processor time, so that a busy machine condemns nothing; a mutant that takes so much more never ends.
LIMIT_FACTOR = 3
LIMIT_LEAST_S = 4
MEMORY_LIMIT = 4 << 30
# A little behind whoever else works on the machine.
NICE = ["nice", "-n", "1"]


def run(command, **options):
    return subprocess.run(command, capture_output=True, text=True, check=False, **options)


def must(command, **options):
    done = run(command, **options)
    if done.returncode != 0:
        raise SystemExit(f"mutation: '{' '.join(map(str, command))}' failed:\n{(done.stdout + done.stderr)[-4000:]}")
    return done.stdout


def cpu_limited(seconds, command):
    return [*NICE, "prlimit", f"--cpu={int(seconds)}", f"--as={MEMORY_LIMIT}", *command]


@dataclasses.dataclass
class UnitTest:
    name: str
    file: pathlib.PurePath
    seconds: float


class Workshop:
    def __init__(self):
        self.build()
        entries = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
        self.commands = {pathlib.Path(entry["file"]): shlex.split(entry["command"]) for entry in entries}
        steps = must(["ninja", "-C", BUILD, "-t", "commands", "unit_tests"]).splitlines()
        self.link = shlex.split(steps[-1].removeprefix(": && ").removesuffix(" && :"))
        self.tests = self.measure()

    def build(self):
        must(["cmake", "-S", ROOT, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O0 -w",
              "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON"])
        must([*NICE, "ninja", f"-j{JOBS}", "-C", BUILD, "unit_tests"])

    def measure(self):
        """The unit tests in their order, with the time that each takes; all must pass before anything is changed."""
        listing = BUILD / "baseline.json"
        must([BUILD / "unit_tests", f"--gtest_output=json:{listing}"], cwd=BUILD)
        suites = json.loads(listing.read_text(encoding="utf-8"))["testsuites"]
        return [UnitTest(f"{suite['name']}.{test['name']}", pathlib.PurePath(test["file"]),
                         float(test["time"].removesuffix("s")))
                for suite in suites for test in suite["testsuite"]]

    def parse_arguments(self, source):
        """What libclang has to know of the way in which a source is compiled."""
        command = self.commands[source]
        return [word for word in command if word.startswith(("-I", "-D", "-std="))]

    def rounds(self, source):
        """The tests in the order in which they are likely to notice: of this file, of its folder, the rest, the slow."""
        folder = source.relative_to(ROOT).parts[1]
        own, near, rest, slow = [], [], [], []
        for test in self.tests:
            if test.seconds > SLOW_S:
                slow.append(test)
            elif test.file.stem == f"{source.stem}_test":
                own.append(test)
            else:
                (near if test.file.parent.name == folder else rest).append(test)
        return [tests for tests in (own, near, rest, slow) if tests]

    def is_caught(self, program, source, folder):
        for tests in self.rounds(source):
            flags = folder / "tests.flags"
            flags.write_text("--gtest_filter=" + ":".join(test.name for test in tests) + "\n", encoding="utf-8")
            limit = max(LIMIT_LEAST_S, LIMIT_FACTOR * sum(test.seconds for test in tests))
            command = [program, f"--gtest_flagfile={flags}", "--gtest_fail_fast", "--gtest_brief=1"]
            if run(cpu_limited(limit, command), cwd=folder, errors="replace").returncode != 0:
                return True
        return False

    def verdict(self, mutant):
        """"caught", "survived" or "did not compile"."""
        source = ROOT / mutant.file
        folder = pathlib.Path(tempfile.mkdtemp(dir=BUILD, prefix="mutant-"))
        try:
            changed = folder / source.name
            changed.write_bytes(mutant.applied(source.read_bytes()))
            replaced = {str(source): str(changed)}
            command = [replaced.get(word, word) for word in self.commands[source]]
            command[command.index("-o") + 1] = str(folder / "mutant.o")
            if run([*NICE, *command], cwd=BUILD).returncode != 0:
                return "did not compile"
            link = list(self.link)
            output = link.index("-o") + 1
            link[output:output + 1] = [str(folder / "unit_tests"), str(folder / "mutant.o")]
            if run([*NICE, *link], cwd=BUILD).returncode != 0:
                return "did not compile"
            return "caught" if self.is_caught(folder / "unit_tests", source, folder) else "survived"
        finally:
            shutil.rmtree(folder)
