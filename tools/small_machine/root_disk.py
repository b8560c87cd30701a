"""Makes the files that the small machine boots from: kernel, initial RAM disk and root disk. They come from packages and
the private Wine. Needs no root rights, mounts or loop devices."""
import gzip
import os
import pathlib
import shutil

from host import run

GUEST = pathlib.Path(__file__).resolve().parent / "guest"
WINE_TOOLS = pathlib.Path(__file__).resolve().parents[1] / "wine"
# Paths in the kernel's folder of modules, in loading order.
DRIVERS = [
    "drivers/virtio/virtio", "drivers/virtio/virtio_ring", "drivers/virtio/virtio_pci_legacy_dev",
    "drivers/virtio/virtio_pci_modern_dev", "drivers/virtio/virtio_pci", "drivers/block/virtio_blk", "lib/crc16",
    "fs/mbcache", "fs/jbd2/jbd2", "crypto/crc32c_generic", "fs/ext4/ext4", "drivers/virtio/virtio_input",
    "drivers/input/evdev"]
EMPTY_FOLDERS = ["proc", "sys", "dev", "tmp", "prefix", "root", "bin"]
# Left out of the image; Wine does not need it.
NOT_NEEDED = ["usr/share/doc", "usr/share/man", "usr/share/xml", "usr/share/alsa", "usr/share/bug",
              "usr/i686-w64-mingw32", "usr/x86_64-w64-mingw32", "usr/lib/i386-linux-gnu/dri"]
# Space for the files and for the copies of Wine's libraries while the prefix is made.
ROOT_DISK = "1800m"


def cpio_archive(entries):
    """Returns the "newc" archive that the kernel unpacks; `entries` are (name, mode, bytes)."""
    archive = bytearray()

    def pad():
        archive.extend(b"\0" * (-len(archive) % 4))

    for number, (name, mode, content) in enumerate([*entries, ("TRAILER!!!", 0, b"")], start=1):
        file_name = name.encode() + b"\0"
        fields = (number, mode, 0, 0, 1, 0, len(content), 0, 0, 0, 0, len(file_name), 0)
        archive.extend(b"070701" + b"".join(b"%08X" % field for field in fields) + file_name)
        pad()
        archive.extend(content)
        pad()
    return bytes(archive)


def initial_ram_disk(busybox, modules):
    """Returns the initial RAM disk; `modules` is the folder of the kernel's modules."""
    folder, program, data = 0o040755, 0o100755, 0o100644
    names = [pathlib.PurePosixPath(driver).name for driver in DRIVERS]
    entries = [(name, folder, b"") for name in ("bin", "dev", "proc", "root", "modules")]
    entries += [("bin/busybox", program, busybox.read_bytes()),
                ("init", program, (GUEST / "initial_ram_disk.sh").read_bytes()),
                ("modules/order", data, "".join(f"{name}\n" for name in names).encode())]
    entries += [(f"modules/{name}.ko", data, (modules / f"{driver}.ko").read_bytes())
                for name, driver in zip(names, DRIVERS)]
    return gzip.compress(cpio_archive(entries), mtime=0)


def unpack(package, folder):
    run(["dpkg-deb", "-x", package, folder], f"{package.name} cannot be unpacked")


def add_tree(source, target, without=None):
    """Hard-links the files of one tree into another, except the folder `without`. Existing files stay."""
    for folder, subfolders, files in os.walk(source):
        relative = os.path.relpath(folder, source)
        if relative == without:
            continue
        into = target / relative
        into.mkdir(parents=True, exist_ok=True)
        links = [name for name in subfolders if os.path.islink(os.path.join(folder, name))]
        for name in files + links:
            if not os.path.lexists(into / name):
                os.link(os.path.join(folder, name), into / name, follow_symlinks=False)


def add_settings(root):
    """Writes the files that the guest's scripts read: X server set-up, session, and registry of Windows 98."""
    (root / "etc/X11").mkdir(parents=True, exist_ok=True)
    shutil.copy(GUEST / "xorg.conf", root / "etc/X11/xorg.conf")
    shutil.copy(GUEST / "session.sh", root / "session.sh")
    (root / "session.sh").chmod(0o755)
    (root / "etc/passwd").write_text("root:x:0:0:root:/root:/bin/sh\n", encoding="ascii")
    (root / "etc/group").write_text("root:x:0:\n", encoding="ascii")
    shutil.copy(WINE_TOOLS / "win98.reg", root / "settings.reg")
    fonts = run([WINE_TOOLS / "font_metrics.sh"], "the fonts of the windows could not be written")
    (root / "fonts.reg").write_text(fonts, encoding="ascii")


def make_disk(folder, file, size):
    """Makes a file system of `size` with the files of a folder. Hard links stay hard links."""
    run(["mke2fs", "-q", "-F", "-t", "ext4", "-O", "^has_journal,^metadata_csum", "-m", "0", "-E",
         "root_owner=0:0,lazy_itable_init=1", "-d", folder, file, size], f"{file.name} could not be made")


def make_boot_files(packages, wine_root, output):
    """Writes kernel, initrd.gz and root.img into the folder `output`; the root disk has no prefix yet."""
    work = output / "unpacking"
    work.mkdir()
    for package in sorted(packages.glob("*.deb")):
        unpack(package, work / ("kernel" if package.name.startswith("linux-image") else "programs"))
    [modules] = (work / "kernel/lib/modules").iterdir()
    [kernel] = (work / "kernel/boot").glob("vmlinuz-*")
    shutil.copy(kernel, output / "kernel")
    busybox = work / "programs/bin/busybox"
    (output / "initrd.gz").write_bytes(initial_ram_disk(busybox, modules / "kernel"))

    root = work / "root"
    add_tree(work / "programs", root)
    # The private Wine's own programs are patched for this host; those of the package are not.
    add_tree(wine_root, root, without="usr/lib/wine")
    (root / "usr/lib/wine/wineserver").symlink_to("wineserver32")
    for name in NOT_NEEDED:
        shutil.rmtree(root / name, ignore_errors=True)
    for name in EMPTY_FOLDERS:
        (root / name).mkdir(parents=True, exist_ok=True)
    add_settings(root)
    make_disk(root, output / "root.img", ROOT_DISK)
    shutil.rmtree(work)
