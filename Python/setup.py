"""Bundles the shared library that CELLGROUPCFG_LIBRARY names; the wheel is then of this platform."""

import os
import shutil
from pathlib import Path

from setuptools import setup
from setuptools.command.build_py import build_py
from setuptools.dist import Distribution
from wheel.bdist_wheel import bdist_wheel

LIBRARY = os.environ.get("CELLGROUPCFG_LIBRARY", "")


def bundled_name() -> str:
    """The name under which the module looks for it."""
    scope: dict[str, str] = {}
    for line in Path(__file__).with_name("cellgroupcfg").joinpath("_library.py").read_text("utf-8").splitlines():
        if line.startswith("ABI: Final = "):
            scope["abi"] = line.split("=", 1)[1].strip()
    return f"libcellgroupcfg_full.so.{scope['abi']}"


class Build(build_py):
    """Puts the library beside the modules of the wheel; the source folder stays as it is."""

    def run(self) -> None:
        super().run()
        if LIBRARY:
            to = Path(self.build_lib, "cellgroupcfg", bundled_name())
            to.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(LIBRARY, to)


class Whole(Distribution):
    """With a library the wheel is no pure one."""

    def has_ext_modules(self) -> bool:
        return bool(LIBRARY)


class Wheel(bdist_wheel):
    """Nothing in it is compiled for a version of Python."""

    def get_tag(self) -> tuple[str, str, str]:
        python, abi, platform = super().get_tag()
        return ("py3", "none", platform) if LIBRARY else (python, abi, platform)


setup(cmdclass={"build_py": Build, "bdist_wheel": Wheel}, distclass=Whole)
