"""Q-DIX starts a program that needs much memory at once, and releases nothing before it."""
from scenarios.launch_with_release import NOTHING, launch


def play(pc, memory_mb):
    return launch(pc, memory_mb, NOTHING)
