"""Plays the release a set time after the start of Q-DIX, while other programs are idle."""

DELAY_S = 30
AMOUNT_MB = 40
IDLE_MB = 10
IDLE_PROGRAMS = 4
# Half of the amount: enough to be sure that it was the release.
GAIN_KB = AMOUNT_MB * 1000 // 2
RELEASE_LIMIT_S = 120


def play(pc, memory_mb):
    pc.set_settings("Startup", StartupTime=DELAY_S, StartupRAM=AMOUNT_MB)
    pc.start_idle_programs(IDLE_PROGRAMS, IDLE_MB)
    started = pc.figures().seconds
    pc.start_main_program()
    pc.wake_idle_programs()
    result = {"memory_mb": memory_mb, "delay_s": DELAY_S, "amount_mb": AMOUNT_MB, "before": pc.look()}
    pc.say("waiting for the release")
    gained = pc.await_available(result["before"]["available_kb"] + GAIN_KB, RELEASE_LIMIT_S)
    result["seconds_after_start"] = gained - started
    pc.rest()
    result["after"] = pc.look()
    result["wrong_words"], _ = pc.wake_idle_programs()
    pc.write("release", result)
    return result
