"""Makes the small machine and keeps it between runs.

In the cache folder, one folder for each state of what it is made from:
    kernel, initrd.gz, root.img              the machine as it is switched on, with Wine's prefix
    96-.../root.qcow2, swap.qcow2, memory    a machine of 96 MB at the moment when its desktop is up
The programs under test are no part of it: each run brings them on a disk of their own.
"""
import contextlib
import fcntl
import hashlib
import os
import pathlib
import shutil
import time

import root_disk
from emulator import Emulator
from host import MachineError, check_programs, check_room, run

TOOLS = pathlib.Path(__file__).resolve().parent
WINE_TOOLS = TOOLS.parent / "wine"
# The root disk is made from the first files. A stored boot state also depends on the others.
DISK_INPUTS = [TOOLS / "root_disk.py", TOOLS / "get_packages.sh", *sorted((TOOLS / "guest").iterdir()),
               WINE_TOOLS / "win98.reg", WINE_TOOLS / "font_metrics.sh"]
STATE_INPUTS = [TOOLS / "emulator.py", TOOLS / "store.py"]
NEEDED_ROOM_MB = 3000
LOCK_LIMIT_S = 1800
UNUSED_FOR_S = 24 * 3600
PREFIX_MEMORY_MB = 640
PREFIX_LIMIT_S = 900
# Little more than what is used: while more than half is used, the kernel frees a page's slot when the page is read
# again, so the used part of the disk is the memory that is swapped out.
SWAP_DISK = "176M"
PROGRAMS_DISK_MB = 24


class Store:
    def __init__(self, cache, wine_root, say):
        """`say` gets a line of text for each step."""
        self.cache = cache
        self.wine_root = wine_root
        self.say = say
        self.packages = cache / f"small-machine-packages-{digest([TOOLS / 'get_packages.sh'])}"
        identity = f"{wine_root} {(wine_root / 'proved').stat().st_mtime_ns}"
        self.folder = cache / f"small-machine-{digest(DISK_INPUTS, identity)}"

    def provide(self, sizes_mb):
        """Makes the missing parts of the machine, with a stored boot state for each of these memory sizes."""
        if not self._is_complete(sizes_mb):
            with self._lock():
                self._remove_remains()
                self._make(sizes_mb)
        # Marks the folders as used, so that they are not removed as unused.
        for folder in (self.folder, *map(self.state, sizes_mb)):
            os.utime(folder)

    def state(self, memory_mb):
        return self.folder / f"{memory_mb}-{digest(STATE_INPUTS)}"

    def boot_files(self):
        return self.folder / "kernel", self.folder / "initrd.gz"

    def _is_complete(self, sizes_mb):
        return self.folder.is_dir() and all(self.state(size).is_dir() for size in sizes_mb)

    def _make(self, sizes_mb):
        if self._is_complete(sizes_mb):
            return
        check_programs()
        check_room(self.cache, NEEDED_ROOM_MB)
        if not self.packages.is_dir():
            self.say("downloading the packages of the small machine (62 MB)")
            run([TOOLS / "get_packages.sh", self.packages], "the packages could not be downloaded")
        if not self.folder.is_dir():
            with complete_or_nothing(self.folder) as folder:
                self.say("making the disk of the small machine")
                root_disk.make_boot_files(self.packages, self.wine_root, folder)
                self.say("installing Windows on it")
                make_prefix(folder)
        for size in sizes_mb:
            if not self.state(size).is_dir():
                self.say(f"starting it once with {size} MB, to keep that state")
                with complete_or_nothing(self.state(size)) as folder:
                    store_boot_state(self.folder, folder, size)

    def _remove_remains(self):
        """Removes what killed set-ups left, and machines that have not been used for a day. The caller holds the lock."""
        for folder in [*self.cache.glob("small-machine-*"), *self.folder.glob("*-*")]:
            is_old = time.time() - folder.stat().st_mtime > UNUSED_FOR_S and folder not in (self.folder, self.packages)
            if "." in folder.name or is_old:
                shutil.rmtree(folder, ignore_errors=True)

    @contextlib.contextmanager
    def _lock(self):
        self.cache.mkdir(parents=True, exist_ok=True)
        with open(self.cache / "small-machine.lock", "w", encoding="ascii") as file:
            deadline = time.monotonic() + LOCK_LIMIT_S
            waits = False
            while True:
                try:
                    fcntl.flock(file, fcntl.LOCK_EX | fcntl.LOCK_NB)
                    break
                except BlockingIOError:
                    if time.monotonic() > deadline:
                        raise MachineError("another set-up of the small machine has held the lock for half an hour"
                                           ) from None
                if not waits:
                    self.say("waiting for another set-up of the small machine to end")
                waits = True
                time.sleep(1)
            yield


def digest(files, text=""):
    """Returns sixteen digits that change whenever a file or the text does."""
    whole = hashlib.sha256(text.encode())
    for file in files:
        whole.update(f"{file.name} {file.stat().st_size}\n".encode())
        whole.update(file.read_bytes())
    return whole.hexdigest()[:16]


@contextlib.contextmanager
def complete_or_nothing(folder):
    """Makes a folder that gets its name when its contents are complete, and is removed if something fails."""
    unfinished = folder.with_name(folder.name + ".new")
    shutil.rmtree(unfinished, ignore_errors=True)
    unfinished.mkdir(parents=True)
    try:
        yield unfinished
        unfinished.rename(folder)
    except BaseException:
        shutil.rmtree(unfinished, ignore_errors=True)
        raise


def make_prefix(folder):
    """Starts the machine with plenty of memory and the host's clock, and has Wine make its prefix."""
    with Emulator(folder / "kernel", folder / "initrd.gz", PREFIX_MEMORY_MB, [(folder / "root.img", "raw", True)],
                  counted=False) as machine:
        machine.ask("make_prefix", PREFIX_LIMIT_S)
        machine.switch_off()


def store_boot_state(boot, folder, memory_mb):
    """Boots the machine to its desktop and stores its disks and memory in `folder`."""
    root, swap, programs = folder / "root.qcow2", folder / "swap.qcow2", folder / "programs.img"
    create = ["qemu-img", "create", "-q", "-f", "qcow2"]
    failure = "a disk of the small machine could not be made"
    run([*create, "-F", "raw", "-b", "../root.img", root], failure)
    run([*create, swap, SWAP_DISK], failure)
    with open(programs, "wb") as file:
        file.truncate(PROGRAMS_DISK_MB << 20)
    with Emulator(boot / "kernel", boot / "initrd.gz", memory_mb,
                  [(root, "qcow2", True), (swap, "qcow2", True), (programs, "raw", True)]) as machine:
        machine.ask("use_swap /dev/vdb")
        machine.ask("start_screen")
        machine.ask("start_desktop")
        machine.store_memory(folder / "memory")
    programs.unlink()
