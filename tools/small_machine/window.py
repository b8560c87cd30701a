"""The small machine in a window, to play with; the terminal prints the kernel's figures after each release."""
import time

import pc
from emulator import MachineGone
from report import mb
from scenarios.one_release import IDLE_MB, IDLE_PROGRAMS, RELEASE_MB

POLL_S = 1

INSTRUCTIONS = """
The window is a PC of 1998 with {memory_mb} MB. {count} programs lie idle on it with {idle_mb} MB each; Q-DIX is open.
  Press   "Free Up RAM Now" on the tab of Q-DIX that is open, with {release_mb} MB chosen or any other amount.
  Look    at the title of its window, and at the figures that appear here after each release.
The window of the machine takes the mouse as long as the pointer is in it. Close the window to end.
"""


def look(machine, title):
    now = machine.figures()
    print(f"{title:<22} available {mb(now.available_kb):>8}   idle programs in RAM {mb(now.idle_in_ram_kb):>8}"
          f"   swap file in use {mb(now.swap_used_kb):>8}", flush=True)


def open_window(store, memory_mb, programs, folder, say):
    """Returns when the window is closed, also before everything is open in it."""
    try:
        with pc.switched_on(store, memory_mb, programs, folder, say, window=True) as machine:
            prepare(machine, memory_mb)
            report_releases(machine)
    except MachineGone:
        say("the machine was switched off")


def prepare(machine, memory_mb):
    machine.start_idle_programs(IDLE_PROGRAMS, IDLE_MB[memory_mb])
    machine.start_main_program()
    machine.wake_idle_programs()
    machine.probe(f"choose List1 {RELEASE_MB[memory_mb]} MB")
    print(INSTRUCTIONS.format(memory_mb=memory_mb, count=IDLE_PROGRAMS, idle_mb=IDLE_MB[memory_mb],
                              release_mb=RELEASE_MB[memory_mb]))
    look(machine, "before any release")


def report_releases(machine):
    releases = 0
    while True:
        while machine.probe("enabled Command1") != "0":
            time.sleep(POLL_S)
        while machine.probe("enabled Command1") != "1":
            time.sleep(POLL_S)
        releases += 1
        look(machine, f"after release {releases}")
