"""Process files of injection-molding simulation, for people who study parameters.

Reading and writing one file::

    import qelpro

    qelpro.new("a.pro")                          # a file with default values
    f = qelpro.ProcessFile("a.pro")
    f["Flow-1"]["FillTime"]                      # 1.0, typed by the catalogue
    f["Flow-1"]["FillTime"] = 1.5                # stored before the statement ends
    f.profile("Flow-1", "FR")                    # a numpy array of shape (n, 2)
    f.set_profile("Flow-1", "FR", [[0, 50], [100, 40]])
    with f.batch():                              # many changes, one write, all or nothing
        f["Flow-1"]["MeltTemp"] = 235
        f["FlowCTL"]["VPSwitchCtrl"] = 0
    f.check()                                    # what is wrong with it
    f.plot("Flow-1.FR")                          # matplotlib Axes, with units

Many files::

    files = qelpro.sweep("a.pro", {"Flow-1.MeltTemp": [220, 240]}, "study")
    table = qelpro.scan(files, ["Flow-1.FillTime", "Flow-*.MeltTemp"])     # a pandas DataFrame

And: :func:`diff`, :func:`load_process` (the simulator's process), :class:`MachineBank`,
:class:`CoolantTable`, :func:`catalogue` (what the keys mean, with their units).

Errors are those of Python: what ``open()`` raises where a file cannot be read or written, KeyError
where something is not there, TypeError and ValueError for what a file cannot hold. A change that is
refused leaves the file as it was. Paths are str or os.PathLike. The global lock is released while
files are read or written. pandas, matplotlib and dask.distributed are needed by the calls that use
them alone.
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
