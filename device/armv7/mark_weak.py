"""Marks imports of a library for 32-bit ARM as weak, which its linker forgets: a phone may lack these names.

The mark stands in two places: in the instruction that binds the name, and in the symbol table.

usage: python3 mark_weak.py LIBRARY SYMBOL...
"""
import struct
import sys

from load_commands import LC_DYLD_INFO_ONLY, LC_SYMTAB, SYMBOL_SIZE, load_commands

BIND_SET_SYMBOL = 0x40
BIND_WEAK_IMPORT = 0x1
WEAK_REFERENCE = 0x40


def mark_binding(data, at, name):
    """In the tables of names bound at load and of names bound at the first call."""
    marked = 0
    for offset, size in (struct.unpack_from("<II", data, at + 16), struct.unpack_from("<II", data, at + 32)):
        place = data.find(bytes([BIND_SET_SYMBOL]) + name + b"\0", offset, offset + size)
        if place >= 0:
            data[place] |= BIND_WEAK_IMPORT
            marked += 1
    return marked


def mark_symbol(data, at, name):
    symbols, count, strings, _ = struct.unpack_from("<IIII", data, at + 8)
    for symbol in range(symbols, symbols + count * SYMBOL_SIZE, SYMBOL_SIZE):
        text, _, _, flags = struct.unpack_from("<IBBH", data, symbol)
        if data.startswith(name + b"\0", strings + text):
            struct.pack_into("<H", data, symbol + 6, flags | WEAK_REFERENCE)
            return True
    return False


def main(arguments):
    if len(arguments) < 2:
        sys.exit(__doc__.strip().splitlines()[-1])
    path, names = arguments[0], arguments[1:]
    with open(path, "rb") as file:
        data = bytearray(file.read())
    for name in names:
        bound, known = 0, False
        for command, at in load_commands(data):
            if command == LC_DYLD_INFO_ONLY:
                bound = mark_binding(data, at, name.encode())
            elif command == LC_SYMTAB:
                known = mark_symbol(data, at, name.encode())
        if bound == 0 or not known:
            sys.exit(f"mark_weak.py: {path} imports no {name}")
    with open(path, "wb") as file:
        file.write(data)


if __name__ == "__main__":
    main(sys.argv[1:])
