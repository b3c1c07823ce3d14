"""Work on a file in processes that may have ever more memory.

Run by test_faults.py: scarce_memory.py WORK FILE. Prints the exit statuses as JSON: `DONE`,
`TOO_LITTLE`, 1 for another exception, and below 0 where a signal ended the process.
"""

import errno
import json
import os
import resource
import sys
import traceback

import qelpro

DONE = 0
TOO_LITTLE = 7

BIG = "[Flow-1]\nFillTime = 1\n[Mine]\n" + "".join(f"k{n} = {'x' * 900}\n" for n in range(2_000))


def change_two(path):
    file = qelpro.ProcessFile(path)
    with file.batch():
        file["Flow-1"]["FillTime"] = 2
        file["Mine"]["k7"] = "y"


WORK = {
    "read": lambda path: qelpro.ProcessFile(path)["Flow-1"]["FillTime"],
    "section": lambda path: dict(qelpro.ProcessFile(path)["Flow-1"]),
    "check": lambda path: qelpro.ProcessFile(path).check(),
    "diff": lambda path: qelpro.diff(path, path),
    "process": lambda path: qelpro.load_process(path),
    "store": lambda path: qelpro.ProcessFile(path)["Flow-1"].__setitem__("FillTime", 2),
    "batch": change_two,
    "profile": lambda path: qelpro.ProcessFile(path).set_profile("Flow-1", "FR", [[0, 1]] * 500),
}
STORING = ("store", "batch", "profile")


def used_memory():
    with open("/proc/self/statm") as stream:
        return int(stream.read().split()[0]) * resource.getpagesize()


def work_within(more, work, path):
    unlimited = (resource.RLIM_INFINITY, resource.RLIM_INFINITY)
    resource.setrlimit(resource.RLIMIT_AS, (used_memory() + more, resource.RLIM_INFINITY))
    try:
        work(path)
        return DONE
    except MemoryError:
        return TOO_LITTLE
    except Exception as error:
        resource.setrlimit(resource.RLIMIT_AS, unlimited)
        if "out of memory" in str(error) or getattr(error, "errno", None) == errno.ENOMEM:
            return TOO_LITTLE
        traceback.print_exc()
        return 1


def main(name, path):
    import numpy  # noqa: F401  before the memory is scarce

    statuses = []
    for more in range(0, 30_000_000, 4_000_000):
        child = os.fork()
        if child == 0:
            os._exit(work_within(more, WORK[name], path))
        statuses.append(os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]))
    print(json.dumps(statuses))


if __name__ == "__main__":
    main(*sys.argv[1:])
