"""Process files like those of a study: as many sections and keys as real ones have, numbers that differ."""

import random
from pathlib import Path

_SINGLE = {
    "FileHeader": {"Name": "study.pro", "Type": "PRO", "Date": "2026/11/15 09:05:07", "CreateBy": "Process Wizard"},
    "CaeHeader": {"Version": "9.1", "Release": "R3", "Project": "Study", "Type": "Injection", "FileVersion": "910", "FileType": "2", "ProjectType": "1 0"},
    "Project": {"Mesh": "study.msh", "Material": "RESIN_A_30.mtr", "MeshID": "5", "CavVol": "48.1266", "CushionVol": "4.5", "ClampFaceArea": "112.75"},
    "Unit": {"Time": "sec\tTime", "Temp": "oC\tTemperature", "Pres": "MPa\tPressure", "FR": "cc/sec\tFlowRate", "Volume": "cc\tVolume"},
    "FlowCTL": {"FlowCtrl": "1", "VPSwitchCtrl": "0", "PackingCtrl": "2", "VolumeFilled": "98.5", "RamPosition": "12.25", "CureSwitch": "0"},
}
_LAST = {
    "Cool": {"CoolTime": "15", "OpenTime": "5", "EjectTemp": "95", "AirTemp": "25", "CoolantTemp": "55", "CoolantFR": "120", "CoolingType": "1"},
    "Machine": {"Maker": "Maker A", "Grade": "A 180", "Diameter": "25", "MaxRamPos": "125", "ShotVolume": "61.4", "MaxMachinePres": "245", "InjectionSpeed": "300"},
    "AdvancedSetting": {"OpenDirection": "0\t0\t1", "ClampForce": "150", "CycleTime": "26.5"},
}
_FLOW = ("MaxFillingTime", "MoldTemp", "InjectPres", "InjVol", "MaxFR", "MaxPress", "PushBackTime")
_SWITCHES = ("FRDisplayType", "IPDisplayType", "TPDisplayType", "FRProfileType", "IPProfileType", "FRStrokeMode", "FlowPackMode")
_PACK = ("PackPres", "PackSwch", "MaxEOFRatio", "MaxPressSlop")


def _section(name, entries):
    return f"\n[{name}]\n" + "".join(f"{key:<20} = {value}\n" for key, value in entries.items())


def _profile(chance, name):
    points = chance.randint(2, 10)
    rows = {f"{name}Set": points}
    for point in range(points):
        rows[f"{name}-{point + 1}"] = f"{100 * point / (points - 1):g}\t{chance.uniform(10, 150):.5g}"
    return rows


def _inlet(chance, number):
    flow = {"FillTime": f"{chance.uniform(0.5, 4):.4g}", "MeltTemp": f"{chance.uniform(200, 280):.5g}"}
    flow.update((key, f"{chance.uniform(1, 200):.6g}") for key in _FLOW)
    flow.update((key, chance.randint(0, 2)) for key in _SWITCHES)
    for name in ("FR", "IP", "UserFR", "UserIP"):
        flow.update(_profile(chance, name))
    pack = {"PackTime": f"{chance.uniform(1, 10):.4g}"}
    pack.update((key, f"{chance.uniform(1, 100):.5g}") for key in _PACK)
    for name in ("PP", "UserPP"):
        pack.update(_profile(chance, name))
    return _section(f"Flow-{number}", flow) + _section(f"Pack-{number}", pack)


def generated_file(number):
    """The text of a file of 2 to 8 inlets: 5 to 20 KB, the same for the same number."""
    chance = random.Random(number)
    inlets = chance.randint(2, 8)
    parts = [_section(name, entries) for name, entries in _SINGLE.items()]
    parts.append(_section("FlowCTLInfo", {"TotalInlet": inlets}))
    parts += [_inlet(chance, inlet) for inlet in range(1, inlets + 1)]
    parts += [_section(name, entries) for name, entries in _LAST.items()]
    return "".join(parts)


def generate(folder, count):
    """Makes the files, a thousand in a folder, and yields their paths in order."""
    paths = []
    for number in range(count):
        inner = Path(folder, f"{number // 1000:03}")
        inner.mkdir(exist_ok=True)
        path = inner / f"study-{number:06}.pro"
        path.write_text(generated_file(number))
        paths.append(str(path))
    return paths
