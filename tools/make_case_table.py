#!/usr/bin/env python3
"""Writes src/core/case_table.inc: the simple upper and lower case mappings of Unicode as ranges.

A range holds characters that lie `step` apart and are all mapped by adding `delta`.
Run as: tools/make_case_table.py > src/core/case_table.inc
"""

import sys
import unicodedata


def simple_upper(character):
    upper = character.upper()
    if len(upper) == 1:
        return upper
    # Where the full mapping is longer, the title form of the Greek letters with iota is the simple one.
    title = character.title()
    return title if len(title) == 1 else character


def simple_lower(character):
    lower = character.lower()
    # The dotted capital I is the one character whose full lower mapping is longer.
    return lower if len(lower) == 1 else lower[0]


def ranges(mapping):
    found = []
    for code in range(sys.maxunicode + 1):
        if 0xD800 <= code <= 0xDFFF:
            continue
        target = ord(mapping(chr(code)))
        if target == code:
            continue
        if (target > 0xFFFF) != (code > 0xFFFF):
            raise SystemExit(f"U+{code:04X} changes its length in UTF-16")
        delta = target - code
        if found and found[-1][2] == delta:
            first, last, _, step = found[-1]
            gap = code - last
            if gap == step or (first == last and gap <= 2):
                found[-1] = (first, code, delta, gap)
                continue
        found.append((code, code, delta, 1))
    return found


def main():
    print(f"// Made by tools/make_case_table.py from Unicode {unicodedata.unidata_version}. Do not edit.")
    print("// {first, last, delta, step}")
    for name, mapping in (("upperRanges", simple_upper), ("lowerRanges", simple_lower)):
        print(f"\nconstexpr CaseRange {name}[] = {{")
        for first, last, delta, step in ranges(mapping):
            print(f"    {{0x{first:04X}, 0x{last:04X}, {delta}, {step}}},")
        print("};")


if __name__ == "__main__":
    main()
