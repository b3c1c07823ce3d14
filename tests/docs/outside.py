"""What is asked of links that leave the tree: nobody follows them, so they are https, and few."""

import re
import sys

MOST = 25


def is_outside(target):
    return re.match(r"[a-zA-Z][a-zA-Z0-9+.-]*:|//", target) is not None


def faults(targets):
    """Of the links with where they stand; lists the others on the standard output."""
    found = [
        f"{where}: {target} is no https link"
        for target, where in sorted(targets.items())
        if not target.startswith("https://")
    ]
    if len(targets) > MOST:
        found.append(f"{len(targets)} links lead outside, {MOST} may")
    for target in sorted(targets):
        print(f"outside: {target}")
    return found


def ended(faults, told):
    """The exit status, with what was found or how much was looked at."""
    for fault in faults:
        print(fault, file=sys.stderr)
    print(told)
    return 1 if faults else 0
