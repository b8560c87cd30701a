"""A release while the system has promised nearly all the memory it has and refuses more."""

AMOUNT_MB = 40
IDLE_MB = 20
IDLE_PROGRAMS = 3
# For message box and shell.
LEFT_KB = 12000


def play(pc, memory_mb):
    pc.set_settings("Startup", StartupTime=0)
    pc.start_idle_programs(IDLE_PROGRAMS, IDLE_MB)
    pc.start_main_program()
    pc.probe(f"choose List1 {AMOUNT_MB} MB")
    pc.rest()
    result = {"memory_mb": memory_mb, "before": pc.look()}
    pc.machine.ask(f"refuse_overcommit {LEFT_KB}")
    pc.say("pressing the button")
    pc.press("Command1")
    result["box"] = pc.machine.ask("await 60 answer_box").strip()
    pc.await_answer("enabled Command1", 1, 60)
    pc.machine.ask("allow_overcommit")
    pc.rest()
    result["after"] = pc.look()
    result["wrong_words"], _ = pc.wake_idle_programs()
    pc.say("releasing again, with memory to be had")
    result["seconds_later"] = pc.release(AMOUNT_MB)
    pc.write("release", result)
    return result
