#!/usr/bin/python3
"""Reads a value change dump by its grammar and recounts the pulses of both motors.

verifie_vcd.py FILE [--az0 N] [--az8 N] [--alt0 N] [--alt2 N] [--fin NS]

Ends with status 1 if the file is malformed, times do not grow, a change changes nothing, or a count differs;
counts that are not given are expected to be 0.
"""

import argparse
import sys

LINES = {"pas_alt": 1, "sens_alt": 1, "pas_az": 1, "sens_az": 1,
         "d4": 1, "d5": 1, "d6": 1, "d7": 1, "controle": 4}


def fail(message):
    sys.exit("verifie_vcd: " + message)


def header(tokens):
    """Declared variables by identifier: (name, width). Stops after $enddefinitions."""
    variables, scale, scopes = {}, None, 0
    for keyword in tokens:
        body = []
        for token in tokens:
            if token == "$end":
                break
            body.append(token)
        else:
            fail("unfinished " + keyword)
        if keyword == "$timescale":
            scale = "".join(body)
        elif keyword == "$scope":
            scopes += 1
        elif keyword == "$upscope":
            scopes -= 1
        elif keyword == "$var":
            kind, width, identifier, name = body[:4]
            if kind != "wire" or scopes != 1 or identifier in variables or len(body) > 5:
                fail("variable " + " ".join(body))
            variables[identifier] = (name, int(width))
        elif keyword == "$enddefinitions":
            if scale != "1ns":
                fail("timescale %s" % scale)
            if dict(variables.values()) != LINES or len(variables) != len(LINES):
                fail("variables %s" % sorted(variables.values()))
            return variables
        elif keyword not in ("$version", "$date", "$comment"):
            fail("unknown keyword " + keyword)
    fail("no $enddefinitions")


def changes(tokens, variables):
    """Yields (time, {name: value}) for every instant, the initial values first."""
    time, values, dumping = None, {}, False
    for token in tokens:
        if token[0] == "#":
            if time is not None:
                yield time, values
            new = int(token[1:])
            if (time is None and new != 0) or (time is not None and new <= time) or dumping:
                fail("time %d after %s" % (new, time))
            time, values = new, {}
        elif token == "$dumpvars":
            if time != 0 or values:
                fail("$dumpvars at %s" % time)
            dumping = True
        elif token == "$end":
            if not dumping or len(values) != len(variables):
                fail("$end with %d values" % len(values))
            dumping = False
        elif token[0] in "01" or token[0] == "b":
            digits, identifier = (token[1:], next(tokens, "")) if token[0] == "b" else (token[0], token[1:])
            if identifier not in variables:
                fail("unknown identifier in " + token)
            name, width = variables[identifier]
            if time is None or name in values or (token[0] == "b") != (width > 1) or len(digits) > width:
                fail("change of %s at %s" % (name, time))
            values[name] = int(digits, 2)
        else:
            fail("unknown token " + token)
    if time is None or dumping:
        fail("no value at time 0")
    yield time, values


def recount(instants):
    count = {"az0": 0, "az8": 0, "alt0": 0, "alt2": 0}
    state = {}
    for time, values in instants:
        if time == 0 and len(values) != len(LINES):
            fail("%d initial values" % len(values))
        if time > 0 and (not values or any(state[name] == v for name, v in values.items())):
            fail("no change at %d" % time)
        before = dict(state)
        state.update(values)
        for axis, weight in (("az", "8"), ("alt", "2")):
            if time > 0 and state["pas_" + axis] > before["pas_" + axis]:
                count[axis + (weight if state["sens_" + axis] else "0")] += 1
    return count, time


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("file")
    for name in ("az0", "az8", "alt0", "alt2"):
        parser.add_argument("--" + name, type=int, default=0)
    parser.add_argument("--fin", type=int)
    arguments = parser.parse_args()
    with open(arguments.file, encoding="ascii") as file:
        tokens = iter(file.read().split())
    count, end = recount(changes(tokens, header(tokens)))
    for name, found in count.items():
        if found != getattr(arguments, name):
            fail("%s: %d pulses, %d expected" % (name, found, getattr(arguments, name)))
    if arguments.fin is not None and end != arguments.fin:
        fail("last change at %d, %d expected" % (end, arguments.fin))


main()
