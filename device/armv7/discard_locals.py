"""Discards the local symbols of a library for 32-bit ARM.

llvm-strip takes it that ARM's segments are laid out in pages of 16 KiB. This library's are laid out in pages of 4 KiB, as
the linker does it, and come out overlapping; so it is handed in under the number of another 32-bit processor.

usage: python3 discard_locals.py LLVM_STRIP LIBRARY -o STRIPPED
"""
import pathlib
import struct
import subprocess
import sys

PROCESSOR = slice(4, 12)
X86 = struct.pack("<II", 7, 3)


def main(arguments):
    if len(arguments) != 4:
        sys.exit(__doc__.strip().splitlines()[-1])
    strip, library, stripped = arguments[0], pathlib.Path(arguments[1]), pathlib.Path(arguments[3])
    data = bytearray(library.read_bytes())
    processor = data[PROCESSOR]
    data[PROCESSOR] = X86
    stripped.write_bytes(data)
    subprocess.run([strip, "--discard-all", stripped], check=True)
    data = bytearray(stripped.read_bytes())
    data[PROCESSOR] = processor
    stripped.write_bytes(data)


if __name__ == "__main__":
    main(sys.argv[1:])
