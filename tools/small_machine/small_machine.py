"""The command line of the small machine. small_machine.sh starts it and documents the arguments."""
import argparse
import importlib
import pathlib
import signal
import sys
import time

import pc
import report
import window
from host import MachineError
from store import Store

SIZES_MB = (64, 96, 128)
USUAL_SIZE_MB = 96
CHECKOUT = pathlib.Path(__file__).resolve().parents[2]
SHIPPED = [CHECKOUT / "build/win9x" / name for name in ("QDIX.exe", "help.exe", "undo.exe", "configL.exe")]
HELPERS = [CHECKOUT / "build/win9x-tests" / name for name in ("qdix_probe.exe", "idle.exe", "hungry.exe")]
PROGRAMS = [*SHIPPED, *HELPERS, CHECKOUT / "tools/small_machine/commands.sh"]
SCENARIOS = sorted(file.stem for file in (pathlib.Path(__file__).parent / "scenarios").glob("*.py"))


def size_mb(text):
    if not text.isdigit() or int(text) not in SIZES_MB:
        raise argparse.ArgumentTypeError(f"'{text}' is none of {', '.join(map(str, SIZES_MB))} MB")
    return int(text)


class Progress:
    """Prints progress messages with the seconds since the start."""

    def __init__(self):
        self.start = time.monotonic()

    def __call__(self, text):
        print(f"small machine: {time.monotonic() - self.start:4.0f} s  {text}", flush=True)


def play_scenario(store, name, memory_mb, folder, say):
    """Plays a scenario and returns its result. Its files are then in `folder`."""
    scenario = importlib.import_module(f"scenarios.{name}")
    with pc.switched_on(store, memory_mb, PROGRAMS, folder, say) as machine:
        return scenario.play(machine, memory_mb)


def show(store, memory_mb, say):
    """Plays one release and prints its report. Returns false if it gained no memory or damaged any."""
    folder = CHECKOUT / "build/small_machine/show"
    result = play_scenario(store, "one_release", memory_mb, folder, say)
    pictures = [(folder / name).relative_to(CHECKOUT) for name in ("before.png", "after.png")]
    print(f"\n{report.report(result, pictures)}")
    return report.is_gain(result) and result["wrong_words"] == 0


def perform(store, arguments, say):
    """Executes the command and returns the exit code."""
    if arguments.command == "make":
        store.provide(arguments.memory_mb or [USUAL_SIZE_MB])
        say(f"ready in {store.folder}")
        return 0
    store.provide([arguments.memory_mb])
    if arguments.command == "show":
        return 0 if show(store, arguments.memory_mb, say) else 1
    if arguments.command == "window":
        window.open_window(store, arguments.memory_mb, PROGRAMS, CHECKOUT / "build/small_machine/window", say)
        return 0
    play_scenario(store, arguments.scenario, arguments.memory_mb, arguments.folder, say)
    say(f"results are in {arguments.folder}")
    return 0


def end_once_on_signals():
    """Makes a signal end the program as an error does, with clean-up. Further signals do not disturb the clean-up."""
    ends = (signal.SIGHUP, signal.SIGINT, signal.SIGTERM)

    def end(received, _):
        for number in ends:
            signal.signal(number, signal.SIG_IGN)
        sys.exit(128 + received)

    for number in ends:
        # A signal that was ignored at the start, as in a background command, stays ignored.
        if signal.getsignal(number) != signal.SIG_IGN:
            signal.signal(number, end)


def main():
    parser = argparse.ArgumentParser(prog="small_machine.sh")
    parser.add_argument("--cache", type=pathlib.Path, required=True)
    parser.add_argument("--wine", type=pathlib.Path, required=True)
    commands = parser.add_subparsers(dest="command", required=True)
    make = commands.add_parser("make")
    make.add_argument("memory_mb", type=size_mb, nargs="*")
    play = commands.add_parser("play")
    play.add_argument("scenario", choices=SCENARIOS)
    play.add_argument("memory_mb", type=size_mb, nargs="?", default=USUAL_SIZE_MB)
    play.add_argument("folder", type=pathlib.Path, nargs="?", default=CHECKOUT / "build/small_machine")
    for command in ("show", "window"):
        commands.add_parser(command).add_argument("memory_mb", type=size_mb, nargs="?", default=USUAL_SIZE_MB)
    arguments = parser.parse_args()
    end_once_on_signals()
    say = Progress()
    try:
        store = Store(arguments.cache, arguments.wine, say)
        sys.exit(perform(store, arguments, say))
    except MachineError as error:
        sys.exit(f"small machine: {error}")
    except OSError as error:
        sys.exit(f"small machine: {error.filename or 'this machine'}: {error.strerror}")


if __name__ == "__main__":
    main()
