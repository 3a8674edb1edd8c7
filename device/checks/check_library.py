"""Checks a library for one of the phone's processors as its loader would see it: what it exports and imports, from
which libraries, for which releases, with which memory.

usage: python3 check_library.py LIBRARY ARCHITECTURE SOURCE_DIR
"""
import pathlib
import re
import sys

from report import Report, output_of

INSTALL_NAME = "/Library/MobileSubstrate/DynamicLibraries/Tavimo.dylib"
MAX_SIZE_ARM64 = 200 * 1024
WEAK_IMPORTS = {"_CGColorGetNumberOfComponents"}
POINTER_SIZE = {"arm64": 8, "armv7": 4}
# Everything in these sections is an address.
POINTER_SECTIONS = ("__mod_init_func", "__pointers", "__la_symbol_ptr", "__got")


def objdump(library, *options):
    return output_of("llvm-objdump-14", "--macho", *options, library)


class Stub:
    """A text stub: a library's install name and the names in it."""

    def __init__(self, file, architecture):
        text = file.read_text()
        self.name = file.stem
        self.install_name = re.search(r"^install-name: '(.*)'$", text, re.MULTILINE)[1]
        self.symbols = set()
        for targets, names in re.findall(r"- targets: \[ (.*) \]\n +symbols:\n((?: +- \S+\n)+)", text):
            if f"{architecture}-ios" in targets:
                self.symbols |= set(re.findall(r"- (\S+)", names))


def check_exports(report, library, source):
    found = {name: int(address, 16) for address, name in
             re.findall(r"^0x([0-9A-F]+) +(\S+)$", objdump(library, "--exports-trie"), re.MULTILINE)}
    for name in re.findall(r"\[Thumb\] (\S+)$", output_of("llvm-nm-14", "--format=darwin", library), re.MULTILINE):
        report.expect(found.get(name, 1) % 2 == 1, f"{name} is offered as code of another kind than it is")
    report.same("exports", found, ["_" + name for name in (source / "tavimo/exports.txt").read_text().split()])


def check_imports(report, library, stubs):
    """Every name is bound to the library that has it, every name of a stub is needed, and no name is left unbound."""
    bound, weak = set(), set()
    for line in (objdump(library, "--bind") + objdump(library, "--lazy-bind")).splitlines():
        entry = re.match(r"__DATA +\S+ +0x\S+ +(?:pointer +\d+ +)?(\S+) +(_\S+|dyld_stub_binder)( \(weak_import\))?$", line)
        if entry:
            bound.add((entry[1], entry[2]))
            if entry[3]:
                weak.add(entry[2])
    report.same("imports", bound, [(stub.name, symbol) for stub in stubs for symbol in stub.symbols])
    report.same("weak imports", weak, WEAK_IMPORTS)
    undefined = re.findall(r"(\S+)$", output_of("llvm-nm-14", "--undefined-only", library), re.MULTILINE)
    report.same("names that are bound", {name for _, name in bound}, undefined)
    used = re.findall(r"^\t(\S+) \(", objdump(library, "--dylibs-used"), re.MULTILINE)
    report.expect(used[0] == INSTALL_NAME, f"its install name is {used[0]}, not {INSTALL_NAME}")
    report.same("libraries", used[1:], [stub.install_name for stub in stubs])
    report.expect(not re.search(r"^__DATA", objdump(library, "--weak-bind"), re.MULTILINE),
                  "names are shared with other libraries, as those of a C++ runtime are")


def check_segments(report, library, architecture):
    headers = objdump(library, "--private-headers")
    for name, most, first in re.findall(r"segname (\S+)\n(?:.*\n){4} +maxprot (\S+)\n +initprot (\S+)", headers):
        for protection in (most, first):
            report.expect(not {"w", "x"} <= set(protection), f"{name} can be written and executed: {protection}")
    places = sorted((int(start, 16), int(size, 16), name)
                    for name, start, size in re.findall(r"segname (\S+)\n +vmaddr (\S+)\n +vmsize (\S+)", headers))
    for (start, size, name), (next_start, _, next_name) in zip(places, places[1:]):
        report.expect(start + size <= next_start, f"{name} reaches into {next_name}")
    version = re.search(r"cmd LC_VERSION_MIN_IPHONEOS\n.*\n +version (\S+)", headers)
    report.expect(version and version[1] == "7.0", "it is not for iOS 7.0 and later")
    if architecture == "arm64":
        report.expect("sectname __unwind_info" in headers, "no unwind tables: exceptions of the host could not pass")


def names_in(library):
    """Texts that look like names of classes, methods and keys."""
    return set(re.findall(rb"\0([A-Za-z][A-Za-z_:]{7,})(?=\0)", library.read_bytes()))


def check_code(report, library):
    """What the linker for 32-bit ARM does wrong unless it is kept from it."""
    # Code that is the same for both processors names the same; what no pointer leads to any more is left out.
    report.same("names in it", names_in(library), names_in(library.with_stem("Tavimo-arm64")))
    # "add pc, pc; bx r12", in a way from Thumb code to a function of another library.
    report.expect(b"\xff\x44\x60\x47" not in library.read_bytes(), "jumps lead astray")


def check_pointers(report, library, architecture):
    """The loader adjusts every address of the library; one that it does not know of leads astray."""
    adjusted = {}
    for table in ("--rebase", "--bind", "--lazy-bind"):
        for section, address in re.findall(r"^__DATA +(\S+) +0x([0-9A-F]+)", objdump(library, table), re.MULTILINE):
            adjusted.setdefault(section, set()).add(int(address, 16))
    sections = re.findall(r"Name: (__\w+) \(.*\n +Segment: __DATA .*\n +Address: 0x(\w+)\n +Size: 0x(\w+)",
                          output_of("llvm-readobj-14", "--sections", library))
    seen = 0
    for name, start, size in sections:
        if name not in POINTER_SECTIONS:
            continue
        seen += 1
        places = set(range(int(start, 16), int(start, 16) + int(size, 16), POINTER_SIZE[architecture]))
        left = places - adjusted.get(name, set())
        # One place beside the address of the loader's binder is the loader's own.
        own = 1 if name == "__got" and architecture == "armv7" else 0
        report.expect(len(left) == own, f"{name}: {len(left)} addresses that the loader would not adjust")
    report.expect(seen >= 3, "the sections with addresses were not found")


def main(arguments):
    if len(arguments) != 3:
        sys.exit(__doc__.strip().splitlines()[-1])
    library, architecture, source = arguments[0], arguments[1], pathlib.Path(arguments[2])
    stubs = [Stub(file, architecture) for file in sorted((source / "device/stubs").glob("*.tbd"))]
    report = Report(library)
    check_exports(report, library, source)
    check_imports(report, library, stubs)
    check_segments(report, library, architecture)
    check_pointers(report, library, architecture)
    if architecture == "armv7":
        check_code(report, pathlib.Path(library))
    size = pathlib.Path(library).stat().st_size
    report.expect(architecture != "arm64" or size <= MAX_SIZE_ARM64, f"{size} bytes; at most {MAX_SIZE_ARM64} were wanted")
    report.end()


if __name__ == "__main__":
    main(sys.argv[1:])
