#!/usr/bin/env python3
"""Packs the topic stream for help.exe:   pack_topics.py STREAM PACKED

The form is described in companions/help_viewer/packed_stream.h. Among all divisions of the stream into bytes and
repetitions it uses the shortest, so the same stream always gives the same bytes.
"""
import pathlib
import struct
import sys

# A repetition is 16 bits: its distance, and above it its length. Of all divisions this one packs the manual best.
DISTANCE_BITS = 13
MAX_DISTANCE = 1 << DISTANCE_BITS
SHORTEST = 3
LONGEST = SHORTEST + (1 << 16 - DISTANCE_BITS) - 1
# Bits of an item including its flag.
BYTE_COST = 9
REPETITION_COST = 17


def longest_repetitions(data):
    """Returns for each position the length and distance of the longest repetition of earlier bytes; length 0 if there
    is none."""
    places = {}
    found = []
    for here in range(len(data)):
        start = data[here:here + SHORTEST]
        earlier = places.setdefault(start, []) if len(start) == SHORTEST else []
        best = (0, 0)
        for there in reversed(earlier):
            if here - there > MAX_DISTANCE or best[0] == LONGEST:
                break
            length = SHORTEST
            while length < LONGEST and here + length < len(data) and data[there + length] == data[here + length]:
                length += 1
            best = max(best, (length, there - here))
        earlier.append(here)
        found.append((best[0], -best[1]))
    return found


def items_of(data):
    """Returns the bytes (an int) and repetitions (length, distance) of the shortest division."""
    found = longest_repetitions(data)
    costs = [0] * (len(data) + 1)
    lengths = [1] * len(data)
    for here in reversed(range(len(data))):
        costs[here] = costs[here + 1] + BYTE_COST
        for length in range(SHORTEST, found[here][0] + 1):
            if costs[here + length] + REPETITION_COST < costs[here]:
                costs[here] = costs[here + length] + REPETITION_COST
                lengths[here] = length
    here = 0
    while here < len(data):
        yield data[here] if lengths[here] == 1 else (lengths[here], found[here][1])
        here += lengths[here]


def pack(data):
    packed = bytearray(struct.pack("<I", len(data)))
    items = list(items_of(data))
    for first in range(0, len(items), 8):
        flags = 0
        group = bytearray()
        for bit, item in enumerate(items[first:first + 8]):
            if isinstance(item, int):
                flags |= 1 << bit
                group.append(item)
            else:
                length, distance = item
                group += struct.pack("<H", (length - SHORTEST) << DISTANCE_BITS | distance - 1)
        packed.append(flags)
        packed += group
    return bytes(packed)


def main():
    stream, packed = sys.argv[1:]
    pathlib.Path(packed).write_bytes(pack(pathlib.Path(stream).read_bytes()))


if __name__ == "__main__":
    main()
