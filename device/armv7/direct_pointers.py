"""Rewrites compiled code for 32-bit ARM so that the only linker at hand for it gets the pointers right.

That linker leaves every entry of the section for indirect symbols zero and unbound. An ordinary pointer in a data
section it does rebase or bind, so each indirect symbol becomes one. Code reaches the first pointer of a section only,
whichever it asks for, unless each has a symbol that the linker sees, so their labels become such. The code that loads
them stays as it is.

And it takes the symbols that a file keeps to the library as if they stood before all that it offers, whatever their
order: a pointer then leads to another symbol than the one it names. Only the constants that are arguments of templates
are offered beside such symbols and sorted among them. Nobody outside wants them, so they are kept to the library, too.

usage: python3 direct_pointers.py ASSEMBLY
"""
import pathlib
import re
import sys

INDIRECT_SECTION = "\t.section\t__DATA,__nl_symbol_ptr,non_lazy_symbol_pointers"
DIRECT_SECTION = "\t.section\t__DATA,__pointers"
OFFERED_CONSTANT = re.compile(r"^\t\.globl\t(__ZTAX\S+)", re.MULTILINE)
# A label that begins with L is gone when the linker comes.
POINTER_LABEL = re.compile(r"\bL(\S+?\$non_lazy_ptr)")
INDIRECT_POINTER = re.compile(r"^\t\.indirect_symbol\t(\S+)\n\t\.long\t0$", re.MULTILINE)


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__.strip().splitlines()[-1])
    file = pathlib.Path(arguments[0])
    text = INDIRECT_POINTER.sub(r"\t.long\t\1", file.read_text().replace(INDIRECT_SECTION, DIRECT_SECTION))
    text = POINTER_LABEL.sub(r"l\1", text)
    text = OFFERED_CONSTANT.sub(r"\t.private_extern\t\1\n\t.globl\t\1", text)
    if ".indirect_symbol" in text:
        sys.exit(f"direct_pointers.py: {file}: an indirect symbol of an unknown form is left")
    file.write_text(text)


if __name__ == "__main__":
    main(sys.argv[1:])
