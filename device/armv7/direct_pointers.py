"""Rewrites compiled code for 32-bit ARM so that the only linker at hand for it gets the pointers right.

That linker leaves every entry of the section for indirect symbols zero and unbound. An ordinary pointer in a data
section it does rebase or bind, so each indirect symbol becomes one. The code that loads them stays as it is.

usage: python3 direct_pointers.py ASSEMBLY
"""
import pathlib
import re
import sys

INDIRECT_SECTION = "\t.section\t__DATA,__nl_symbol_ptr,non_lazy_symbol_pointers"
DIRECT_SECTION = "\t.section\t__DATA,__pointers"
INDIRECT_POINTER = re.compile(r"^\t\.indirect_symbol\t(\S+)\n\t\.long\t0$", re.MULTILINE)


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__.strip().splitlines()[-1])
    file = pathlib.Path(arguments[0])
    text = INDIRECT_POINTER.sub(r"\t.long\t\1", file.read_text().replace(INDIRECT_SECTION, DIRECT_SECTION))
    if ".indirect_symbol" in text:
        sys.exit(f"direct_pointers.py: {file}: an indirect symbol of an unknown form is left")
    file.write_text(text)


if __name__ == "__main__":
    main(sys.argv[1:])
