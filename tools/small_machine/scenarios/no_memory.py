"""Plays a release while the swap file is full and the system promises hardly any more memory."""

AMOUNT_MB = 40
# Memory of all programs together. With this much, a release fills the swap file except for a few MB. With 9 MB more, the
# release's block does not fit beside the file cache, and the kernel reads files without end.
FULL_KB = 185_500
# Left for the message box and the shell.
LEFT_KB = 12000


def play(pc, memory_mb):
    pc.set_settings("Startup", StartupTime=0)
    pc.start_main_program()
    now = pc.figures()
    missing_kb = FULL_KB - now.anonymous_kb - now.paged_out_kb
    pc.start_idle_programs(1, missing_kb // 1024)
    # This release fills the rest of the swap file.
    pc.release(AMOUNT_MB)
    result = {"memory_mb": memory_mb, "before": pc.look()}
    pc.machine.ask(f"refuse_overcommit {LEFT_KB}")
    pc.say("pressing the button")
    pc.press("Command1")
    result["box"] = pc.machine.ask("await 60 answer_box").strip()
    pc.await_answer("enabled Command1", 1, 60)
    pc.rest()
    result["after"] = pc.look()
    result["later_boxes"] = pc.probe("answer-boxes").strip()
    pc.machine.ask("allow_overcommit")
    result["wrong_words"], _ = pc.wake_idle_programs()
    pc.end_idle_programs()
    pc.say("releasing again, with memory to be had")
    result["seconds_later"] = pc.release(AMOUNT_MB)
    pc.write("release", result)
    return result
