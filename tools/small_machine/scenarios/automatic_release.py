"""Plays the automatic release: a program takes memory until less than the threshold is left, and Q-DIX releases."""

INTERVAL_S = 20
THRESHOLD_MB = 24
AMOUNT_MB = 32
HUNGRY_MB = 48
RELEASE_LIMIT_S = 120


def play(pc, memory_mb):
    pc.set_settings("Startup", StartupTime=0)
    pc.set_settings("Settings", AutoActive=1, AutoSecs=INTERVAL_S, MinRAM=THRESHOLD_MB, AutoQuondix=AMOUNT_MB,
                    CPUAutoActive=0)
    pc.start_main_program()
    pc.probe("open-tab 1")
    result = {"memory_mb": memory_mb, "interval_s": INTERVAL_S, "threshold_mb": THRESHOLD_MB, "amount_mb": AMOUNT_MB}

    pc.say("two intervals pass while there is enough memory")
    pc.pause(2 * INTERVAL_S)
    result["enough"] = pc.look() | {"counter": pc.probe("text lblCounter")}

    pc.start_idle_programs(1, HUNGRY_MB)
    result["low"] = pc.look()
    pc.say("waiting for the release")
    result["counted_at"] = pc.await_answer("text lblCounter", "*released RAM 1 times*", RELEASE_LIMIT_S)
    pc.rest()
    result["after"] = pc.look()

    pc.say("two intervals pass while there is enough memory again")
    pc.pause(2 * INTERVAL_S)
    result["later"] = pc.look() | {"counter": pc.probe("text lblCounter")}
    result["stored_counter"] = pc.setting("Settings", "CounterValue")
    result["wrong_words"], _ = pc.wake_idle_programs()
    pc.write("release", result)
    return result
