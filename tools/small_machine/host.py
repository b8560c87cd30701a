"""The requirements of the small machine on its host, and the error that names what is missing or failed."""
import shutil
import subprocess

NEEDED_PROGRAMS = {"qemu-system-i386": "qemu-system-x86", "qemu-img": "qemu-utils", "mke2fs": "e2fsprogs",
                   "dpkg-deb": "dpkg", "setpriv": "util-linux"}


class MachineError(Exception):
    """The machine cannot be made, or a request to it failed. The text is for the user."""


def check_programs():
    for program, package in NEEDED_PROGRAMS.items():
        if not shutil.which(program):
            raise MachineError(f"{program} is missing; install the package {package}")


def check_room(folder, needed_mb):
    free_mb = shutil.disk_usage(folder).free >> 20
    if free_mb < needed_mb:
        raise MachineError(f"{folder} has {free_mb} MB free; making the small machine needs {needed_mb} MB")


def run(command, failure):
    """Runs a program of the host and returns its output. Raises MachineError with `failure` and the program's message."""
    done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, text=True, check=False)
    if done.returncode:
        raise MachineError(f"{failure}: {(done.stderr or done.stdout).strip()[-800:]}")
    return done.stdout
