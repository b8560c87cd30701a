"""The emulated PC: a QEMU process, the shell inside it, its pointer and its screen.

The processor is an emulated Pentium II whose instructions are counted: guest time is 4 ns for each and skips over idle
stretches, so a busy host makes a run longer and its figures no different. KVM is never used: on hosts that are
virtual themselves it is slower than this, and it would give every host figures of its own.
"""
import contextlib
import json
import os
import pathlib
import select
import shutil
import socket
import subprocess
import tempfile
import time

from host import MachineError

QEMU = "qemu-system-i386"
PROCESSOR = "pentium2"
SCREEN = (800, 600)
# The VESA mode for the kernel: the emulated graphics card's number for 800 x 600 in 32 bits.
VESA_MODE = 0x343
POINTER_RANGE = 0x7FFF
KERNEL_ARGUMENTS = ["console=ttyS0", "quiet", "panic=-1", "mitigations=off", "nokaslr", "transparent_hugepage=never",
                    "cryptomgr.notests=1", f"vga=0x{VESA_MODE:x}"]
# A line of the guest's terminal holds 4096 bytes.
LONGEST_COMMAND = 4000


class MachineGone(MachineError):
    """The machine was switched off during a question."""


class LineChannel:
    """Sends and receives lines over a socket. Every wait has a limit."""

    def __init__(self, stream):
        self.stream = stream
        self.waiting = b""

    def send(self, line):
        try:
            self.stream.sendall(line.encode() + b"\n")
        except OSError:
            raise MachineGone("the machine is switched off") from None

    def receive(self, deadline):
        """Returns the next line, or None if the deadline has passed or the other side is gone."""
        while b"\n" not in self.waiting:
            left_s = deadline - time.monotonic()
            if left_s <= 0 or not select.select([self.stream], [], [], left_s)[0]:
                return None
            try:
                arrived = self.stream.recv(65536)
            except ConnectionResetError:
                return None
            if not arrived:
                return None
            self.waiting += arrived
        line, self.waiting = self.waiting.split(b"\n", 1)
        return line.decode("utf-8", "replace").rstrip("\r")


class Emulator:
    """A running machine. Use it in a `with` statement, which ends its process and removes its folder."""

    def __init__(self, kernel, initial_ram_disk, memory_mb, disks, *, stored_memory=None, window=False, counted=True):
        """`disks` are (file, format, keep): a disk that is not kept loses its changes when the machine is switched off.

        `stored_memory` is the file that store_memory() left; the disks must be those of that moment.
        """
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="qdix-machine."))
        self.console = self.folder / "console.txt"
        self.arguments = [
            QEMU, "-name", "Q-DIX small machine", "-nodefaults", "-no-user-config", "-no-reboot",
            "-accel", "tcg,thread=single,tb-size=256", "-cpu", PROCESSOR, "-m", str(memory_mb),
            "-vga", "std", "-device", "virtio-tablet-pci", "-display", "gtk" if window else "none",
            "-chardev", f"file,id=console,path={self.console}", "-serial", "chardev:console",
            "-kernel", str(kernel), "-initrd", str(initial_ram_disk), "-append", " ".join(KERNEL_ARGUMENTS)]
        # Skipping idle time would be too fast for a person who watches.
        if counted and not window:
            self.arguments += ["-icount", "shift=2,sleep=off"]
        for number, (file, disk_format, keep) in enumerate(disks):
            self.arguments += ["-drive", f"file={file},format={disk_format},if=none,id=disk{number},cache=unsafe,"
                               f"discard=unmap,snapshot={'off' if keep else 'on'}",
                               "-device", f"virtio-blk-pci,drive=disk{number}"]
        self.stored_memory = stored_memory
        # In a window it runs all the time. Otherwise it is halted between questions, so the time that the host takes
        # between two questions makes no difference.
        self.halts_between_questions = not window
        self.process = None
        self.agent = None
        self.monitor = None

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        if self.process and self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        for channel in (self.agent, self.monitor):
            if channel:
                channel.stream.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _start(self):
        ours, theirs = zip(*(socket.socketpair() for _ in range(2)))
        agent_fd, monitor_fd = (end.fileno() for end in theirs)
        arguments = self.arguments + [
            "-chardev", f"socket,id=agent,fd={agent_fd}", "-serial", "chardev:agent",
            "-chardev", f"socket,id=monitor,fd={monitor_fd}", "-mon", "chardev=monitor,mode=control"]
        inherited = [agent_fd, monitor_fd]
        stored = None
        if self.stored_memory:
            stored = open(self.stored_memory, "rb")
            inherited.append(stored.fileno())
            arguments += ["-incoming", f"fd:{stored.fileno()}"]
        # QEMU ends with this process in any case. Files that it writes beside its disks go into our folder.
        with open(self.folder / "qemu.txt", "wb") as log:
            self.process = subprocess.Popen(
                ["setpriv", "--pdeathsig", "KILL", *arguments], pass_fds=inherited, stdin=subprocess.DEVNULL,
                stdout=log, stderr=log, env={**os.environ, "TMPDIR": str(self.folder)})
        for end in theirs:
            end.close()
        if stored:
            stored.close()
        self.agent, self.monitor = map(LineChannel, ours)
        if self.monitor.receive(time.monotonic() + 30) is None:
            raise MachineError(f"{QEMU} does not start: {self._last_words()}")
        self.tell_monitor("qmp_capabilities")
        if self.stored_memory:
            self._await_restored(60)
        else:
            self._await_console("session: listening", 180)

    def _last_words(self):
        texts = [file.read_text(errors="replace")[-600:].strip() for file in (self.folder / "qemu.txt", self.console)
                 if file.exists()]
        return " / ".join(text for text in texts if text) or "it said nothing"

    def is_running(self):
        return self.process.poll() is None

    def _has_ended(self):
        """Gives the process a second: its sockets close a moment before it ends."""
        try:
            self.process.wait(timeout=1)
        except subprocess.TimeoutExpired:
            return False
        return True

    def _await_console(self, text, limit_s):
        deadline = time.monotonic() + limit_s
        while text not in (self.console.read_text(errors="replace") if self.console.exists() else ""):
            if not self.is_running():
                raise MachineError(f"the machine switched itself off: {self._last_words()}")
            if time.monotonic() > deadline:
                raise MachineError(f"'{text}' did not come within {limit_s} seconds: {self._last_words()}")
            time.sleep(0.1)

    def _await_restored(self, limit_s):
        deadline = time.monotonic() + limit_s
        while self.tell_monitor("query-status")["status"] == "inmigrate":
            if time.monotonic() > deadline:
                raise MachineError(f"the machine is not restored after {limit_s} seconds: {self._last_words()}")
            time.sleep(0.1)
        # It was halted when its state was stored, so it still is.
        if not self.halts_between_questions:
            self.tell_monitor("cont")

    def tell_monitor(self, command, limit_s=60, **arguments):
        """Sends a command of QEMU's own and returns the answer."""
        self.monitor.send(json.dumps({"execute": command, "arguments": arguments}))
        deadline = time.monotonic() + limit_s
        while True:
            line = self.monitor.receive(deadline)
            if line is None:
                raise MachineError(f"{QEMU} does not answer '{command}': {self._last_words()}")
            answer = json.loads(line)
            if "error" in answer:
                raise MachineError(f"{QEMU} refuses '{command}': {answer['error']['desc']}")
            if "return" in answer:
                return answer["return"]

    @contextlib.contextmanager
    def _running(self):
        if self.halts_between_questions:
            self.tell_monitor("cont")
        yield
        if self.halts_between_questions:
            self.tell_monitor("stop")

    def ask(self, command, limit_s=300):
        """Runs a command in the shell of the guest and returns its output; a status other than 0 is an error.

        The limit is one of the host's time.
        """
        if len(command) > LONGEST_COMMAND or "\n" in command:
            raise ValueError(f"a command for the guest is one line of at most {LONGEST_COMMAND} characters")
        with self._running():
            status, output = self._answer(command, limit_s)
        if status != 0:
            raise MachineError(f"'{command}' ended with {status} in the guest: {output.strip()[-800:]}")
        return output

    def _answer(self, command, limit_s):
        self.agent.send(command)
        deadline = time.monotonic() + limit_s
        lines = []
        while True:
            line = self.agent.receive(deadline)
            if line is None:
                if self._has_ended():
                    raise MachineGone(f"the machine is switched off: {self._last_words()}")
                raise MachineError(f"the guest did not finish '{command}' within {limit_s} seconds: "
                                   f"{self._last_words()}")
            # The output may end without a new line.
            before, mark, status = line.rpartition("=== ")
            if mark and status.isdigit():
                return int(status), "\n".join(lines + ([before] if before else []))
            lines.append(line)

    def store_memory(self, file):
        """Halts the machine for good and writes its memory and devices to a file. They belong to its kept disks."""
        self.tell_monitor("stop")
        self.tell_monitor("migrate-set-parameters", **{"max-bandwidth": 1 << 34})
        self.tell_monitor("migrate", uri=f"exec:cat >'{file}'")
        deadline = time.monotonic() + 120
        while (state := self.tell_monitor("query-migrate")).get("status") != "completed":
            if state.get("status") == "failed" or time.monotonic() > deadline:
                raise MachineError(f"the machine's memory could not be stored: {self._last_words()}")
            time.sleep(0.1)
        self.tell_monitor("quit")
        self.process.wait(timeout=60)

    def switch_off(self, limit_s=60):
        """Has the guest write everything to its disks and switch off."""
        self.agent.send("sync; poweroff -f")
        if self.halts_between_questions:
            self.tell_monitor("cont")
        try:
            self.process.wait(timeout=limit_s)
        except subprocess.TimeoutExpired:
            raise MachineError(f"the machine is still on after {limit_s} seconds: {self._last_words()}") from None

    def point_at(self, x, y):
        """Moves the pointer to a place on the screen, in pixels."""
        places = zip("xy", (x, y), SCREEN)
        self._send_input([{"type": "abs", "data": {"axis": axis, "value": place * POINTER_RANGE // (size - 1)}}
                          for axis, place, size in places])

    def press_button(self, down, button="left"):
        self._send_input([{"type": "btn", "data": {"down": down, "button": button}}])

    def _send_input(self, events):
        # A halted machine takes no input.
        with self._running():
            self.tell_monitor("input-send-event", events=events)

    def photograph(self, file):
        """Writes the screen as a PNG file, or no file if it fails."""
        unfinished = self.folder / "screen.png"
        self.tell_monitor("screendump", filename=str(unfinished), format="png")
        shutil.copyfile(unfinished, f"{file}.new")
        os.replace(f"{file}.new", file)
