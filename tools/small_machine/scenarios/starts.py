"""Measures how long the main program and notepad take from their start to their window."""

ROUNDS = 7
PROGRAMS = {"QDIX.exe": r"QDIXMain C:\QDIX\QDIX.exe", "notepad.exe": r"Notepad C:\windows\notepad.exe",
            "other.exe": r"Notepad C:\other.exe"}


def play(pc, memory_mb):
    pc.set_settings("Machine", HasRun=1)
    pc.machine.ask("make_other_notepad")
    milliseconds = {name: [] for name in PROGRAMS}
    # The first round is not counted: it reads the programs from the disk.
    for number in range(ROUNDS + 1):
        pc.say(f"round {number} of {ROUNDS}")
        for name, arguments in PROGRAMS.items():
            pc.rest()
            milliseconds[name].append(float(pc.probe(f"time-start {arguments}")))
    result = {"memory_mb": memory_mb, "start_ms": {name: series[1:] for name, series in milliseconds.items()}}
    pc.write("starts", result)
    return result
