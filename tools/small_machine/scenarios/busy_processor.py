"""Plays the automatic release on a busy processor: it waits while the processor is busy and follows when it is idle."""

INTERVAL_S = 10
THRESHOLD_MB = 24
AMOUNT_MB = 32
HUNGRY_MB = 48
LOAD_LIMIT_PERCENT = 50
RELEASE_LIMIT_S = 120


def play(pc, memory_mb):
    pc.set_settings("Startup", StartupTime=0)
    pc.set_settings("Settings", AutoActive=1, AutoSecs=INTERVAL_S, MinRAM=THRESHOLD_MB, AutoQuondix=AMOUNT_MB,
                    CPUAutoActive=1, AutoCPU=LOAD_LIMIT_PERCENT)
    pc.start_main_program()
    pc.probe("open-tab 1")
    pc.say("keeping the processor busy")
    pc.machine.ask("start_work")
    # Wine has no load statistics: the probe supplies the machine's own load.
    pc.start("qdix_probe.exe", "feed-load")
    pc.await_answer("text lblUSAGE", "100 %", 120)
    pc.start_idle_programs(1, HUNGRY_MB)
    result = {"memory_mb": memory_mb, "interval_s": INTERVAL_S, "threshold_mb": THRESHOLD_MB}
    pc.pause(4 * INTERVAL_S)
    result["busy"] = pc.look() | {"counter": pc.probe("text lblCounter"), "load": pc.probe("text lblUSAGE")}
    pc.machine.ask("stop_work")
    pc.say("the processor is idle again")
    idle_at = pc.figures().seconds
    counted_at = pc.await_answer("text lblCounter", "*released RAM 1 times*", RELEASE_LIMIT_S)
    result["seconds_until_release"] = counted_at - idle_at
    pc.write("release", result)
    return result
