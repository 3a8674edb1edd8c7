"""Checks a library's signature as a kernel does: both code directories cover the whole file up to the signature, and
every hash in them is that of its page.

usage: python3 check_signature.py LIBRARY IDENTIFIER
"""
import hashlib
import re
import struct
import sys

from report import Report, output_of

HASHES = {1: hashlib.sha1, 2: hashlib.sha256}
DIRECTORY_SLOTS = {0: 1, 0x1000: 2}


def big(data, at, count=1):
    return struct.unpack(f">{count}I", data[at:at + 4 * count])


def signature_place(library):
    headers = output_of("llvm-objdump-14", "--macho", "--private-headers", library)
    place = re.search(r"cmd LC_CODE_SIGNATURE\n +cmdsize 16\n +dataoff (\d+)\n +datasize (\d+)", headers)
    if place is None:
        sys.exit(f"{library}: it is not signed")
    return int(place[1]), int(place[2])


def check_directory(report, name, directory, code, identifier, hash_type, requirements):
    magic, length, version, flags, hashes, name_at, specials, pages, limit = big(directory, 0, 9)
    size, kind, _, page_shift = directory[36:40]
    report.expect(magic == 0xFADE0C02 and length == len(directory), f"{name}: it is no code directory")
    report.expect(version == 0x20100 and flags == 2, f"{name}: version {version:#x}, flags {flags:#x}")
    report.expect(directory[name_at:].split(b"\0")[0].decode() == identifier, f"{name}: it is signed for another name")
    report.expect(kind == hash_type and page_shift == 12, f"{name}: hash type {kind}, pages of 2^{page_shift} bytes")
    report.expect(limit == len(code), f"{name}: it covers {limit} of {len(code)} bytes")
    digest = HASHES[hash_type]
    wanted = [digest(code[at:at + 4096]).digest() for at in range(0, limit, 4096)]
    report.expect(pages == len(wanted), f"{name}: {pages} pages, not {len(wanted)}")
    for index, value in enumerate(wanted):
        at = hashes + index * size
        report.expect(directory[at:at + size] == value, f"{name}: the hash of page {index} is another")
    special = [directory[hashes - slot * size:hashes - (slot - 1) * size] for slot in range(1, specials + 1)]
    report.expect(special == [bytes(size), digest(requirements).digest()], f"{name}: wrong special slots")
    report.expect(hashes + pages * size == length, f"{name}: something follows its hashes")


def main(arguments):
    if len(arguments) != 2:
        sys.exit(__doc__.strip().splitlines()[-1])
    library, identifier = arguments
    report = Report(library)
    offset, size = signature_place(library)
    with open(library, "rb") as file:
        data = file.read()
    report.expect(offset + size == len(data) and offset % 16 == 0, "the signature is not what ends the file")
    signature = data[offset:offset + size]
    magic, length, count = big(signature, 0, 3)
    report.expect(magic == 0xFADE0CC0 and length == size, "its signature is no set of signature parts")
    parts = {}
    for slot, at in (big(signature, 12 + 8 * index, 2) for index in range(count)):
        parts[slot] = signature[at:at + big(signature, at + 4)[0]]
    report.same("parts", parts, [*DIRECTORY_SLOTS, 2, 0x10000])
    report.expect(parts[2] == bytes.fromhex("fade0c010000000c00000000"), "its requirements are not empty")
    report.expect(parts[0x10000] == bytes.fromhex("fade0b0100000008"), "it holds a certificate")
    for slot, hash_type in DIRECTORY_SLOTS.items():
        check_directory(report, f"code directory {slot:#x}", parts[slot], data[:offset], identifier, hash_type, parts[2])
    report.end()


if __name__ == "__main__":
    main(sys.argv[1:])
