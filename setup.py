"""Builds the extension with CMake, for pip; all else stands in pyproject.toml.

What is built goes to a folder of pip's, or to the one that the environment variable QELPRO_BUILD names: what that one has is not
compiled again.
"""

import os
import re
import subprocess
import sys
from pathlib import Path

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = Path(__file__).resolve().parent


def version() -> str:
    return re.search(r"^project\(\w+ VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text(), re.MULTILINE).group(1)


class CMakeBuild(build_ext):
    def build_extension(self, ext: Extension) -> None:
        folder = os.environ.get("QELPRO_BUILD") or self.build_temp
        package = Path(self.get_ext_fullpath(ext.name)).resolve().parent
        options = [f"-DPython_EXECUTABLE={sys.executable}", "-DQELPRO_PYTHON=ON", "-DBUILD_SHARED_LIBS=ON"]
        if not (Path(folder) / "CMakeCache.txt").exists():
            options += ["-DCMAKE_BUILD_TYPE=Release", "-DQELPRO_TOOL=OFF"]
        self.cmake("-S", str(ROOT), "-B", folder, *options)
        self.cmake("--build", folder, "--target", "qelpro_python_package", "--parallel", str(os.cpu_count() or 1))
        self.cmake("--install", folder, "--component", "python_wheel", "--prefix", str(package.parent))
        # A wheel has no links: each library stands there once, by the name that it is loaded by.
        for link in filter(Path.is_symlink, list(package.iterdir())):
            library = link.resolve()
            link.unlink()
            library.rename(link)

    @staticmethod
    def cmake(*arguments: str) -> None:
        subprocess.run(["cmake", *arguments], check=True)


(ROOT / "build").mkdir(exist_ok=True)  # for what setup.cfg puts there
setup(version=version(), ext_modules=[Extension("qelpro._engine", sources=[])], cmdclass={"build_ext": CMakeBuild})
