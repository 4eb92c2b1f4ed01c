#!/usr/bin/env python3
"""Writes UpperCaseTable.inc from Unicode's UnicodeData.txt (Debian: package unicode-data).

usage: generate_upper_case_table.py /usr/share/unicode/UnicodeData.txt > UpperCaseTable.inc
"""
import sys


def simple_upper_case(path):
    """(character, upper case) for each character that has a simple upper-case mapping, in order."""
    with open(path, encoding="ascii") as data:
        for line in data:
            fields = line.split(";")
            if fields[12]:
                yield int(fields[0], 16), int(fields[12], 16)


def runs(pairs):
    """The pairs as rows (first, last, step, distance) with steps of 1 or 2."""
    rows = []
    for character, upper in pairs:
        distance = upper - character
        if rows:
            first, last, step, known = rows[-1]
            gap = character - last
            if known == distance and (gap == step or (first == last and gap in (1, 2))):
                rows[-1] = (first, character, gap, known)
                continue
        rows.append((character, character, 1, distance))
    return rows


def main():
    for first, last, step, distance in runs(simple_upper_case(sys.argv[1])):
        print(f"    {{0x{first:05X}, 0x{last:05X}, {step}, {distance}}},")


main()
