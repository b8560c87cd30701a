"""Tests the parts of the small machine that need no emulator: figures, lines, the store's folders and its lock."""
import contextlib
import fcntl
import io
import os
import pathlib
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from unittest import mock

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools/small_machine"
sys.path.insert(0, str(TOOLS))

import emulator
import figures
import host
import root_disk
import store
import window

GUEST_FIGURES = """57.31 3.20
MemTotal:          81556 kB
MemFree:            9000 kB
MemAvailable:      20000 kB
Buffers:             300 kB
Cached:            12000 kB
SwapCached:         1111 kB
AnonPages:         43000 kB
SwapTotal:        196604 kB
SwapFree:         100000 kB
pswpin 17
pswpout 4711
/proc/112/status:Name:\tidle.exe
/proc/112/status:VmRSS:\t   10240 kB
/proc/112/status:VmSwap:\t     512 kB
/proc/113/status:Name:\tidle.exe
/proc/113/status:VmRSS:\t    2048 kB
/proc/113/status:VmSwap:\t    8192 kB
/proc/114/status:Name:\thungry.exe
/proc/114/status:VmRSS:\t   30000 kB
/proc/114/status:VmSwap:\t   20000 kB
/proc/120/status:Name:\tQDIX.exe
/proc/120/status:VmRSS:\t    7000 kB
/proc/120/status:VmSwap:\t       0 kB
/proc/2/status:Name:\tkthreadd
"""


class FiguresTest(unittest.TestCase):
    def setUp(self):
        self.figures = figures.read_figures(GUEST_FIGURES)

    def test_free_memory_counts_the_file_cache_as_wine_does(self):
        self.assertEqual(self.figures.available_kb, 9000 + 300 + 12000)
        self.assertEqual(self.figures.kernel_available_kb, 20000)

    def test_used_swap_is_total_minus_free(self):
        self.assertEqual(self.figures.swap_used_kb, 96604)
        self.assertEqual((self.figures.pages_in, self.figures.pages_out), (17, 4711))

    def test_pages_that_are_also_in_ram_are_not_paged_out(self):
        self.assertEqual(self.figures.paged_out_kb, 96604 - 1111)

    def test_memory_of_all_idle_programs_is_added_up(self):
        self.assertEqual((self.figures.idle_programs, self.figures.idle_in_ram_kb, self.figures.idle_in_swap_kb),
                         (2, 12288, 8704))
        self.assertEqual(self.figures.main_in_ram_kb, 7000)
        self.assertEqual(self.figures.hungry_kb, 30000 + 20000)

    def test_time_is_guest_time(self):
        self.assertEqual(self.figures.seconds, 57.31)


class LinesTest(unittest.TestCase):
    def setUp(self):
        ours, self.theirs = socket.socketpair()
        self.channel = emulator.LineChannel(ours)
        self.addCleanup(ours.close)
        self.addCleanup(self.theirs.close)

    def receive(self):
        return self.channel.receive(time.monotonic() + 0.2)

    def test_a_line_that_arrives_in_pieces_is_one_line(self):
        self.theirs.sendall(b"fir")
        self.theirs.sendall(b"st\r\nsecond\nthi")
        self.assertEqual([self.receive(), self.receive(), self.receive()], ["first", "second", None])

    def test_receive_returns_nothing_after_the_deadline(self):
        self.assertIsNone(self.receive())

    def test_receive_returns_nothing_when_the_peer_closes(self):
        self.theirs.close()
        self.assertIsNone(self.channel.receive(time.monotonic() + 60))

    def test_receive_returns_nothing_when_the_peer_closes_with_unread_data(self):
        self.channel.send("never read")
        self.theirs.close()
        self.assertIsNone(self.channel.receive(time.monotonic() + 60))

    def test_sending_to_a_closed_peer_reports_that_the_machine_is_off(self):
        self.theirs.close()
        with self.assertRaisesRegex(emulator.MachineGone, "the machine is switched off"):
            self.channel.send("ls")


class SignalsTest(unittest.TestCase):
    def test_a_second_signal_does_not_disturb_the_clean_up(self):
        program = """
import os, signal, time
import small_machine
small_machine.end_once_on_signals()
try:
    os.kill(os.getpid(), signal.SIGTERM)
    time.sleep(60)
finally:
    os.kill(os.getpid(), signal.SIGINT)
    os.kill(os.getpid(), signal.SIGTERM)
    print("cleaned up")
"""
        done = subprocess.run([sys.executable, "-c", program], cwd=TOOLS, capture_output=True, text=True, timeout=50,
                              check=False)
        self.assertEqual((done.returncode, done.stdout), (128 + signal.SIGTERM, "cleaned up\n"))


class WindowTest(unittest.TestCase):
    def close_at(self, question):
        """Opens the window and closes it when the probe gets this question. Returns the messages and the output."""
        def probe(asked):
            if asked.startswith(question):
                raise emulator.MachineGone("the machine is switched off")
            return "1"

        machine = mock.Mock(probe=probe, figures=lambda: figures.read_figures(GUEST_FIGURES))
        said = []
        with mock.patch.object(window.pc, "switched_on") as switched_on, \
             contextlib.redirect_stdout(io.StringIO()) as printed:
            switched_on.return_value.__enter__.return_value = machine
            switched_on.return_value.__exit__.return_value = False
            window.open_window(None, 96, [], None, said.append)
        return said, printed.getvalue()

    def test_it_can_be_closed_while_programs_start(self):
        self.assertEqual(self.close_at("choose"), (["the machine was switched off"], ""))

    def test_it_can_be_closed_when_everything_is_open(self):
        said, printed = self.close_at("enabled")
        self.assertEqual(said, ["the machine was switched off"])
        self.assertIn("before any release     available  21.3 MB   idle programs in RAM  12.3 MB", printed)


class ArchiveTest(unittest.TestCase):
    def test_entries_are_aligned_to_four_bytes_and_the_trailer_is_last(self):
        archive = root_disk.cpio_archive([("bin", 0o040755, b""), ("bin/a", 0o100755, b"hello")])
        found, at = [], 0
        while at < len(archive):
            self.assertEqual(archive[at:at + 6], b"070701")
            fields = [int(archive[at + 6 + 8 * field:at + 14 + 8 * field], 16) for field in range(13)]
            mode, size, name_size = fields[1], fields[6], fields[11]
            name = archive[at + 110:at + 110 + name_size - 1].decode()
            at += (110 + name_size + 3) // 4 * 4
            found.append((name, mode, archive[at:at + size]))
            at += (size + 3) // 4 * 4
        self.assertEqual(found, [("bin", 0o040755, b""), ("bin/a", 0o100755, b"hello"), ("TRAILER!!!", 0, b"")])

    def test_existing_files_are_kept_and_the_rest_are_linked(self):
        with tempfile.TemporaryDirectory() as folder:
            source, target = pathlib.Path(folder, "source"), pathlib.Path(folder, "target")
            (source / "usr/own").mkdir(parents=True)
            for name in ("usr/a", "usr/b", "usr/own/c"):
                (source / name).write_text("theirs", encoding="ascii")
            (source / "usr/link").symlink_to("a")
            (target / "usr").mkdir(parents=True)
            (target / "usr/a").write_text("ours", encoding="ascii")
            root_disk.add_tree(source, target, without="usr/own")
            self.assertEqual((target / "usr/a").read_text(encoding="ascii"), "ours")
            self.assertTrue((target / "usr/b").samefile(source / "usr/b"))
            self.assertEqual(os.readlink(target / "usr/link"), "a")
            self.assertFalse((target / "usr/own").exists())


class StoreTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.cache = pathlib.Path(folder.name)
        wine = self.cache / "wine"
        wine.mkdir()
        (wine / "proved").touch()
        self.said = []
        self.store = store.Store(self.cache, wine, self.said.append)
        self.made = []

    def provide(self, sizes):
        """Runs Store.provide with fake steps, which only make folders. Returns the steps that ran."""
        self.made = []
        with mock.patch.object(store, "run", lambda command, _: (self.made.append("packages"), command[1].mkdir())), \
             mock.patch.object(root_disk, "make_boot_files", lambda *_: self.made.append("disk")), \
             mock.patch.object(store, "make_prefix", lambda _: self.made.append("prefix")), \
             mock.patch.object(store, "store_boot_state", lambda _, __, size: self.made.append(size)):
            self.store.provide(sizes)
        return self.made

    def test_everything_is_made_once(self):
        self.assertEqual(self.provide([96]), ["packages", "disk", "prefix", 96])
        self.assertEqual(self.provide([96]), [])
        self.assertEqual(self.provide([64, 96]), [64])

    def test_a_step_that_fails_leaves_nothing_behind(self):
        with mock.patch.object(store, "run", lambda command, _: command[1].mkdir()), \
             mock.patch.object(root_disk, "make_boot_files", mock.Mock(side_effect=host.MachineError("no"))):
            with self.assertRaises(host.MachineError):
                self.store.provide([96])
        self.assertEqual(list(self.cache.glob("small-machine-*")), [self.store.packages])
        self.assertEqual(self.provide([96]), ["disk", "prefix", 96])

    def test_leftovers_of_a_killed_set_up_are_deleted(self):
        remains = [self.cache / "small-machine-0123.new", self.cache / "small-machine-packages-0123.Xyz"]
        for folder in remains:
            folder.mkdir()
        self.provide([96])
        self.assertEqual([folder for folder in remains if folder.exists()], [])

    def test_recently_used_machine_is_kept_and_old_one_is_deleted(self):
        lately, old = self.cache / "small-machine-1111", self.cache / "small-machine-2222"
        for folder in (lately, old):
            folder.mkdir()
        os.utime(old, (0, time.time() - store.UNUSED_FOR_S - 60))
        self.provide([96])
        self.assertEqual((lately.exists(), old.exists()), (True, False))

    def test_use_renews_the_age_of_a_machine(self):
        self.provide([96])
        folders = (self.store.folder, self.store.state(96))
        for folder in folders:
            os.utime(folder, (0, 0))
        self.provide([96])
        for folder in folders:
            self.assertGreater(folder.stat().st_mtime, time.time() - 60)

    @mock.patch.object(host.shutil, "disk_usage", lambda _: mock.Mock(free=0))
    def test_a_second_set_up_waits_and_finds_the_work_done(self):
        with open(self.cache / "small-machine.lock", "w", encoding="ascii") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)
            made = []
            second = threading.Thread(target=lambda: made.append(self.provide([96])))
            second.start()
            deadline = time.monotonic() + 20
            while not self.said and time.monotonic() < deadline:
                time.sleep(0.01)
            self.store.packages.mkdir()
            self.store.state(96).mkdir(parents=True)
        second.join(20)
        self.assertEqual((made, self.said), ([[]], ["waiting for another set-up of the small machine to end"]))

    def test_a_full_disk_is_reported_before_any_step(self):
        with mock.patch.object(host.shutil, "disk_usage", lambda _: mock.Mock(free=5 << 20)):
            with self.assertRaisesRegex(host.MachineError, "has 5 MB free.*needs 3000 MB"):
                self.provide([96])
        self.assertEqual(self.made, [])

    def test_a_missing_program_is_reported_with_its_package(self):
        with mock.patch.object(host.shutil, "which", lambda name: None if name == "qemu-img" else f"/usr/bin/{name}"):
            with self.assertRaisesRegex(host.MachineError, "qemu-img is missing; install the package qemu-utils"):
                self.provide([96])

    def test_the_message_of_a_failed_program_is_reported(self):
        with self.assertRaisesRegex(host.MachineError, "it did not work: no such thing"):
            host.run(["sh", "-c", "echo no such thing >&2; exit 3"], "it did not work")

    def test_the_folder_changes_with_the_inputs(self):
        file = self.cache / "input"
        file.write_text("one", encoding="ascii")
        one = store.digest([file])
        file.write_text("two", encoding="ascii")
        self.assertNotEqual(store.digest([file]), one)
        self.assertNotEqual(store.digest([file], "other Wine"), store.digest([file]))


if __name__ == "__main__":
    unittest.main()
