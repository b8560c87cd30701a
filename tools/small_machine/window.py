"""Shows the small machine in a window to try out. The terminal prints the kernel's figures after each release."""
import time

import pc
from emulator import MachineGone
from report import mb
from scenarios.one_release import IDLE_MB, IDLE_PROGRAMS, RELEASE_MB

POLL_S = 1

INSTRUCTIONS = """
The window shows a PC of 1998 with {memory_mb} MB. {count} idle programs hold {idle_mb} MB each, and Q-DIX is open.
  Press   "Free Up RAM Now" on the open tab of Q-DIX. {release_mb} MB are selected; you can choose another amount.
  Watch   the title of the Q-DIX window, and the figures that appear here after each release.
The PC uses the mouse while the pointer is in its window. Close the window to switch the PC off.
"""


def look(machine, title):
    now = machine.figures()
    print(f"{title:<22} available {mb(now.available_kb):>8}   idle programs in RAM {mb(now.idle_in_ram_kb):>8}"
          f"   swap file in use {mb(now.swap_used_kb):>8}", flush=True)


def open_window(store, memory_mb, programs, folder, say):
    """Opens the window and returns when it is closed, even if that happens during preparation."""
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
