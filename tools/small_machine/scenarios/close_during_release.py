"""Closes Q-DIX in the middle of a long release while the machine is paging."""

AMOUNT_MB = 56
# Passes: enough that the release is far from over when the window is closed.
TRY_TIMES = 50
IDLE_MB = 10
IDLE_PROGRAMS = 4
CLOSE_LIMIT_S = 60


def play(pc, memory_mb):
    pc.set_settings("Startup", StartupTime=0)
    pc.set_settings("Settings", TryTimes=TRY_TIMES)
    pc.photograph("without")
    pc.start_idle_programs(IDLE_PROGRAMS, IDLE_MB)
    pc.start_main_program()
    pc.wake_idle_programs()
    pc.photograph("before")
    result = {"memory_mb": memory_mb, "amount_mb": AMOUNT_MB, "before": pc.look()}
    pc.probe(f"choose List1 {AMOUNT_MB} MB")
    pc.press("Command1")
    pc.await_answer("enabled Command1", 0, 20)
    pc.await_true(f"await 60 pages_out {result['before']['pages_out'] + 1000}")
    pc.say("closing the window")
    result["enabled"] = pc.probe("enabled Command1")
    closed_at = pc.figures().seconds
    pc.probe("begin-close")
    result["seconds_to_end"] = pc.await_true(f"await {CLOSE_LIMIT_S} is_gone QDIX.exe") - closed_at
    pc.rest()
    result["after"] = pc.kernel()
    pc.photograph("after")
    result["wrong_words"], _ = pc.wake_idle_programs()
    pc.write("release", result)
    return result
