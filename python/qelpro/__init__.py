"""Process files of injection-molding simulation, for people who study parameters.

A file is a mapping from sections to keys to values, typed by the catalogue. A change is in the file
before the statement ends:

>>> import qelpro
>>> qelpro.new("run.pro")  # a file with default values
>>> f = qelpro.ProcessFile("run.pro")
>>> f["Flow-1"]["FillTime"]
1.0
>>> f["Flow-1"]["FillTime"] = 1.5

Profiles are numpy arrays of shape (n, 2), and are plotted with their units:

>>> f.profile("Flow-1", "FR")
array([[  0.,  50.],
       [100.,  50.]])
>>> f.set_profile("Flow-1", "FR", [[0, 50], [100, 40]])
>>> ax = f.plot("Flow-1.FR")

Many changes are one write, all or nothing:

>>> with f.batch():
...     f["Flow-1"]["MeltTemp"] = 235
...     f["FlowCTL"]["VPSwitchCtrl"] = 0

A study makes many files, and a scan makes them one pandas table:

>>> files = qelpro.sweep("run.pro", {"Flow-1.MeltTemp": [220, 240]}, "study")
>>> qelpro.scan(files, ["Flow-1.FillTime", "Flow-*.MeltTemp"])
                 file  Flow-1.FillTime  Flow-1.MeltTemp
0  study/run-0001.pro              1.5            220.0
1  study/run-0002.pro              1.5            240.0

Besides: ``f.check()`` tells what is wrong with a file and ``diff()`` how two differ,
``load_process()`` makes the simulator's process, ``MachineBank`` and ``CoolantTable`` read the
reference data, and ``catalogue()`` tells what the keys mean, with their units.

Errors are those of Python: what ``open()`` raises where a file cannot be read or written, KeyError
where something is not there, TypeError and ValueError for what a file cannot hold. A change that is
refused leaves the file as it was. Paths are str or os.PathLike. The global lock is released while
files are read or written. pandas, matplotlib and dask's distributed are needed by ``scan()``,
``plot()`` and a scan on a cluster alone.
"""

from ._documents import catalogue, diff, new
from ._engine import __version__
from ._file import ProcessFile, Section
from ._process import HeatTransfer, Inlet, Process, ProcessMachine, load_process
from ._records import CoolantProperties, Difference, Finding, Machine
from ._reference import CoolantTable, MachineBank
from ._scan import scan
from ._study import sweep

__all__ = [
    "CoolantProperties",
    "CoolantTable",
    "Difference",
    "Finding",
    "HeatTransfer",
    "Inlet",
    "Machine",
    "MachineBank",
    "Process",
    "ProcessFile",
    "ProcessMachine",
    "Section",
    "__version__",
    "catalogue",
    "diff",
    "load_process",
    "new",
    "scan",
    "sweep",
]
