"""Plays one release with the button while other programs are idle, and a second one directly after it."""
# An amount from the program's list, about half of the memory that the machine has for programs. Four idle programs leave
# little of that memory.
RELEASE_MB = {64: 24, 96: 40, 128: 56}
IDLE_MB = {64: 4, 96: 10, 128: 18}
IDLE_PROGRAMS = 4


def play(pc, memory_mb):
    # Off: the release after the start would interfere.
    pc.set_settings("Startup", StartupTime=0)
    pc.start_idle_programs(IDLE_PROGRAMS, IDLE_MB[memory_mb])
    pc.start_main_program()
    pc.say("the idle programs read their memory")
    pc.wake_idle_programs()
    pc.rest()
    result = {"memory_mb": memory_mb, "release_mb": RELEASE_MB[memory_mb], "idle_mb": IDLE_MB[memory_mb]}

    result["before"] = pc.look()
    pc.photograph("before")
    result["release_seconds"] = pc.release(RELEASE_MB[memory_mb])
    result["after"] = pc.look()
    pc.photograph("after")
    result["again_seconds"] = pc.release(RELEASE_MB[memory_mb])
    result["after_again"] = pc.look()

    pc.say("the idle programs read their memory again")
    result["wrong_words"], result["words"] = pc.wake_idle_programs()
    pc.probe("close")
    pc.write("release", result)
    return result
