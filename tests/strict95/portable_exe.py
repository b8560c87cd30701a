"""Reads and renames the imports of a 32-bit Windows program."""
import struct


class PortableExe:
    def __init__(self, content):
        self.content = bytearray(content)
        header = struct.unpack_from("<I", self.content, 0x3C)[0]
        section_count = struct.unpack_from("<H", self.content, header + 6)[0]
        optional_bytes = struct.unpack_from("<H", self.content, header + 20)[0]
        self.sections = [struct.unpack_from("<8sIIII", self.content, header + 24 + optional_bytes + 40 * number)
                         for number in range(section_count)]
        self.import_table = struct.unpack_from("<I", self.content, header + 24 + 96 + 8)[0]

    def offset(self, address):
        """Returns the file offset of an address relative to the image base."""
        for _, size, begin, size_in_file, begin_in_file in self.sections:
            if begin <= address < begin + max(size, size_in_file):
                return begin_in_file + address - begin
        raise ValueError(f"no section holds {address:#x}")

    def text(self, offset):
        return self.content[offset:self.content.index(0, offset)].decode("ascii")

    def libraries(self):
        """Yields the name of each imported library, the file offset of that name, and the imported functions."""
        entry = self.offset(self.import_table)
        while True:
            names, _, _, library, addresses = struct.unpack_from("<5I", self.content, entry)
            if not library:
                return
            place = self.offset(library)
            yield self.text(place), place, list(self._functions(self.offset(names or addresses)))
            entry += 20

    def _functions(self, table):
        while hint := struct.unpack_from("<I", self.content, table)[0]:
            yield self.text(self.offset(hint) + 2)
            table += 4

    def rename_libraries(self, new_name):
        for name, place, _ in list(self.libraries()):
            if len(new_name) > len(name):
                raise ValueError(f"{new_name} does not fit into the place of {name}")
            self.content[place:place + len(name)] = new_name.encode("ascii").ljust(len(name), b"\0")
