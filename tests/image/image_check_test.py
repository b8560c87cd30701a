#!/usr/bin/env python3
"""The image check tells instructions of the 386 from later ones, and finds every fault of a header.

image_check_test.py SOUND_EXE [unittest's arguments]    SOUND_EXE is an exe without a fault; each copy of it gets one fault
"""
import pathlib
import struct
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "image_check"))
from image_check import (GUARDED, Image, check_header, check_instructions, exported_names, frame_bytes,  # noqa: E402
                         is_386, stubs)

EXPORTS = pathlib.Path(__file__).resolve().parents[2] / "cmake" / "win95-exports"
SOUND_EXE = pathlib.Path(sys.argv.pop(1))

OF_THE_386 = """
mov $0x1,%eax|movzbl (%eax),%eax|movswl %ax,%eax|rep stos %al,%es:(%edi)|rep movsb %ds:(%esi),%es:(%edi)
repz cmpsb %es:(%edi),%ds:(%esi)|repnz scas %es:(%edi),%al|shld $0x4,%eax,%edx|bsr %eax,%eax|setne %al|jne 401000
imul %edx,%eax|divl 0x8(%ebp)|cltd|cwtl|sahf|leave|ret|ret $0x10|jmp *0x402000(,%eax,4)|call *0x404000|nop|push %ebp
xchg %ax,%ax|fldcw -0x2(%ebp)|fnstcw -0x2(%ebp)|fistpll (%esp)|fildl (%esp)|fldl (%esp)|fldt (%esp)|fstps (%esp)|fucompp
fnstsw %ax|frndint|fxch %st(1)|fsubrp %st,%st(1)|fmuls 0x402000|lock incl (%eax)|sbb $0x0,%edx|lea 0x0(%esi,%eiz,1),%esi
"""
LATER = """
cmovne %eax,%edx|cmovae (%eax),%eax|bswap %eax|xadd %eax,(%edx)|cmpxchg %ecx,(%edx)|lock cmpxchg %ecx,(%edx)|cmpxchg8b (%eax)
cpuid|rdtsc|rdpmc|nopw 0x0(%eax,%eax,1)|nopl 0x0(%eax)|data16 cs nopw 0x0(%eax,%eax,1)|endbr32|pause|ud2|tzcnt %eax,%eax
popcnt %eax,%eax|lzcnt %eax,%eax|fcomi %st(1),%st|fcomip %st(1),%st|fucomi %st(1),%st|fucomip %st(1),%st
fcmovne %st(1),%st|fisttpll (%esp)|fisttpl (%esp)|fxsave (%eax)|movss %xmm0,(%esp)|movsd (%eax),%xmm1|cmpsd $0x1,%xmm0,%xmm1
cvtsi2sd %eax,%xmm0|addsd %xmm1,%xmm0|movd %mm0,%eax|paddb %mm1,%mm0|emms|sfence|prefetchnta (%eax)|ldmxcsr (%esp)
sysenter|invd|wbinvd|invlpg (%eax)|bnd jmp 401000|notrack jmp *%eax|(bad)|vaddsd %xmm0,%xmm1,%xmm2|movbe (%eax),%eax|crc32b %al,%eax
"""


def listed(text):
    return [item.strip() for line in text.strip().splitlines() for item in line.split("|")]


class Listing:
    """An image of nothing but these instructions."""

    def __init__(self, *texts):
        self.texts = texts

    def instructions(self):
        return ((f"{0x401000 + number:x}", text) for number, text in enumerate(self.texts))


class Instructions(unittest.TestCase):
    def test_386_instructions_pass(self):
        self.assertEqual([text for text in listed(OF_THE_386) if not is_386(text)], [])

    def test_later_instructions_are_found(self):
        self.assertEqual([text for text in listed(LATER) if is_386(text)], [])

    def test_cpuid_and_rdtsc_pass_once_each(self):
        self.assertEqual(GUARDED, {"cpuid", "rdtsc"})
        code = ["nop"] * 10
        self.assertEqual(list(check_instructions(Listing(*code, "cpuid", "rdtsc"))), [])
        self.assertEqual(list(check_instructions(Listing("cpuid", "rdtsc", *code, "rdtsc"))),
                         ["instruction at 40100c is none of the 386: rdtsc"])


class Stubs(unittest.TestCase):
    def test_every_stub_is_exported_and_no_working_function_is_a_stub(self):
        exported, failing = exported_names(EXPORTS), stubs(EXPORTS)
        self.assertEqual({dll: names - exported[dll] for dll, names in failing.items() if names - exported[dll]}, {})
        for dll, name in (("kernel32", "lstrlenW"), ("kernel32", "GetCommandLineW"), ("user32", "MessageBoxW"),
                          ("gdi32", "TextOutW"), ("kernel32", "MoveFileA"), ("advapi32", "RegOpenKeyExA")):
            self.assertIn(name, exported[dll])
            self.assertNotIn(name, failing[dll])
        self.assertEqual({name for name in exported["user32"] if name.endswith("W")} - failing["user32"],
                         {"MessageBoxW", "MessageBoxExW"})


class Frames(unittest.TestCase):
    def test_frame_size_is_read_in_each_form(self):
        self.assertEqual(frame_bytes("sub    $0x1234,%esp"), 0x1234)
        self.assertEqual(frame_bytes("subl   $0x1234,%esp"), 0x1234)
        self.assertEqual(frame_bytes("add    $0xffffff80,%esp"), 0x80)
        self.assertEqual(frame_bytes("lea    -0x1234(%esp),%esp"), 0x1234)

    def test_other_instructions_make_no_frame(self):
        for text in ("add    $0x10,%esp", "sub    $0xffffff80,%esp", "sub    $0x10,%eax", "lea    0x10(%esp),%esp", "push   %ebp"):
            self.assertEqual(frame_bytes(text), 0)


class Header(unittest.TestCase):
    """Offsets are relative to the PE signature, whose position is in the 32-bit word at 0x3C."""

    def faults_with(self, offset, layout, value):
        content = bytearray(SOUND_EXE.read_bytes())
        signature = struct.unpack_from("<I", content, 0x3C)[0]
        struct.pack_into(layout, content, signature + offset, value)
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "faulty.exe"
            path.write_bytes(content)
            return list(check_header(Image(path)))

    def assert_found(self, words, offset, layout, value):
        faults = self.faults_with(offset, layout, value)
        self.assertTrue(any(words in fault for fault in faults), faults)

    def test_sound_program_has_no_fault(self):
        image = Image(SOUND_EXE)
        self.assertEqual([*check_header(image), *check_instructions(image)], [])

    def test_time_stamp_is_found(self):
        self.assert_found("time stamp", 8, "<I", 0x5F000000)

    def test_missing_relocations_stripped_flag_is_found(self):
        characteristics = struct.unpack_from("<H", SOUND_EXE.read_bytes(), self.signature() + 22)[0]
        self.assert_found("relocations are not stripped", 22, "<H", characteristics & ~1)

    def test_wrong_fields_of_the_optional_header_are_found(self):
        for name, offset, layout, value in (
                ("ImageBase", 52, "<I", 0x10000000),
                ("MajorOSystemVersion", 64, "<H", 5),
                ("MinorOSystemVersion", 66, "<H", 1),
                ("MajorSubsystemVersion", 72, "<H", 5),
                ("MinorSubsystemVersion", 74, "<H", 10),
                ("Subsystem", 92, "<H", 3),
                ("DllCharacteristics", 94, "<H", 0x0140)):
            with self.subTest(name):
                self.assert_found(f"header field {name} ", offset, layout, value)

    def test_unwanted_directories_are_found(self):
        for title, number in (("Thread Storage Directory", 9), ("Base Relocation Directory", 5), ("Debug Directory", 6)):
            with self.subTest(title):
                # Plants only a size: with an address the tools would read data that does not exist.
                self.assert_found(f"has a {title}", 120 + 8 * number + 4, "<I", 0x18)

    def signature(self):
        return struct.unpack_from("<I", SOUND_EXE.read_bytes(), 0x3C)[0]


if __name__ == "__main__":
    unittest.main()
