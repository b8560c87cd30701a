"""Reads the contents of zip, floppy image and CD image directly from their bytes, without the tools that made them."""
import struct
import zipfile

SECTOR = 512
CD_SECTOR = 2048
CD_DESCRIPTORS_AT = 16


def of_zip(path):
    """Returns the names and contents of the files in a zip."""
    with zipfile.ZipFile(path) as archive:
        return {entry.filename: archive.read(entry) for entry in archive.infolist()}


class Floppy:
    """A FAT12 disk image that has only a root folder."""

    def __init__(self, path):
        self.data = path.read_bytes()
        (sector, self.cluster_sectors, reserved, fats, self.entries, self.sectors, _, fat_sectors) = struct.unpack_from(
            "<HBHBHHBH", self.data, 11)
        if sector != SECTOR:
            raise ValueError(f"sectors of {sector} bytes")
        self.fat = self.data[reserved * SECTOR:(reserved + fat_sectors) * SECTOR]
        self.root = (reserved + fats * fat_sectors) * SECTOR
        self.first_cluster = self.root + self.entries * 32
        self.cluster_bytes = self.cluster_sectors * SECTOR
        self.clusters = (len(self.data) - self.first_cluster) // self.cluster_bytes

    def next_of(self, cluster):
        pair = struct.unpack_from("<H", self.fat, cluster * 3 // 2)[0]
        return pair >> 4 if cluster % 2 else pair & 0xFFF

    def free_bytes(self):
        return sum(self.next_of(number + 2) == 0 for number in range(self.clusters)) * self.cluster_bytes

    def folder_entries(self):
        """Yields the entries of the root folder, the disk label and the files, but not the entries for long names."""
        for at in range(self.root, self.root + self.entries * 32, 32):
            entry = self.data[at:at + 32]
            if entry[0] == 0:
                break
            if entry[0] != 0xE5 and entry[11] != 0x0F:
                yield entry

    def times(self):
        """Returns the time and date of every entry in DOS format, without duplicates."""
        return {struct.unpack_from("<HH", entry, 22) for entry in self.folder_entries()}

    def files(self):
        """Returns short names and contents."""
        found = {}
        for entry in self.folder_entries():
            raw, attributes = entry[:11], entry[11]
            if attributes & 0x08:  # the label
                continue
            cluster, size = struct.unpack_from("<HI", entry, 26)
            content = b""
            while len(content) < size:
                begin = self.first_cluster + (cluster - 2) * self.cluster_bytes
                content += self.data[begin:begin + self.cluster_bytes]
                cluster = self.next_of(cluster)
            found[f"{raw[:8].decode().rstrip()}.{raw[8:].decode().rstrip()}"] = content[:size]
        return found


class Cd:
    """An ISO 9660 image: its descriptors and the records of its root folder."""

    def __init__(self, path):
        self.data = path.read_bytes()
        self.descriptors = []
        at = CD_DESCRIPTORS_AT * CD_SECTOR
        while self.data[at + 1:at + 6] == b"CD001":
            self.descriptors.append(self.data[at])
            at += CD_SECTOR
        begin = CD_DESCRIPTORS_AT * CD_SECTOR
        self.root = self.data[begin + 156:begin + 190]

    def extent(self, record):
        sector, size = struct.unpack_from("<I4xI", record, 2)
        return self.data[sector * CD_SECTOR:sector * CD_SECTOR + size]

    def all_records(self):
        """Yields the records of the root folder. The first two describe the folder itself and its parent."""
        folder, at = self.extent(self.root), 0
        while at < len(folder):
            length = folder[at]
            if length == 0:  # records do not cross a sector boundary
                at = (at // CD_SECTOR + 1) * CD_SECTOR
                continue
            yield folder[at:at + length]
            at += length

    def times(self):
        """Returns year since 1900, month, day, hour, minute, second and zone of every record, without duplicates."""
        return {tuple(record[18:25]) for record in [self.root, *self.all_records()]}

    def records(self):
        """Yields for every file: identifier, the bytes after it in the record, content."""
        for record in list(self.all_records())[2:]:
            name_bytes = record[32]
            name = record[33:33 + name_bytes].decode("ascii")
            yield name, record[33 + name_bytes:].strip(b"\0"), self.extent(record)

    def files(self):
        return {name: content for name, _, content in self.records()}
