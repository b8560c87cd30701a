"""Compares a release with a bare loop of the same size, and the idle program with notepad, each from one stored state."""
from scenarios.one_release import IDLE_MB, IDLE_PROGRAMS, RELEASE_MB

ROUNDS = 3
# A megabyte as the amounts to free count it. A release takes one byte more than the amount.
BYTES_PER_MB = 1040000
# Of one release: half of them before it frees its memory, half after.
PUMPS = 10000


def at_rest(pc, name, command):
    """Starts a program and waits until it is idle. Returns its memory, and the kernel's figures before and after."""
    pc.go_back("desktop")
    before = pc.kernel()
    pc.say(f"starting {name}")
    command()
    pc.machine.ask(f"await 60 is_running {name}")
    pc.pause(5)
    pc.rest()
    after = pc.kernel()
    return pc.memory_of(name) | {"before": before, "after": after}


def play(pc, memory_mb):
    pc.keep_state("desktop")
    result = {"memory_mb": memory_mb, "release_mb": RELEASE_MB[memory_mb], "idle_mb": IDLE_MB[memory_mb],
              "idle_programs": IDLE_PROGRAMS, "pumps": PUMPS, "rounds": []}
    result["at_rest"] = {
        "QDIX.exe": at_rest(pc, "QDIX.exe", pc.start_main_program),
        "notepad.exe": at_rest(pc, "notepad.exe", lambda: pc.machine.ask("start_notepad")),
        "other.exe": at_rest(pc, "other.exe", lambda: pc.machine.ask("start_other_notepad"))}

    pc.go_back("desktop")
    pc.set_settings("Startup", StartupTime=0)
    pc.start_idle_programs(IDLE_PROGRAMS, IDLE_MB[memory_mb])
    pc.start_main_program()
    pc.probe(f"choose List1 {RELEASE_MB[memory_mb]} MB")
    pc.wake_idle_programs()
    pc.rest()
    # Reading the figures moves pages, so it happens before the state is stored.
    result["before"] = pc.look()
    pc.keep_state("before")
    size = RELEASE_MB[memory_mb] * BYTES_PER_MB + 1
    steps = {"release": "time-press Command1", "loop": f"time-loop {size} 0", "pumps": f"time-pumps {PUMPS}",
             "window_pumps": f"time-pumps {PUMPS} window",
             "pumping_loop": f"time-loop {size} {PUMPS // 2}"}
    for number in range(ROUNDS):
        pc.say(f"round {number + 1} of {ROUNDS}")
        result["rounds"].append({name: timed(pc, question) for name, question in steps.items()})
    pc.write("release", result)
    return result


def timed(pc, question):
    """Returns the milliseconds of a step, and the figures once the machine is idle after it."""
    pc.go_back("before")
    milliseconds = float(pc.probe(question))
    pc.rest()
    return {"ms": milliseconds, "after": pc.kernel()}
