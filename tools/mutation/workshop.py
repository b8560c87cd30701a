"""Builds the unit tests once, then once per mutant with one object file replaced, or a few for a header. Reports which
mutants they catch.

The sources of the tree are never touched: a mutant is compiled from a file of its own, and its object comes first in the
link, instead of the original or before the library that contains it. A changed header hides the original from the
compiler.
"""
import dataclasses
import json
import os
import pathlib
import shlex
import shutil
import subprocess
import tempfile

from carriers import Carriers, include_name

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build" / "mutation"
JOBS = max(1, min(2, os.cpu_count() or 1))
# Tests that take longer run last, whatever they test.
SLOW_S = 0.25
# Processor time, so that a busy machine condemns nothing. A mutant that takes this many times longer never ends.
LIMIT_FACTOR = 3
LIMIT_LEAST_S = 4
MEMORY_LIMIT = 4 << 30
FOLDERS = ("src", "companions")
TEST_FOLDERS = ("tests/unit",)
# Tests of what a screen shows.
SCREEN_TESTS = ("screen", "tool_tips")
# A header whose change would compile more sources is left alone.
MAX_CARRIERS = 6
# Runs at slightly lower priority than other work on the machine.
NICE = ["nice", "-n", "1"]


def run(command, **options):
    return subprocess.run(command, capture_output=True, text=True, check=False, **options)


def must(command, **options):
    done = run(command, **options)
    if done.returncode != 0:
        raise SystemExit(f"mutation: '{' '.join(map(str, command))}' failed:\n{(done.stdout + done.stderr)[-4000:]}")
    return done.stdout


def without_cache(command):
    """Drops the compiler's cache from a command: a changed source is compiled only once, so a look-up costs time and
    finds nothing."""
    return command[1:] if pathlib.PurePath(command[0]).name == "ccache" else command


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
        self.commands = {pathlib.Path(entry["file"]): without_cache(shlex.split(entry["command"])) for entry in entries}
        steps = must(["ninja", "-C", BUILD, "-t", "commands", "unit_tests"]).splitlines()
        self.link = shlex.split(steps[-1].removeprefix(": && ").removesuffix(" && :"))
        self.tests = self.measure()
        self.carriers = Carriers(self.objects(FOLDERS), self.objects(TEST_FOLDERS),
                                 sorted(path for folder in FOLDERS for path in (ROOT / folder).rglob("*.h")))

    def object_of(self, source):
        """Returns the path of an object as the linker gets it, relative to the build folder."""
        command = self.commands[source]
        return command[command.index("-o") + 1]

    def objects(self, folders):
        """Returns the objects of the sources in some folders, by source."""
        found = {}
        for source in self.commands:
            path = BUILD / self.object_of(source)
            is_own = any(source.is_relative_to(ROOT / folder) for folder in folders)
            if is_own and "simulated" not in source.parts and path.exists():
                found[source] = path
        return found

    def build(self):
        must(["cmake", "-S", ROOT, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=-O0 -w",
              "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON"])
        must([*NICE, "ninja", f"-j{JOBS}", "-C", BUILD, "unit_tests"])

    def measure(self):
        """Returns the unit tests in order, with the time that each takes. All must pass before anything is changed."""
        listing = BUILD / "baseline.json"
        must([BUILD / "unit_tests", f"--gtest_output=json:{listing}"], cwd=BUILD)
        suites = json.loads(listing.read_text(encoding="utf-8"))["testsuites"]
        return [UnitTest(f"{suite['name']}.{test['name']}", pathlib.PurePath(test["file"]),
                         float(test["time"].removesuffix("s")))
                for suite in suites for test in suite["testsuite"]]

    def parse_arguments(self, source):
        """Returns the options with which libclang parses a source as the compiler does."""
        command = self.commands[source] if source in self.commands else self.command_with(source)
        return [word for word in command if word.startswith(("-I", "-D", "-std="))]

    def command_with(self, header):
        """Returns the compile command of a source of the same program: src or one of the companions."""
        parts = 2 if header.is_relative_to(ROOT / "companions") else 1
        program = ROOT.joinpath(*header.relative_to(ROOT).parts[:parts])
        return next(self.commands[source] for source in self.carriers.objects if source.is_relative_to(program))

    @staticmethod
    def name_of(header):
        return include_name(header, [ROOT / folder for folder in FOLDERS])

    def sources_of(self, mutant):
        """Returns the sources to compile for a mutant; empty for one that is left alone."""
        changed = ROOT / mutant.file
        if changed in self.commands:
            return [changed]
        sources = self.carriers.of(mutant.owner)
        return sources if len(sources) <= MAX_CARRIERS else []

    def rounds(self, source):
        """Returns the tests in the order in which they are likely to catch the mutant: those of its file, of its
        folder, the rest, the slow ones."""
        folder = source.relative_to(ROOT).parts[1]
        is_header = source.suffix == ".h"
        own, near, rest, slow = [], [], [], []
        for test in self.tests:
            if test.seconds > SLOW_S:
                slow.append(test)
            elif test.file.stem == f"{source.stem}_test" or is_header and test.file.stem.startswith(SCREEN_TESTS):
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
        """Returns "caught", "survived" or "did not compile"."""
        original = ROOT / mutant.file
        folder = pathlib.Path(tempfile.mkdtemp(dir=BUILD, prefix="mutant-"))
        try:
            changed = folder / (self.name_of(original) if original.suffix == ".h" else original.name)
            changed.parent.mkdir(exist_ok=True)
            changed.write_bytes(mutant.applied(original.read_bytes()))
            objects = []
            for source in self.sources_of(mutant):
                objects.append(str(folder / f"{len(objects)}.o"))
                if run([*NICE, *self.changed_command(source, original, changed, objects[-1])], cwd=BUILD).returncode != 0:
                    return "did not compile"
            exchanged = {self.object_of(source) for source in self.sources_of(mutant)}
            link = [word for word in self.link if word not in exchanged]
            link[link.index("-o") + 1] = str(folder / "unit_tests")
            link[1:1] = objects
            if run([*NICE, *link], cwd=BUILD).returncode != 0:
                return "did not compile"
            return "caught" if self.is_caught(folder / "unit_tests", original, folder) else "survived"
        finally:
            shutil.rmtree(folder)

    def changed_command(self, source, original, changed, output):
        """Compiles the changed source in place of the original, or a source that sees the changed header before all
        others."""
        command = list(self.commands[source])
        command[command.index("-o") + 1] = output
        if source == original:
            return [str(changed) if word == str(source) else word for word in command]
        folder = str(changed).removesuffix(str(self.name_of(original)))
        return [command[0], f"-I{folder}", *command[1:]]
