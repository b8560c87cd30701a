"""Takes the screenshots for the documents: default settings, ordinary programs, a Saturday in 1998."""
from scenarios.one_release import IDLE_MB, IDLE_PROGRAMS, RELEASE_MB

DATE = "1998-11-21 10:12:00"
# The cycle counter of the emulator runs at 1000 MHz, whatever the processor: this makes it a Pentium II of 350 MHz.
CLOCK_PERCENT = 35
# Settings that Q-DIX changes and that exist in Windows 98 but not in Wine.
SYSTEM_INI = ["[boot]", "shell=Explorer.exe", "system.drv=system.drv", "[386Enh]", "device=*vpowerd", "[vcache]",
              "[drivers]", "wave=mmsystem.dll"]
FS_TEMPLATES = r"HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\FS Templates"
PROGRAMS = [
    ("Notepad", r"C:\WINDOWS\NOTEPAD.EXE", r"C:\My Documents"),
    ("WordPad", r'"C:\Program Files\Accessories\WORDPAD.EXE"', r"C:\My Documents"),
    ("Paint", r'"C:\Program Files\Accessories\MSPAINT.EXE"', ""),
    ("Calculator", r"C:\WINDOWS\CALC.EXE", ""),
    ("Solitaire", r"C:\WINDOWS\SOL.EXE", ""),
    ("Media Player", r"C:\WINDOWS\MPLAYER.EXE", "")]
# For each tab, the name of its picture with default settings; None if there is no such picture.
TABS = [None, "automatic", "time_intervals", "startup_other", "launcher", None, None, "about"]
QUONDIX_TAB, CACHE_TAB, SWAP_FILE_TAB = 0, 5, 6
CACHE_PRESET = "Power User (Win98/ME)"
# A place for the pointer outside the windows: the pictures are cropped and do not show it.
OUT_OF_THE_WAY = (400, 596)
TRAY_ICON = (789, 590)
DOWN, RIGHT = 0x28, 0x27
# Presses of the down key to "Programs" in the menu of the tray icon.
ENTRIES_TO_PROGRAMS = 4


def play(pc, memory_mb):
    pc.machine.ask(f"date -s '{DATE}' >/dev/null")
    pc.machine.ask(f"write_system_ini {' '.join(map(repr, SYSTEM_INI))}")
    pc.machine.ask(f"wine reg add '{FS_TEMPLATES}' /ve /d Desktop /f >/dev/null 2>&1")
    for name, path, folder in PROGRAMS:
        pc.machine.ask(f"add_to_launcher '{name}' '{path}' '{folder}'")
    first_start(pc)
    pc.keep_state("installed")

    tabs(pc)
    tray_menu(pc)
    settings_of_windows(pc)
    pc.start("undo.exe")
    photograph(pc, "undo")
    for name, program in {"config_launcher": "configL.exe", "help": "help.exe 4"}.items():
        pc.go_back("installed")
        pc.start(program)
        photograph(pc, name)

    pc.go_back("installed")
    release(pc, memory_mb)


def photograph(pc, name):
    pc.machine.point_at(*OUT_OF_THE_WAY)
    pc.pause(3)
    pc.rest()
    pc.photograph(name)


def start(pc):
    pc.say("starting QDIX.exe")
    pc.probe(rf"start-with-clock {CLOCK_PERCENT} C:\QDIX\QDIX.exe")
    pc.await_main_window()
    pc.await_answer("text lblCPU", "*Pentium II*350 MHz", 10)


def first_start(pc):
    """Starts the program for the first time, closes the help that it opens, and keeps what the first start stored."""
    start(pc)
    pc.probe("close-help")
    pc.rest()
    pc.probe("close")
    pc.rest()


def tabs(pc):
    start(pc)
    for number, name in enumerate(TABS):
        if name:
            pc.probe(f"open-tab {number}")
            photograph(pc, name)


def tray_menu(pc):
    """Photographs the tray menu with the main window hidden, then goes back to the shown window."""
    pc.keep_state("shown")
    pc.probe(f"open-tab {QUONDIX_TAB}")
    pc.press("Command2")
    pc.machine.point_at(*TRAY_ICON)
    pc.pause(1)
    pc.machine.press_button(True, "right")
    pc.pause(1)
    pc.machine.press_button(False, "right")
    photograph(pc, "tray_menu")
    for key in [DOWN] * ENTRIES_TO_PROGRAMS + [RIGHT]:
        pc.probe(f"press-key {key}")
    photograph(pc, "tray_programs")
    pc.go_back("shown")


def settings_of_windows(pc):
    """Chooses and saves disk cache and swap file as a user does, without a restart."""
    pc.probe(f"open-tab {CACHE_TAB}")
    pc.probe(f"choose Combo2 {CACHE_PRESET}")
    photograph(pc, "cache_preset")
    save(pc, "Command11")
    pc.probe(f"open-tab {SWAP_FILE_TAB}")
    pc.press("optSwap2")
    pc.press("cmdBeginnerSwapFile")
    pc.machine.ask("await 60 answer_box")
    photograph(pc, "swapfile_optimised")
    save(pc, "Command18")
    pc.probe("close")


def save(pc, button):
    pc.press(button)
    # Confirms the change, then declines the restart.
    pc.probe("answer yes")
    pc.probe("answer no")


def release(pc, memory_mb):
    """Photographs the main window before and after a release; its graph shows the load of the machine itself."""
    pc.set_settings("Startup", StartupTime=0)
    start(pc)
    pc.probe(f"open-tab {QUONDIX_TAB}")
    pc.start("qdix_probe.exe", "feed-load")
    pc.start_idle_programs(IDLE_PROGRAMS, IDLE_MB[memory_mb])
    pc.wake_idle_programs()
    pc.rest()
    photograph_working(pc, "before")
    pc.release(RELEASE_MB[memory_mb])
    photograph_working(pc, "after")


def photograph_working(pc, name):
    """Keeps the processor working until shortly before the picture: the load figure covers only the last seconds."""
    pc.machine.point_at(*OUT_OF_THE_WAY)
    for seconds in (1, 2, 1):
        pc.pause(2)
        pc.machine.ask(f"start_work; sleep {seconds}; stop_work")
    pc.pause(1)
    pc.photograph(name)
