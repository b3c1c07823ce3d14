"""Stores of which one call of the operating system after the other fails, or kills the process.

Run by test_faults.py with the library of failing calls preloaded: faulty_stores.py STORE FAIL|KILL
FOLDER. Prints what became of each as JSON: the exit status, the exception's class, message and
file, what the file holds and what stands in the folder.
"""

import base64
import ctypes
import json
import os
import sys

import numpy as np

import qelpro

OLD = "[Flow-1]\nFillTime = 1\nFRSet = 1\nFR-1 = 0\t5\n[Unit]\nTime = sec\n"


def in_a_batch(path):
    file = qelpro.ProcessFile(path)
    with file.batch():
        file["Flow-1"]["FillTime"] = 2
        file["Flow-2"] = {"FillTime": 3}
        del file["Unit"]


STORES = {
    "entry": lambda path: qelpro.ProcessFile(path)["Flow-1"].__setitem__("FillTime", 2),
    "removed entry": lambda path: qelpro.ProcessFile(path)["Flow-1"].__delitem__("FillTime"),
    "section": lambda path: qelpro.ProcessFile(path).__setitem__("Flow-1", {"MeltTemp": 2}),
    "removed section": lambda path: qelpro.ProcessFile(path).__delitem__("Unit"),
    "profile": lambda path: qelpro.ProcessFile(path).set_profile("Flow-1", "FR", np.ones((3, 2))),
    "batch": in_a_batch,
    "form": lambda path: qelpro.ProcessFile.from_dict({"A": {"x": 1}}, path, overwrite=True),
    "new form": lambda path: qelpro.ProcessFile.from_dict({"A": {"x": 1}}, path),
    "new": qelpro.new,
}


def attempt(store, variable, number, path, answer):
    """In a child: one call fails. Tells what was raised, and how many calls there were."""
    raised = None
    os.environ[variable] = str(number)
    try:
        store(path)
    except Exception as error:
        kind = "OSError" if isinstance(error, OSError) else type(error).__name__
        raised = (kind, str(error), getattr(error, "filename", None))
    finally:
        del os.environ[variable]
    os.write(answer, json.dumps([raised, ctypes.CDLL(None).qelpro_test_calls()]).encode())


def main(name, kind, folder):
    path = os.path.join(folder, "a.pro")
    found = []
    # A new file is some thousand calls, of which most are alike.
    for number in [*range(1, 40), *range(40, 9000, 240)]:
        for left in os.listdir(folder):
            os.remove(os.path.join(folder, left))
        if not name.startswith("new"):
            with open(path, "w") as stream:
                stream.write(OLD)
        reader, writer = os.pipe()
        child = os.fork()
        if child == 0:
            status = 1
            try:
                attempt(STORES[name], f"QELPRO_TEST_{kind}_AT", number, path, writer)
                status = 0
            finally:
                os._exit(status)
        os.close(writer)
        status = os.waitstatus_to_exitcode(os.waitpid(child, 0)[1])
        with os.fdopen(reader) as stream:
            raised, calls = json.loads(stream.read() or "[null, 9000]")
        contents = None
        if os.path.exists(path):
            with open(path, "rb") as stream:
                contents = base64.b64encode(stream.read()).decode()
        found.append([status, raised, contents, os.listdir(folder)])
        if calls < number:
            break
    print(json.dumps(found))


if __name__ == "__main__":
    main(*sys.argv[1:])
