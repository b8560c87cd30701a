"""Plays the release every five minutes, while other programs are idle."""

INTERVAL_MINUTES = 5
AMOUNT_MB = 40
IDLE_MB = 10
IDLE_PROGRAMS = 4
GAIN_KB = AMOUNT_MB * 1000 // 2
RELEASE_LIMIT_S = (INTERVAL_MINUTES + 2) * 60


def play(pc, memory_mb):
    pc.set_settings("Startup", StartupTime=0, TimeMinutes=INTERVAL_MINUTES)
    pc.set_settings("Settings", TimeActive=1, TimeUnit=1, TimeQuondix=AMOUNT_MB, CPUTimeActive=0)
    pc.start_idle_programs(IDLE_PROGRAMS, IDLE_MB)
    started = pc.figures().seconds
    pc.start_main_program()
    pc.probe("open-tab 2")
    pc.wake_idle_programs()
    result = {"memory_mb": memory_mb, "interval_s": INTERVAL_MINUTES * 60, "amount_mb": AMOUNT_MB,
              "before": pc.look(), "due_before": pc.probe("text lblNextRelease")}
    pc.say(f"waiting for {INTERVAL_MINUTES} minutes of the machine's time")
    gained = pc.await_available(result["before"]["available_kb"] + GAIN_KB, RELEASE_LIMIT_S)
    result["seconds_after_start"] = gained - started
    pc.rest()
    result["after"], result["due_after"] = pc.look(), pc.probe("text lblNextRelease")
    result["wrong_words"], _ = pc.wake_idle_programs()
    pc.write("release", result)
    return result
