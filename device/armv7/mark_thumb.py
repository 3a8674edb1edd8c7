"""Marks the functions that a library for 32-bit ARM offers as Thumb code, which its linker forgets in the list of names
on offer: whoever looked one up there would run it as other instructions. The symbol table knows.

usage: python3 mark_thumb.py LIBRARY
"""
import struct
import sys

from load_commands import LC_DYLD_INFO_ONLY, LC_SYMTAB, SYMBOL_SIZE, load_commands

IS_THUMB = 0x8


def text_at(data, at):
    return bytes(data[at:data.index(0, at)])


def thumb_functions(data, at):
    symbols, count, strings, _ = struct.unpack_from("<IIII", data, at + 8)
    for symbol in range(symbols, symbols + count * SYMBOL_SIZE, SYMBOL_SIZE):
        text, _, _, flags = struct.unpack_from("<IBBH", data, symbol)
        if flags & IS_THUMB:
            yield text_at(data, strings + text)


def number_at(data, at):
    """Seven bits a byte, the lowest first; and the place behind it."""
    value, shift = 0, 0
    while True:
        value |= (data[at] & 0x7F) << shift
        shift += 7
        at += 1
        if data[at - 1] < 0x80:
            return value, at


def addresses_on_offer(data, start, node, name=b""):
    """Each offered name with the place of its address."""
    size, at = number_at(data, start + node)
    if size > 0:
        _, address = number_at(data, at)
        yield name, address
    at += size
    children, at = data[at], at + 1
    for _ in range(children):
        edge = text_at(data, at)
        child, at = number_at(data, at + len(edge) + 1)
        yield from addresses_on_offer(data, start, child, name + edge)


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__.strip().splitlines()[-1])
    with open(arguments[0], "rb") as file:
        data = bytearray(file.read())
    commands = dict(load_commands(data))
    functions = set(thumb_functions(data, commands[LC_SYMTAB]))
    exports, = struct.unpack_from("<I", data, commands[LC_DYLD_INFO_ONLY] + 40)
    for name, address in addresses_on_offer(data, exports, 0):
        if name in functions:
            # The lowest bit is in the number's first byte.
            data[address] |= 1
    with open(arguments[0], "wb") as file:
        file.write(data)


if __name__ == "__main__":
    main(sys.argv[1:])
