"""The memory figures of the guest's kernel at one moment, read from /proc."""
import dataclasses
import re

IDLE_PROGRAM = "idle.exe"
HUNGRY_PROGRAM = "hungry.exe"
MAIN_PROGRAM = "QDIX.exe"


@dataclasses.dataclass(frozen=True)
class Figures:
    seconds: float
    total_kb: int
    # As Wine reports it to programs: free memory plus the file cache.
    available_kb: int
    # The kernel's estimate of what a new program could get without paging.
    kernel_available_kb: int
    anonymous_kb: int
    swap_total_kb: int
    swap_used_kb: int
    pages_in: int
    # Only in the swap file. The kernel may keep the swap space of a page that is back in RAM.
    paged_out_kb: int
    pages_out: int
    idle_programs: int
    idle_in_ram_kb: int
    idle_in_swap_kb: int
    main_in_ram_kb: int
    main_in_swap_kb: int
    hungry_kb: int

    @property
    def available_mb(self):
        return self.available_kb / 1024


def read_figures(text):
    """Parses `text`, the output of the guest's command `figures`."""
    lines = text.splitlines()
    machine = {name: int(value) for name, value in re.findall(r"^(\w+):?\s+(\d+)(?: kB)?$", text, re.MULTILINE)}
    programs = {}
    for process, name, value in re.findall(r"^/proc/(\d+)/status:(\w+):\s+(\S+)", text, re.MULTILINE):
        programs.setdefault(process, {})[name] = value

    def memory(program, figure):
        return sum(int(one.get(figure, 0)) for one in programs.values() if one.get("Name") == program)

    return Figures(
        seconds=float(lines[0].split()[0]),
        total_kb=machine["MemTotal"],
        available_kb=machine["MemFree"] + machine["Buffers"] + machine["Cached"],
        kernel_available_kb=machine["MemAvailable"],
        anonymous_kb=machine["AnonPages"],
        swap_total_kb=machine["SwapTotal"],
        swap_used_kb=machine["SwapTotal"] - machine["SwapFree"],
        pages_in=machine["pswpin"],
        paged_out_kb=machine["SwapTotal"] - machine["SwapFree"] - machine["SwapCached"],
        pages_out=machine["pswpout"],
        idle_programs=sum(one.get("Name") == IDLE_PROGRAM for one in programs.values()),
        idle_in_ram_kb=memory(IDLE_PROGRAM, "VmRSS"),
        idle_in_swap_kb=memory(IDLE_PROGRAM, "VmSwap"),
        main_in_ram_kb=memory(MAIN_PROGRAM, "VmRSS"),
        main_in_swap_kb=memory(MAIN_PROGRAM, "VmSwap"),
        hungry_kb=memory(HUNGRY_PROGRAM, "VmRSS") + memory(HUNGRY_PROGRAM, "VmSwap"))
