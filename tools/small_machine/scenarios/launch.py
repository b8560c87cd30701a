"""Lets Q-DIX start a program that needs much memory at once, with and without a release before it, from one state."""

IDLE_MB = 10
IDLE_PROGRAMS = 4
NEEDED_MB = 48
# The option buttons "50% of My Total RAM" and "Don't Free Up Any RAM".
CHOICES = {"released": "Option8", "plain": "Option6"}
LAUNCHER_TAB = 4
# The number of automatic releases so far. A release before a launch is not one of them.
COUNTER = 7
START_LIMIT_S = 120
MEMORY_LIMIT_S = 300


def play(pc, memory_mb):
    pc.set_settings("Startup", StartupTime=0)
    pc.set_settings("Settings", CounterValue=COUNTER)
    pc.machine.ask(f"add_to_launcher Hungry 'hungry.exe {NEEDED_MB} hungry.txt' 'C:\\QDIX'")
    pc.start_idle_programs(IDLE_PROGRAMS, IDLE_MB)
    pc.start_main_program()
    pc.probe(f"open-tab {LAUNCHER_TAB}")
    pc.wake_idle_programs()
    pc.rest()
    pc.keep_state("before")
    result = {"memory_mb": memory_mb, "needed_mb": NEEDED_MB, "counter_before": COUNTER}
    for name, option in CHOICES.items():
        pc.go_back("before")
        result[name] = launch(pc, option)
    pc.write("release", result)
    return result


def launch(pc, option):
    pc.press(option)
    pc.rest()
    run = {"before": pc.look()}
    pc.say(f"launching a program that needs {NEEDED_MB} MB")
    pressed_at = pc.press_first_row_twice("List5")
    started_at = pc.await_true(f"await {START_LIMIT_S} is_running hungry.exe")
    run["at_start"] = pc.kernel()
    filled_at = pc.await_true(f"await {MEMORY_LIMIT_S} grep -qs holds $programs/hungry.txt")
    run["seconds_until_start"] = started_at - pressed_at
    run["seconds_until_memory"] = filled_at - pressed_at
    pc.await_true(f"await {MEMORY_LIMIT_S} grep -q wrong $programs/hungry.txt")
    run["hungry"] = pc.machine.ask("cat $programs/hungry.txt").split("\n")
    run["after"] = pc.look()
    run["counter"] = pc.setting("Settings", "CounterValue")
    run["wrong_words"], _ = pc.wake_idle_programs()
    pc.say(f"the program had its memory {run['seconds_until_memory']:.1f} seconds after the press, "
           f"{run['seconds_until_start']:.1f} of them before its start")
    return run
