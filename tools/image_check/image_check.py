#!/usr/bin/env python3
"""Checks that a finished exe loads on the first Windows 95 and runs on any processor from the 386 with a 387.

Imports must be names that Windows 95 exports, and not as a stub that only fails. Every instruction must be on the list
of the 386 and 387, except for two guarded ones that may occur once each. The header must be one that Windows 95
accepts. Prints its findings and exits with 1 if anything is wrong.
"""
import argparse
import pathlib
import re
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "import_libs"))
from export_lists import exported_names, stubs  # noqa: E402

OBJDUMP = "i686-w64-mingw32-objdump"

I386 = set("""
aaa aad aam aas adc add and arpl bound bsf bsr bt btc btr bts call cbtw clc cld cli clts cltd cmc cmp cmps cwtd cwtl daa das dec div enter
hlt idiv imul in inc ins int int3 into iret jcxz jecxz jmp lahf lar lcall lds lea leave les lfs lgs ljmp lods loop loope loopne lret lsl lss
mov movs movsb movsw movzb movzw mul neg nop not or out outs pop popa popf push pusha pushf rcl rcr ret rol ror sahf sar sbb scas shl shld shr
shrd stc std sti stos sub test verr verw wait xchg xlat xor movsbl movsbw movswl movzbl movzbw movzwl
""".split())
CONDITIONS = "o no b c nae nb nc ae e z ne nz be na a nbe s ns p pe np po l nge nl ge le ng nle g".split()
I386 |= {"j" + condition for condition in CONDITIONS} | {"set" + condition for condition in CONDITIONS}
I387 = set("""
f2xm1 fabs fadd faddp fbld fbstp fchs fclex fnclex fcom fcomp fcompp fcos fdecstp fdiv fdivp fdivr fdivrp ffree fiadd ficom ficomp fidiv
fidivr fild fimul fincstp finit fninit fist fistp fisub fisubr fld fld1 fldcw fldenv fldl2e fldl2t fldlg2 fldln2 fldpi fldz fmul fmulp fnop
fpatan fprem fprem1 fptan frndint frstor fsave fnsave fscale fsin fsincos fsqrt fst fstcw fnstcw fstenv fnstenv fstp fstsw fnstsw fsub fsubp
fsubr fsubrp ftst fucom fucomp fucompp fwait fxam fxch fxtract fyl2x fyl2xp1
""".split())
ALLOWED = I386 | I387
# Allowed once each: the program asks the processor first, in one place. Only code written by hand contains them.
GUARDED = {"cpuid", "rdtsc"}
# A page is 4,096 bytes. No probe walks down a larger frame, and a call needs room below it.
MAX_FRAME_BYTES = 3500
PREFIXES = {"rep", "repz", "repnz", "lock", "cs", "ds", "es", "ss", "fs", "gs", "data16", "addr16"}
EMPTY_LISTS = (b"\xff" * 4 + b"\0" * 4) * 2
INSTRUCTION = re.compile(r"^\s*(?P<address>[0-9a-f]+):\t(?:[0-9a-f]{2} )+\s*\t(?P<text>.+)$")

SECTION = re.compile(r"^Disassembly of section (?P<name>\S+):$")


class Image:
    """What objdump reports about an exe."""

    def __init__(self, path):
        self.path = path
        self.size = path.stat().st_size
        self.headers = self._run("-p", "-h")

    def _run(self, *options):
        return subprocess.run([OBJDUMP, *options, str(self.path)], check=True, capture_output=True, text=True).stdout

    def field(self, name):
        match = re.search(rf"^{re.escape(name)}\s+(\S+)", self.headers, re.MULTILINE)
        return match.group(1) if match else None

    def directory(self, title):
        match = re.search(rf"^Entry \S+ ([0-9a-f]+) ([0-9a-f]+) {re.escape(title)}", self.headers, re.MULTILINE)
        return int(match.group(2), 16) if match else 0

    def imports(self):
        found = {}
        dll = None
        for line in self.headers.splitlines():
            name = re.match(r"\s+DLL Name: (\S+)", line)
            if name:
                dll = name.group(1).lower().removesuffix(".dll")
                found[dll] = []
            member = re.match(r"\s+[0-9a-f]+\s+(?:<none>\s+[0-9a-f]+|\d+)\s+(\S+)\s*$", line)
            if member and dll is not None:
                found[dll].append(member.group(1))
        return found

    def end_of_code(self):
        """Returns the address after the code. The linker puts the empty lists of constructors and destructors there,
        which are data."""
        match = re.search(r"^\s*\d+ \.text\s+([0-9a-f]+)\s+([0-9a-f]+)\s+[0-9a-f]+\s+([0-9a-f]+)", self.headers, re.MULTILINE)
        size, address, offset = (int(part, 16) for part in match.groups())
        code = self.path.read_bytes()[offset:offset + size].rstrip(b"\0") + b"\0" * 4
        if code.endswith(EMPTY_LISTS):
            return address + len(code) - len(EMPTY_LISTS)
        return address + size

    def instructions(self):
        """Yields address and text of each instruction."""
        end = self.end_of_code()
        section = ""
        for line in self._run("-d", "-w").splitlines():
            heading = SECTION.match(line)
            if heading:
                section = heading.group("name")
            match = INSTRUCTION.match(line)
            if match and (section != ".text" or int(match.group("address"), 16) < end):
                yield match.group("address"), match.group("text")


def mnemonic_of(text):
    words = [word for word in text.replace(",", " ").split() if word]
    while words and words[0] in PREFIXES:
        words = words[1:]
    return words[0] if words else ""


def is_386(text):
    mnemonic = mnemonic_of(text)
    if mnemonic.startswith("nop"):
        return mnemonic == "nop" and text.split()[-1] == "nop"  # the long forms with operands came with the Pentium Pro
    if re.search(r"%[xyz]?mm\d", text):
        return False  # some of these have the name of a string instruction
    # The size letters of AT&T syntax.
    return mnemonic in ALLOWED or any(
        mnemonic.endswith(size) and mnemonic.removesuffix(size) in ALLOWED for size in ("b", "w", "l", "ll", "s", "t"))


def frame_bytes(text):
    """Returns how far an instruction lowers the stack pointer at once; 0 for any other."""
    match = re.match(r"\s*(?:sub[lw]?\s+\$0x([0-9a-f]{1,7}|[0-7][0-9a-f]{7})|add[lw]?\s+\$0x(f[0-9a-f]{7})|lea[lw]?\s+-0x([0-9a-f]+)\(%esp\)),%esp", text)
    if not match:
        return 0
    sub, add, lea = match.groups()
    return 0x100000000 - int(add, 16) if add else int(sub or lea, 16)


def check_imports(image, exports):
    known = exported_names(exports)
    failing = stubs(exports)
    imports = image.imports()
    for dll, names in sorted(imports.items()):
        if dll not in known:
            yield f"imports {dll}.dll, which the first Windows 95 lacks or the program does without"
            continue
        for name in names:
            if name not in known[dll]:
                yield f"imports {dll}.dll!{name}, which the first Windows 95 lacks"
            elif name in failing.get(dll, set()):
                yield f"imports {dll}.dll!{name}, which only fails on Windows 95"
    if not any(imports.values()):
        yield "imports nothing, which no program of ours does: the image could not be read"


def check_instructions(image):
    count = 0
    still_allowed = set(GUARDED)
    for address, text in image.instructions():
        count += 1
        mnemonic = mnemonic_of(text)
        if mnemonic in still_allowed:
            still_allowed.remove(mnemonic)
        elif not is_386(text):
            yield f"instruction at {address} is none of the 386: {text.strip()}"
        if frame_bytes(text) > MAX_FRAME_BYTES:
            yield f"frame at {address} of {frame_bytes(text)} bytes could step over the guard page of the stack"
    if count < 10:
        yield "holds no code, or the code could not be read"


def check_header(image):
    expected = {
        "Magic": "010b",
        "MajorOSystemVersion": "4",
        "MinorOSystemVersion": "0",
        "MajorSubsystemVersion": "4",
        "MinorSubsystemVersion": "0",
        "Subsystem": "00000002",
        "DllCharacteristics": "00000000",
        "ImageBase": "00400000",
        "FileAlignment": "00000200",
        "SectionAlignment": "00001000",
    }
    for name, value in expected.items():
        found = image.field(name)
        if found != value:
            yield f"header field {name} is {found}, not {value}"
    if "relocations stripped" not in image.headers:
        yield "relocations are not stripped"
    for title in ("Thread Storage Directory", "Debug Directory", "Base Relocation Directory"):
        if image.directory(title):
            yield f"has a {title}"
    if not re.search(r"Time/Date\s+(Thu Jan  1 00:00:00 1970|0+\b)", image.headers):
        yield "carries a time stamp, so that two builds differ"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--exports", type=pathlib.Path, required=True, help="folder with the lists of exported names")
    parser.add_argument("--limit-kb", type=int, required=True, help="largest size of the file in KB of 1,024 bytes")
    parser.add_argument("image", type=pathlib.Path)
    arguments = parser.parse_args()
    image = Image(arguments.image)
    faults = [*check_imports(image, arguments.exports), *check_instructions(image), *check_header(image)]
    if image.size > arguments.limit_kb * 1024:
        faults.append(f"has {image.size} bytes, more than {arguments.limit_kb} KB")
    imports = sum(len(names) for names in image.imports().values())
    instructions = sum(1 for _ in image.instructions())
    print(f"{image.path.name}: {image.size} bytes, {imports} imports, {instructions} instructions, {len(faults)} faults")
    for fault in faults:
        print(f"{image.path.name} {fault}")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
