"""Plays an hour of automatic releases, with a program that repeatedly starts, takes most of the memory, and ends."""

ROUNDS = 12
PAUSE_S = 150
INTERVAL_S = 20
THRESHOLD_MB = 24
AMOUNT_MB = 32
HUNGRY_MB = 48


def play(pc, memory_mb):
    pc.set_settings("Startup", StartupTime=0)
    pc.set_settings("Settings", AutoActive=1, AutoSecs=INTERVAL_S, MinRAM=THRESHOLD_MB, AutoQuondix=AMOUNT_MB,
                    CPUAutoActive=0)
    pc.start_main_program()
    pc.probe("open-tab 1")
    started = pc.figures().seconds
    result = {"memory_mb": memory_mb, "rounds": ROUNDS, "wrong_words": 0, "committed_bytes": []}
    for number in range(ROUNDS):
        pc.say(f"round {number + 1} of {ROUNDS}")
        pc.start_idle_programs(1, HUNGRY_MB)
        pc.pause(PAUSE_S)
        result["wrong_words"] += pc.wake_idle_programs()[0]
        pc.end_idle_programs()
        pc.pause(PAUSE_S)
        result["committed_bytes"].append(int(pc.probe("committed")))
    result["seconds"] = pc.figures().seconds - started
    result["end"] = pc.look() | {"counter": pc.probe("text lblCounter")}
    pc.write("release", result)
    return result
