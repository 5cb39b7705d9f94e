#!/usr/bin/env python3
"""spoil.py FILE OUTPUT ARCHITECTURE WHAT: copies code with one fault in one architecture's half.

WHAT is "byte", for which the copy is left with a signature that no longer fits; or, signed anew:

- "instruction": where the pane plays a sound, it plays another one;
- "fixup": what is bound to the function that sends messages is bound to the one that releases objects;
- "answer": what hands over an object that is nobody's, autoreleasing it, retains it instead;
- "block": the class of the first block that is made is signed otherwise than blocks' are (of arm64e alone).

Prints where the fault is, as the half's file has it.
"""

import hashlib
import struct
import sys
from pathlib import Path

SUBTYPES = {"arm64": 0, "arm64e": 2}
UNIVERSAL = b"\xca\xfe\xba\xbe"
SEGMENT, FIXUPS, SIGNATURE = 0x19, 0x80000034, 0x1D
SOUND = 0x5280BDE0  # mov w0, #1519
BLOCK = 0xF2E00000 | 0x6AE1 << 5  # movk x0, #0x6ae1, lsl #48


class Half:
    """One architecture's part of a universal file, or a file for it alone, to be changed in place."""

    def __init__(self, data, architecture):
        self.data, self.start = data, 0
        parts = struct.unpack_from(">I", data, 4)[0] if data.startswith(UNIVERSAL) else 0
        for entry in range(8, 8 + 20 * parts, 20):
            _, subtype, offset, _, _ = struct.unpack_from(">5I", data, entry)
            if subtype & 0xFFFFFF == SUBTYPES[architecture]:
                self.start = offset
        self.commands = {}
        self.sections = {}
        place = 32
        for _ in range(self.read("<I", 16)):
            kind, size = self.read("<II", place)
            self.commands[kind] = place
            if kind == SEGMENT:
                self.read_sections(place)
            place += size

    def read(self, form, place):
        found = struct.unpack_from(form, self.data, self.start + place)
        return found[0] if len(found) == 1 else found

    def write(self, form, place, value):
        struct.pack_into(form, self.data, self.start + place, value)

    def read_sections(self, segment):
        for section in range(segment + 72, segment + 72 + 80 * self.read("<I", segment + 64), 80):
            name = self.read("16s", section).rstrip(b"\0").decode()
            address, size, offset = self.read("<QQI", section + 32)
            self.sections[name] = (address, size, offset)

    def signed_slots(self):
        """Where pointers are that are signed, in the order in which a loader comes to them."""
        fixups = self.read("<I", self.commands[FIXUPS] + 8)
        starts = fixups + self.read("<I", fixups + 4)
        for segment in range(self.read("<I", starts)):
            offset = self.read("<I", starts + 4 + 4 * segment)
            if offset != 0:
                yield from self.slots_of(starts + offset)

    def slots_of(self, starts):
        page_size, _ = self.read("<HH", starts + 4)
        address, _ = self.read("<QI", starts + 8)
        for page in range(self.read("<H", starts + 20)):
            first = self.read("<H", starts + 22 + 2 * page)
            place = address + page * page_size + first  # segments lie in the file as they do in memory
            distance = 0 if first == 0xFFFF else 1
            while distance:
                content = self.read("<Q", place)
                if content >> 63:
                    yield place
                distance = 8 * (content >> 51 & 0x7FF)
                place += distance

    def imports(self):
        """The names of the imports, in the order of their numbers."""
        fixups = self.read("<I", self.commands[FIXUPS] + 8)
        _, _, imports, names, count, form, _ = self.read("<7I", fixups)
        found = []
        for number in range(count):
            name = fixups + names + (self.read("<I", fixups + imports + number * (4 if form == 1 else 8)) >> 9)
            end = self.data.index(b"\0", self.start + name)
            found.append(self.data[self.start + name : end].decode())
        return found

    def sign_anew(self, place):
        """The hash of the page in which a place is."""
        signature = self.read("<I", self.commands[SIGNATURE] + 8)
        directory = signature + self.read(">I", signature + 16)
        size = 1 << self.read("B", directory + 39)
        page, hashes = place // size, directory + self.read(">I", directory + 16)
        end = min((page + 1) * size, self.read(">I", directory + 32))
        content = bytes(self.data[self.start + page * size : self.start + end])
        self.write("32s", hashes + 32 * page, hashlib.sha256(content).digest())


def change_first(half, instruction, register, changed):
    """Changes the first instruction that is one, whichever register it is for. Returns its place."""
    _, size, offset = half.sections["__text"]
    places = range(offset, offset + size, 4)
    place = next(place for place in places if half.read("<I", place) & ~register == instruction)
    half.write("<I", place, half.read("<I", place) + changed)
    return place


def bind_otherwise(half, symbol, other):
    """Binds what is bound to an import to another one. Returns its place."""
    bound, instead = map(half.imports().index, (symbol, other))
    _, size, start = half.sections["__got"]
    place = next(slot for slot in range(start, start + size, 8) if half.read("<Q", slot) & 0xFFFFFF == bound)
    half.write("<Q", place, half.read("<Q", place) + instead - bound)
    return place


def spoil(half, what):
    """Plants the fault. Returns its place."""
    if what == "byte":
        place = half.sections["__text"][2]
        half.write("B", place, half.read("B", place) ^ 1)
        return place
    if what == "instruction":
        place = change_first(half, SOUND, 0, 1 << 5)
    elif what == "block":
        place = change_first(half, BLOCK, 0x1F, 1 << 5)
    elif what == "answer":
        place = bind_otherwise(half, "_objc_autorelease", "_objc_retain")
    else:
        place = bind_otherwise(half, "_objc_msgSend", "_objc_release")
    half.sign_anew(place)
    return place


def main(arguments):
    if len(arguments) != 4 or arguments[2] not in SUBTYPES:
        sys.exit(__doc__)
    data = bytearray(Path(arguments[0]).read_bytes())
    place = spoil(Half(data, arguments[2]), arguments[3])
    Path(arguments[1]).write_bytes(data)
    print(f"{place:x}")


if __name__ == "__main__":
    main(sys.argv[1:])
