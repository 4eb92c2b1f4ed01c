#!/usr/bin/env python3
"""summary.py RESULTS: closes a run of the tests, from the JUnit file that ctest wrote of it.

Prints each reason for which tests were skipped with their number, and last one line of all: "N passed, N failed,
N skipped". The result of the run is what ctest says; this exits with failure only where RESULTS cannot be read.
"""

import collections
import re
import sys
import xml.etree.ElementTree as xml

# What the test framework prints of a skipped test: "FILE:LINE: Skipped", the reason, and the closing line.
SKIPPED = re.compile(r"^\S+:\d+: Skipped\n(.*?)\n*^\[  SKIPPED \]", re.MULTILINE | re.DOTALL)


def outcome_of(test):
    """How a test ended: "passed", "failed" or "skipped". What could not be started has failed."""
    if test.get("status") == "disabled":
        return "skipped"
    skipped = test.find("skipped")
    if skipped is not None:
        return "skipped" if skipped.get("message", "").startswith("SKIP_") else "failed"
    return "failed" if test.find("failure") is not None else "passed"


def reason_of(test):
    """The reason that a test gives for being skipped, in one line."""
    if test.get("status") == "disabled":
        return "disabled"
    found = SKIPPED.search(test.findtext("system-out", ""))
    reason = " ".join(found.group(1).split()) if found else ""
    return reason or "no reason given"


def summary(suite):
    """The lines that close the run."""
    tests = suite.findall("testcase")
    outcomes = collections.Counter(map(outcome_of, tests))
    reasons = collections.Counter(reason_of(test) for test in tests if outcome_of(test) == "skipped")
    lines = [f"Skipped {number}: {reason}" for reason, number in sorted(reasons.items())]
    return lines + [", ".join(f"{outcomes[outcome]} {outcome}" for outcome in ("passed", "failed", "skipped"))]


def main(arguments):
    if len(arguments) != 1:
        sys.exit("usage: summary.py RESULTS")
    try:
        suite = xml.parse(arguments[0]).getroot()
    except (OSError, xml.ParseError) as error:
        sys.exit(f"{arguments[0]}: {error}")
    print("\n".join(summary(suite)))


if __name__ == "__main__":
    main(sys.argv[1:])
