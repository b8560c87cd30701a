"""Q-DIX releases half of the memory and starts a program that needs much of it at once."""

IDLE_MB = 10
IDLE_PROGRAMS = 4
NEEDED_MB = 48
# Stored numbers of "50% of My Total RAM" and of "Don't Free Up Any RAM".
HALF = 2
NOTHING = 4
LAUNCHER_TAB = 4
# Of automatic releases until now; those of a launch are none.
COUNTER = 7
START_LIMIT_S = 120
MEMORY_LIMIT_S = 300


def play(pc, memory_mb):
    return launch(pc, memory_mb, HALF)


def launch(pc, memory_mb, share):
    pc.set_settings("Startup", StartupTime=0)
    pc.set_settings("Settings", **{"Launcher RAM": share, "CounterValue": COUNTER})
    pc.machine.ask(f"list_program Hungry 'hungry.exe {NEEDED_MB} hungry.txt' 'C:\\QDIX'")
    pc.start_idle_programs(IDLE_PROGRAMS, IDLE_MB)
    pc.start_main_program()
    pc.probe(f"open-tab {LAUNCHER_TAB}")
    pc.wake_idle_programs()
    pc.rest()
    result = {"memory_mb": memory_mb, "needed_mb": NEEDED_MB, "counter_before": COUNTER, "before": pc.look()}

    pc.say(f"launching a program that needs {NEEDED_MB} MB")
    pressed_at = pc.press_first_row_twice("List5")
    started_at = pc.await_true(f"await {START_LIMIT_S} is_running hungry.exe")
    result["at_start"] = pc.kernel()
    filled_at = pc.await_true(f"await {MEMORY_LIMIT_S} grep -qs holds $programs/hungry.txt")
    result["seconds_until_start"] = started_at - pressed_at
    result["seconds_until_memory"] = filled_at - pressed_at
    pc.await_true(f"await {MEMORY_LIMIT_S} grep -q wrong $programs/hungry.txt")
    result["hungry"] = pc.machine.ask("cat $programs/hungry.txt").split("\n")
    result["after"] = pc.look()
    result["counter"] = pc.setting("Settings", "CounterValue")
    result["wrong_words"], _ = pc.wake_idle_programs()
    pc.write("release", result)
    pc.say(f"the program had its memory {result['seconds_until_memory']:.1f} seconds after the press, "
           f"{result['seconds_until_start']:.1f} of them before its start")
    return result
