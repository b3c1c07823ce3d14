"""What an editor knows of the package.

mypy reads this file, nobody runs it: an ignored line is one that mypy has to refuse.
"""

from __future__ import annotations

from pathlib import Path
from typing import Any, Union

import matplotlib.axes
import numpy as np
import numpy.typing as npt
import pandas as pd
from distributed import Client
from typing_extensions import assert_type

import qelpro


def one_file(f: qelpro.ProcessFile, ax: matplotlib.axes.Axes) -> None:
    assert_type(f["Flow-1"], qelpro.Section)
    time: float = f["Flow-1"]["FillTime"]
    f["Flow-1"]["FillTime"] = time
    f["Flow-1", "FillTime"] = f["Flow-1", "FillTime"]
    f["Flow-3"] = {"FillTime": 1.5, "FR-1": (0.0, 50.0)}
    f["Flow-3"] = f["Flow-1"]
    f["Flow-3"] = 1.5  # type: ignore[call-overload]
    f[3]  # type: ignore[call-overload]
    f["Flow-1"][1]  # type: ignore[index]
    del f["Flow-1"]["FillTime"], f["Flow-1", "FillTime"], f["Flow-1"]
    assert_type(f.get("Flow-9"), Union[qelpro.Section, None])
    assert_type(f.get("Flow-9", 0), Union[qelpro.Section, int])
    assert_type(f.setdefault("Flow-9", {"FillTime": 1}), qelpro.Section)
    assert_type(f.pop("Flow-9"), dict[str, Any])
    assert_type(f.popitem(), tuple[str, dict[str, Any]])
    assert_type([name for name in f], list[str])
    assert_type([section for section in f.values()], list[qelpro.Section])
    assert_type(f["Flow-1"].text("FillTime"), str)
    assert_type("Flow-1" in f, bool)
    assert_type(f.path, Path)
    assert_type(f.inlets, list[int])
    with f.batch() as same:
        assert_type(same, qelpro.ProcessFile)
        same.update({"Flow-1": {"FillTime": 2}})
    assert_type(f.to_dict(), dict[str, dict[str, Any]])
    assert_type(qelpro.ProcessFile.from_dict(f.to_dict(), Path("b.pro")), qelpro.ProcessFile)
    assert_type(f.plot("Flow-1.FR", ax=ax, color="k"), matplotlib.axes.Axes)
    open(f)


def profiles(f: qelpro.ProcessFile) -> None:
    assert_type(f.profile("Flow-1", "FR"), npt.NDArray[np.float64])
    f.set_profile("Flow-1", "FR", [[0, 50], [100, 40]])
    f.set_profile("Flow-1", "FR", np.zeros((2, 2)))
    f.set_profile("Flow-1", [[0, 50]])  # type: ignore[call-arg, arg-type]


def findings(f: qelpro.ProcessFile) -> None:
    for finding in f.check():
        assert_type(finding, qelpro.Finding)
        assert_type((finding.line, finding.column), tuple[int, int])
        assert_type((finding.file, finding.severity, finding.code), tuple[str, str, str])
        assert_type((finding.message, finding.section, finding.key), tuple[str, str, str])
        assert_type(finding.hint, str)
        finding.text  # type: ignore[attr-defined]
    for difference in qelpro.diff("a.pro", f, tolerance=1e-6):
        assert_type((difference.kind, difference.address), tuple[str, str])


def processes() -> None:
    process = qelpro.load_process(Path("a.pro"))
    assert_type(process.inlets[0].FillTime, Union[float, None])
    assert_type(process.inlets[0].number, int)
    assert_type(process.inlets[0].flow_rate, npt.NDArray[np.float64])
    assert_type(process.machine.Maker, Union[str, None])
    assert_type(process.heat_transfer.HeatTransferType, Union[int, None])
    assert_type(process.VPSwitchCtrl, Union[int, None])
    process.NoSuchValue  # type: ignore[attr-defined]


def reference_data() -> None:
    bank = qelpro.MachineBank("machines.bank")
    assert_type(bank.makers, list[str])
    assert_type(bank.machines("Tessaro")[0].grade, str)
    water = qelpro.CoolantTable("coolants.pcs").properties(0, 25)
    assert_type(water.density + water.specific_heat, float)
    assert_type(water.conductivity + water.viscosity, float)
    known = qelpro.catalogue()["Flow-%ld"]
    assert_type(known["subject"], str)
    assert_type(known["keys"]["FillTime"]["unit"], str)
    assert_type(known["keys"]["FillTime"]["fields"][0]["kind"], str)
    assert_type(known["keys"]["FR-%d"].get("counted_by"), Union[str, None])
    known["keys"]["FillTime"]["unity"]  # type: ignore[typeddict-item]


def studies(client: Client) -> None:
    files = qelpro.sweep(
        "a.pro", {"Flow-1.MeltTemp": [220, 240], "Flow-1.FillTime": "1:2:0.5"}, "study"
    )
    assert_type(files, list[Path])
    qelpro.sweep(
        "a.pro", {"Flow-1.FillTime": (1.0, 2.0)}, "other", samples=10, seed=1, overwrite=True
    )
    qelpro.sweep("a.pro", {"Flow-1.FillTime": np.linspace(1, 2, 5)}, "third")
    mixed = {"Flow-1.FillTime": [0.5, 1], "Flow-1.MeltTemp": [220, 240]}
    qelpro.sweep("a.pro", mixed, "fourth")
    table = qelpro.scan(files, ["Flow-1.FillTime"])
    assert_type(table, pd.DataFrame)
    qelpro.scan(["a.pro", Path("b.pro")], ("Flow-1.FillTime",), errors="record", client=client)
    qelpro.scan(files, ["Flow-1.FillTime"], errors="ignore")  # type: ignore[arg-type]
