"""The interface of the small machine for scenarios: programs, windows, mouse, figures and screenshots."""
import contextlib
import dataclasses
import json
import pathlib
import re
import shutil
import tempfile

import root_disk
from emulator import Emulator
from figures import read_figures
from host import MachineError
from store import PROGRAMS_DISK_MB

# Seconds of the guest's time.
WINDOW_LIMIT_S = 120
RELEASE_LIMIT_S = 300
# How far the window's figure may differ from the kernel's, and how often it is read until they agree.
AGREEMENT_KB = 1024
MAX_LOOKS = 10
# A point well inside the first row of a list, in pixels from its top left corner.
FIRST_ROW = (20, 9)
# Seconds of the host's time, for a wait in the guest.
HOST_LIMIT_S = 900


class Pc:
    """A running machine. Screenshots and results go to `folder`; `say` is called with each progress message."""

    def __init__(self, machine, folder, say):
        self.machine = machine
        self.folder = folder
        self.say = say
        self.idle_programs = range(0)

    # Programs.

    def start(self, name, *arguments):
        self.say(f"starting {name}")
        self.machine.ask(" ".join(["start", name, *arguments]))

    def start_main_program(self):
        """Starts QDIX.exe as on a machine where it has run before, and waits for its figures."""
        self.set_settings("Machine", HasRun=1)
        self.start("QDIX.exe")
        self.await_main_window()

    def await_main_window(self):
        """Waits until the main window shows its figures."""
        self.machine.ask(f"await {WINDOW_LIMIT_S} probe wait-window >/dev/null")
        self.machine.ask(f"await {WINDOW_LIMIT_S} shows_figures")
        self.rest()

    def start_idle_programs(self, count, megabytes):
        self.say(f"starting {count} programs that hold {megabytes} MB each and do nothing")
        first = self.idle_programs.stop
        for number in range(first, first + count):
            self.machine.ask(f"start_idle {number} {megabytes}", HOST_LIMIT_S)
        self.idle_programs = range(self.idle_programs.start, first + count)

    def end_idle_programs(self):
        for number in self.idle_programs:
            self.machine.ask(f"end_idle {number}", HOST_LIMIT_S)
        self.idle_programs = range(self.idle_programs.stop, self.idle_programs.stop)

    def wake_idle_programs(self):
        """Lets the idle programs read all their memory. Returns the number of wrong words and of all words."""
        wrong = words = 0
        for number in self.idle_programs:
            answer = self.machine.ask(f"wake_idle {number}", HOST_LIMIT_S)
            found = re.search(r"(\d+) wrong words of (\d+)", answer)
            if not found:
                raise MachineError(f"the idle program {number} said '{answer}'")
            wrong, words = wrong + int(found[1]), words + int(found[2])
        return wrong, words

    def set_settings(self, section, **values):
        """Stores settings of the main program. It must not be running."""
        for name, value in values.items():
            self.probe(f'store-setting "{section}\\{name}" {value}')

    def setting(self, section, name):
        return self.probe(f'setting "{section}\\{name}"').strip()

    # Windows, through the probe that runs in the guest.

    def probe(self, question):
        return self.machine.ask(f"probe '{question}'")

    def await_answer(self, question, answer, limit_s):
        """Waits until the answer matches a shell pattern, and returns the guest's time at that moment, in seconds."""
        return self.await_true(f"await_answer {limit_s} '{answer}' {question}")

    def await_available(self, kilobytes, limit_s):
        """Waits until more than this is available, and returns the guest's time at that moment, in seconds."""
        return self.await_true(f"await {limit_s} has_available {kilobytes}")

    def await_true(self, command):
        """Runs a guest command that waits, and returns the guest's time after it, in seconds."""
        return float(self.machine.ask(f"{command} && cat /proc/uptime", HOST_LIMIT_S).split()[0])

    def pause(self, seconds):
        """Lets the guest run for this many seconds of its time."""
        self.machine.ask(f"sleep {seconds}", HOST_LIMIT_S)

    def press(self, control):
        """Moves the pointer to a control of the main window and clicks it."""
        x, y, width, height = map(int, self.probe(f"rect {control}").split())
        self._point_at(x + width // 2, y + height // 2)
        self._press()

    def press_first_row_twice(self, control):
        """Double-clicks the first row of a list, and returns the guest's time at that moment, in seconds."""
        x, y, *_ = map(int, self.probe(f"rect {control}").split())
        self._point_at(x + FIRST_ROW[0], y + FIRST_ROW[1])
        # A single click first: it pages in what the program needs, which could take longer than the double-click time.
        self._press()
        self.rest()
        self._press()
        self.machine.ask("usleep 100000")
        self._press()
        return self.figures().seconds

    def _point_at(self, x, y):
        self.machine.point_at(x, y)
        self.machine.ask("sleep 1")

    def _press(self):
        self.machine.press_button(True)
        self.machine.ask("usleep 100000")
        self.machine.press_button(False)

    def release(self, megabytes):
        """Releases an amount with the button, and returns how many seconds the button was disabled."""
        self.say(f"releasing {megabytes} MB")
        self.probe(f"choose List1 {megabytes} MB")
        self.press("Command1")
        start = self.await_answer("enabled Command1", 0, 20)
        seconds = self.await_answer("enabled Command1", 1, RELEASE_LIMIT_S) - start
        self.rest()
        return seconds

    # The machine.

    def rest(self):
        """Waits until the machine is idle and the window has been refreshed after that."""
        self.machine.ask("await 60 is_at_rest; sleep 2")

    def look(self):
        """Returns the kernel's figures and what the window shows, for the results.

        The window is refreshed every 750 ms. If the two do not agree because memory has moved since then, reads both
        again. If they never agree, returns the last reading.
        """
        for _ in range(MAX_LOOKS):
            seen = self.kernel() | {"caption": self.probe("caption"), "free": self.probe("text lblPercentFree")}
            if abs(shown_kb(seen["caption"]) - seen["available_kb"]) <= AGREEMENT_KB:
                break
            self.pause(1)
        return seen

    def kernel(self):
        """Returns only the kernel's figures, for the results."""
        return dataclasses.asdict(self.figures())

    def figures(self):
        return read_figures(self.machine.ask("figures"))

    def memory_of(self, program):
        """Returns the memory of a program that runs as one process: KB by the kernel's name for each figure."""
        found = re.findall(r"^(\w+):\s+(\d+) kB$", self.machine.ask(f"memory_of {program}"), re.MULTILINE)
        return {name: int(value) for name, value in found}

    def keep_state(self, name):
        """Stores the state of memory, disks and devices, for go_back in this run."""
        self._tell_snapshots(f"savevm {name}")

    def go_back(self, name):
        """Returns the machine to a stored state."""
        self._tell_snapshots(f"loadvm {name}")

    def _tell_snapshots(self, command):
        complaint = self.machine.tell_monitor("human-monitor-command", HOST_LIMIT_S, **{"command-line": command})
        if complaint:
            raise MachineError(f"'{command}' failed: {complaint.strip()}")

    def photograph(self, name):
        file = self.folder / f"{name}.png"
        self.machine.photograph(file)
        return file

    def write(self, name, value):
        """Writes a result as JSON to the folder of the screenshots."""
        (self.folder / f"{name}.json").write_text(json.dumps(value, indent=2) + "\n", encoding="utf-8")


def shown_kb(caption):
    """Returns the figure of the main window's title in KB; -1 if there is none. 1 MB in the title is 1,024,000 bytes."""
    found = re.match(r"([\d.]+) MB ", caption)
    return float(found[1]) * 1000 if found else -1


def make_programs_disk(programs, file):
    """Makes a disk with these programs. It is as large as the one that the stored machine expects."""
    with tempfile.TemporaryDirectory(prefix="qdix-programs.") as folder:
        for program in programs:
            if not program.is_file():
                raise MachineError(f"{program} is missing; build it first")
            shutil.copy(program, folder)
        root_disk.make_disk(folder, file, f"{PROGRAMS_DISK_MB}m")


@contextlib.contextmanager
def switched_on(store, memory_mb, programs, folder, say, **options):
    """Provides a machine with its desktop up, the programs in C:\\QDIX and the probe running. Discards disk changes."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    state = store.state(memory_mb)
    with tempfile.NamedTemporaryFile(prefix="qdix-programs.", suffix=".img") as disk:
        make_programs_disk(programs, pathlib.Path(disk.name))
        say(f"switching on a PC with {memory_mb} MB")
        disks = [(state / "root.qcow2", "qcow2", False), (state / "swap.qcow2", "qcow2", False),
                 (disk.name, "raw", False)]
        with Emulator(*store.boot_files(), memory_mb, disks, stored_memory=state / "memory", **options) as machine:
            machine.ask("use_programs /dev/vdc")
            machine.ask("start_probe")
            yield Pc(machine, folder, say)
