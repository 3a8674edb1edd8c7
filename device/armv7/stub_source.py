"""Writes the assembly of a library that has the names of a text stub and nothing behind them: the linker for 32-bit
ARM reads no text stubs.

usage: python3 stub_source.py STUB ASSEMBLY
"""
import pathlib
import re
import sys


def main(arguments):
    if len(arguments) != 2:
        sys.exit(__doc__.strip().splitlines()[-1])
    stub, assembly = map(pathlib.Path, arguments)
    names = re.findall(r"^ +- (\S+)$", stub.read_text(), re.MULTILINE)
    assembly.write_text("\t.data\n" + "".join(f"\t.globl\t{name}\n{name}:\t.long\t0\n" for name in names))


if __name__ == "__main__":
    main(sys.argv[1:])
