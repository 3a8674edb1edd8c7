"""Signs a library for the phone, ad hoc: hashes of its pages, and no certificate.

The phone's kernel maps a page only if its hash is in the library's signature. Kernels before iOS 9.3 read SHA-1
hashes alone and later ones want SHA-256, so the signature has a code directory of each kind. Sign last: any later
change to the file makes its pages unusable.

usage: python3 sign.py LIBRARY IDENTIFIER
"""
import hashlib
import struct
import sys

MAGIC_64, MAGIC_32 = 0xFEEDFACF, 0xFEEDFACE
LC_SEGMENT, LC_SEGMENT_64, LC_CODE_SIGNATURE = 0x1, 0x19, 0x1D
SIGNATURE_COMMAND_SIZE = 16

CODE_DIRECTORY, REQUIREMENTS, CMS_WRAPPER, SUPER_BLOB = 0xFADE0C02, 0xFADE0C01, 0xFADE0B01, 0xFADE0CC0
SLOT_DIRECTORY, SLOT_REQUIREMENTS, SLOT_ALTERNATE_DIRECTORY, SLOT_CMS = 0, 2, 0x1000, 0x10000
DIRECTORY_VERSION = 0x20100
AD_HOC = 0x2
PAGE_SHIFT = 12
PAGE = 1 << PAGE_SHIFT
# The kernel maps the last segment in pages of this size.
SEGMENT_ALIGNMENT = 0x4000


def align(value, to):
    return (value + to - 1) // to * to


def blob(magic, payload):
    return struct.pack(">II", magic, 8 + len(payload)) + payload


EMPTY_REQUIREMENTS = blob(REQUIREMENTS, struct.pack(">I", 0))


def code_directory(code, identifier, algorithm, hash_type):
    """One code directory over `code`: special slots for the requirements and the absent Info.plist, then a slot for
    each page."""
    def digest(data):
        return hashlib.new(algorithm, data).digest()

    pages = [digest(code[at:at + PAGE]) for at in range(0, len(code), PAGE)]
    no_info_plist = bytes(len(pages[0]))
    specials = [digest(EMPTY_REQUIREMENTS), no_info_plist]
    name = identifier.encode() + b"\0"
    header_size = 44 + 4
    hash_offset = header_size + len(name) + len(b"".join(specials))
    header = struct.pack(">IIIIIIIBBBBII", DIRECTORY_VERSION, AD_HOC, hash_offset, header_size, len(specials),
                         len(pages), len(code), len(pages[0]), hash_type, 0, PAGE_SHIFT, 0, 0)
    return blob(CODE_DIRECTORY, header + name + b"".join(specials + pages))


def super_blob(code, identifier):
    entries = [(SLOT_DIRECTORY, code_directory(code, identifier, "sha1", 1)),
               (SLOT_REQUIREMENTS, EMPTY_REQUIREMENTS),
               (SLOT_ALTERNATE_DIRECTORY, code_directory(code, identifier, "sha256", 2)),
               (SLOT_CMS, blob(CMS_WRAPPER, b""))]
    index, content = b"", b""
    first = 8 + 4 + 8 * len(entries)
    for slot, entry in entries:
        index += struct.pack(">II", slot, first + len(content))
        content += entry
    return blob(SUPER_BLOB, struct.pack(">I", len(entries)) + index + content)


class Library:
    """The load commands that a signature changes."""

    def __init__(self, data):
        magic, = struct.unpack_from("<I", data)
        if magic not in (MAGIC_64, MAGIC_32):
            raise ValueError("this is no library for one processor of the phone")
        self.is64 = magic == MAGIC_64
        self.header_size = 32 if self.is64 else 28
        self.command_count, self.commands_size = struct.unpack_from("<II", data, 16)
        self.link_edit = None
        self.first_section = len(data)
        at = self.header_size
        for _ in range(self.command_count):
            command, size = struct.unpack_from("<II", data, at)
            if command == LC_CODE_SIGNATURE:
                raise ValueError("it is signed already; link it without a signature")
            if command in (LC_SEGMENT, LC_SEGMENT_64):
                self._read_segment(data, at)
            at += size
        if self.link_edit is None:
            raise ValueError("it has no __LINKEDIT segment to keep a signature in")

    def _read_segment(self, data, at):
        if data[at + 8:at + 24].rstrip(b"\0") == b"__LINKEDIT":
            self.link_edit = at
        sections, = struct.unpack_from("<I", data, at + (64 if self.is64 else 48))
        for index in range(sections):
            section = at + (72 + 80 * index if self.is64 else 56 + 68 * index)
            offset, = struct.unpack_from("<I", data, section + (48 if self.is64 else 40))
            if offset > 0:
                self.first_section = min(self.first_section, offset)

    def add_signature_command(self, data, offset, size):
        """Names the signature in the header, and lets the last segment reach over it."""
        end = self.header_size + self.commands_size
        if end + SIGNATURE_COMMAND_SIZE > self.first_section:
            raise ValueError("its header has no room for a signature; link it with -headerpad")
        struct.pack_into("<IIII", data, end, LC_CODE_SIGNATURE, SIGNATURE_COMMAND_SIZE, offset, size)
        struct.pack_into("<II", data, 16, self.command_count + 1, self.commands_size + SIGNATURE_COMMAND_SIZE)
        word = "Q" if self.is64 else "I"
        width = struct.calcsize(word)
        size_at, file_at = self.link_edit + 24 + width, self.link_edit + 24 + 2 * width
        start, = struct.unpack_from("<" + word, data, file_at)
        length = offset + size - start
        struct.pack_into("<" + word, data, size_at, align(length, SEGMENT_ALIGNMENT))
        struct.pack_into("<" + word, data, file_at + width, length)


def signed(data, identifier):
    """The library's bytes with a signature at their end. Raises ValueError with a reason."""
    library = Library(data)
    code = bytearray(data) + bytes(align(len(data), 16) - len(data))
    # The header's page is hashed, too, so it has to know the signature's size before there is one.
    size = len(super_blob(code, identifier))
    library.add_signature_command(code, len(code), size)
    return bytes(code) + super_blob(code, identifier)


def main(arguments):
    if len(arguments) != 2:
        sys.exit(__doc__.strip().splitlines()[-1])
    path, identifier = arguments
    try:
        with open(path, "rb") as file:
            result = signed(file.read(), identifier)
        with open(path, "wb") as file:
            file.write(result)
    except (OSError, ValueError, struct.error) as error:
        sys.exit(f"sign.py: {path}: {error}")


if __name__ == "__main__":
    main(sys.argv[1:])
