"""The load commands of a library for 32-bit ARM, for the scripts that mend one."""
import struct

LC_SYMTAB, LC_DYLD_INFO_ONLY = 0x2, 0x80000022
HEADER_SIZE = 28
SYMBOL_SIZE = 12


def load_commands(data):
    """Each command's number, with its place."""
    count, = struct.unpack_from("<I", data, 16)
    at = HEADER_SIZE
    for _ in range(count):
        command, size = struct.unpack_from("<II", data, at)
        yield command, at
        at += size
