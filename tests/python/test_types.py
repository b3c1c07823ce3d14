"""The types of the package: mypy passes, and they are those of the extension."""

import ast
import os
import subprocess
import sys
from pathlib import Path

import pytest
from conftest import ROOT

import qelpro
from qelpro import _engine

PACKAGE = Path(qelpro.__file__).parent
CONFIGURATION = ROOT / "python" / "mypy.ini"
STUB = ast.parse((PACKAGE / "_engine.pyi").read_text())


@pytest.fixture(scope="module")
def run(tmp_path_factory):
    """Runs a module of mypy, which keeps what it learns of numpy from one call to the next."""
    cache = tmp_path_factory.mktemp("cache")

    def run(module, *arguments, path):
        environment = {
            **os.environ,
            "MYPYPATH": os.pathsep.join(map(str, path)),
            "MYPY_CACHE_DIR": str(cache),
        }
        command = [sys.executable, "-m", module, *map(str, arguments)]
        return subprocess.run(command, capture_output=True, text=True, env=environment, cwd=cache)

    return run


@pytest.fixture(scope="module")
def mypy(run):
    def mypy(*arguments, path=(PACKAGE.parent,)):
        return run("mypy", "--config-file", CONFIGURATION, *arguments, path=path)

    return mypy


@pytest.fixture
def stubs(tmp_path):
    """Types of what Debian has none of, as a user may have them."""
    for name, words in {
        "pandas/__init__.pyi": "class DataFrame: ...\n",
        "matplotlib/__init__.pyi": "",
        "matplotlib/axes.pyi": "class Axes: ...\n",
        "distributed/__init__.pyi": "class Client: ...\n",
    }.items():
        file = tmp_path / "stubs" / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(words)
    return tmp_path / "stubs"


def passes(result):
    return result.returncode == 0 and "Success: no issues found" in result.stdout


def test_the_package_passes(mypy):
    result = mypy(PACKAGE)
    assert passes(result), result.stdout
    assert (PACKAGE / "py.typed").exists()


def test_a_file_that_is_wrong_does_not_pass(mypy, tmp_path):
    wrong = tmp_path / "wrong.py"
    wrong.write_text('import qelpro\nnumber: int = qelpro.ProcessFile("a.pro").path\n')
    result = mypy(wrong)
    assert (
        result.returncode == 1 and "wrong.py:2: error: Incompatible types" in result.stdout
    ), result.stdout


def test_the_examples_pass(mypy):
    examples = sorted((ROOT / "examples" / "python").glob("*.py"))
    assert len(examples) >= 4
    result = mypy(*examples)
    assert passes(result), result.stdout


def test_users_get_types(mypy, stubs):
    result = mypy(ROOT / "tests/python/typed/what_users_get.py", path=(PACKAGE.parent, stubs))
    assert passes(result), result.stdout


def test_the_oldest_python_reads_every_file():
    files = [
        *PACKAGE.glob("*.py"),
        *PACKAGE.glob("*.pyi"),
        *(ROOT / "examples" / "python").glob("*.py"),
    ]
    assert len(files) > 15
    for file in files:
        tree = ast.parse(file.read_text(), str(file), feature_version=(3, 9))
        imports = [node.module for node in tree.body if isinstance(node, ast.ImportFrom)]
        annotations = any(
            isinstance(node, (ast.FunctionDef, ast.AnnAssign)) for node in ast.walk(tree)
        )
        assert file.suffix == ".pyi" or not annotations or "__future__" in imports, file


def test_the_stub_has_the_names_of_the_extension(run, tmp_path):
    classes = [name for name, value in vars(_engine).items() if isinstance(value, type)]
    made = {name.partition(".")[0] for name, _ in definitions() if name.endswith(".__init__")}
    refusing = [f"{name}.__init__" for name in classes if name not in made]
    allowed = tmp_path / "of_pybind11"  # its metaclass, and an __init__ that refuses
    allowed.write_text("".join(f"qelpro._engine.{name}\n" for name in classes + refusing))
    result = run(
        "mypy.stubtest",
        "qelpro._engine",
        "--mypy-config-file",
        CONFIGURATION,
        "--allowlist",
        allowed,
        path=(PACKAGE.parent,),
    )
    assert result.returncode == 0, result.stdout


def definitions():
    for node in STUB.body:
        if isinstance(node, ast.FunctionDef):
            yield node.name, node
        elif isinstance(node, ast.ClassDef):
            yield from (
                (f"{node.name}.{member.name}", member)
                for member in node.body
                if isinstance(member, ast.FunctionDef)
            )


def of_extension(name):
    value = _engine
    for part in name.split("."):
        value = getattr(value, part)
    return value


@pytest.mark.parametrize(
    "name, definition", [pytest.param(*found, id=found[0]) for found in definitions()]
)
def test_the_stub_has_the_arguments_of_the_extension(name, definition):
    """mypy cannot look into functions of pybind11, whose docstrings begin with what they take."""
    signature = of_extension(name).__doc__.splitlines()[0]
    told = ast.parse(f"def {signature}: ...").body[0]
    assert [argument.arg for argument in told.args.args] == [
        argument.arg for argument in definition.args.args
    ]
    assert not definition.args.defaults and not definition.args.kwonlyargs


def test_every_function_of_the_extension_is_in_the_stub():
    known = {name for name, _ in definitions()}
    for name, value in vars(_engine).items():
        if not name.startswith("__"):
            assert name in known or isinstance(value, type), name
            for member in vars(value) if isinstance(value, type) else ():
                assert member.startswith("__") or f"{name}.{member}" in known, member
