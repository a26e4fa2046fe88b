"""The wheel is built offline, installed beside nothing, and works."""

import os
import pathlib
import shutil
import subprocess
import sys
import zipfile

import pytest
from conftest import ROOT, Tool

from cellgroupcfg import _library

LIBRARY = os.environ["CELLGROUPCFG_LIBRARY"]


def run(*arguments, **environment):
    """Without what leads to this tree's module and to this build's library."""
    plain = {
        name: value for name, value in Tool.environment.items() if name not in ("PYTHONPATH", "CELLGROUPCFG_LIBRARY")
    }
    done = subprocess.run(arguments, capture_output=True, text=True, env=plain | environment, check=False)
    assert done.returncode == 0, done.stdout + done.stderr
    return done.stdout


def wheel_in(folder, **environment):
    source = folder / "source"
    shutil.copytree(ROOT / "Python", source, ignore=shutil.ignore_patterns("build", "*.egg-info", "__pycache__"))
    run(
        sys.executable, "-m", "pip", "--disable-pip-version-check", "wheel", "--no-build-isolation", "--no-deps",
        "--no-index", "--wheel-dir", str(folder), str(source), **environment,
    )
    (wheel,) = folder.glob("*.whl")
    return wheel


def installed(wheel, folder):
    target = folder / "site"
    run(
        sys.executable, "-m", "pip", "--disable-pip-version-check", "install", "--no-index", "--no-deps",
        "--target", str(target), str(wheel),
    )
    return target


PROGRAM = """
import cellgroupcfg, pathlib
from cellgroupcfg.testing import assert_cell_group
assert_cell_group(cellgroupcfg.encode({"cellGroupId": 1}), {"cellGroupId": 1})
print(pathlib.Path(cellgroupcfg.__file__).parent)
"""


@pytest.mark.skipif("LD_PRELOAD" in os.environ, reason="the library cannot be used without the sanitizer's runtime")
def test_a_wheel_with_the_library_needs_nothing_else(tmp_path):
    wheel = wheel_in(tmp_path, CELLGROUPCFG_LIBRARY=LIBRARY)
    name = wheel.name.removesuffix(".whl").split("-")
    assert name[:4] == ["cellgroupcfg", "0.1.0", "py3", "none"]
    assert name[4].startswith("linux_")
    target = installed(wheel, tmp_path)
    assert (target / "cellgroupcfg" / _library.NAME).exists()
    assert run(sys.executable, "-c", PROGRAM, PYTHONPATH=str(target)).strip() == str(target / "cellgroupcfg")


@pytest.mark.skipif("LD_PRELOAD" in os.environ, reason="the library cannot be used without the sanitizer's runtime")
def test_a_wheel_without_the_library_finds_it(tmp_path):
    wheel = wheel_in(tmp_path)
    assert wheel.name == "cellgroupcfg-0.1.0-py3-none-any.whl"
    with zipfile.ZipFile(wheel) as archive:
        names = {pathlib.PurePath(name).name for name in archive.namelist()}
    assert "py.typed" in names and "testing.py" in names
    assert not [name for name in names if ".so" in name]
    target = installed(wheel, tmp_path)
    # By the loader's search path, as a distribution's package installs it.
    libraries = tmp_path / "lib"
    libraries.mkdir()
    shutil.copyfile(LIBRARY, libraries / _library.NAME)
    run(sys.executable, "-c", PROGRAM, PYTHONPATH=str(target), LD_LIBRARY_PATH=str(libraries))
    run(sys.executable, "-c", PROGRAM, PYTHONPATH=str(target), CELLGROUPCFG_LIBRARY=LIBRARY)
