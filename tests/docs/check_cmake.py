"""check_cmake.py <project> <build> <scratch> [<cmake option>...]: each block of CMake and of make in README.md and docs/ is built in
a project of its own, against the installed build. What a block takes for given it is given: the package, the program that
it links, and the product's own libraries. A block that fetches the sources is configured with those of the project."""

import os
import pathlib
import re
import shutil
import subprocess
import sys

from blocks import blocks

GIVEN = """cmake_minimum_required(VERSION 3.25)
project(block LANGUAGES C CXX)
set(CMAKE_CXX_STANDARD 20)
"""
INSTALLED = """find_package(cellgroupcfg REQUIRED)
add_library(my_platform own_platform.c)
target_link_libraries(my_platform PRIVATE cellgroupcfg::platform_headers)
"""


def run(*command, **settings):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False, **settings)
    return "" if done.returncode == 0 else f"{' '.join(map(str, command))}\n{done.stdout}"


def make(block, folder, installed):
    (folder / "Makefile").write_text(block.text, encoding="utf-8")
    found = next(installed.rglob("cellgroupcfg.pc")).parent
    return run("make", "-C", folder, env={**os.environ, "PKG_CONFIG_PATH": str(found)})


def cmake(block, folder, project, options):
    linked = set(re.findall(r"target_link_libraries\((\w+)", block.text))
    made = set(re.findall(r"add_(?:executable|library)\((\w+)", block.text))
    given = "".join(f"add_executable({program} main.cpp)\n" for program in sorted(linked - made))
    fetches = "FetchContent" in block.text
    text = GIVEN + ("" if fetches else INSTALLED) + given + block.text
    (folder / "CMakeLists.txt").write_text(text, encoding="utf-8")
    sources = [f"-DFETCHCONTENT_SOURCE_DIR_CELLGROUPCFG={project}"] if fetches else []
    configured = run("cmake", "-S", folder, "-B", folder / "build", *options, *sources)
    return configured or ("" if fetches else run("cmake", "--build", folder / "build"))


def built(block, folder, project, installed, options):
    """What fails, or nothing."""
    consumer = project / "tests/package/consumer"
    shutil.copytree(pathlib.Path(__file__).resolve().parent / "cmake", folder)
    for file in (consumer / "main.c", consumer / "own_platform.c", consumer / "own_platform.h", project / "docs/guide/call.hex"):
        shutil.copy(file, folder)
    if block.language == "makefile":
        return make(block, folder, installed)
    return cmake(block, folder, project, options)


def main():
    project, build, scratch = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    shutil.rmtree(scratch, ignore_errors=True)
    installed = scratch / "installed"
    failed = run("cmake", "--install", build, "--prefix", installed)
    if failed:
        sys.exit(failed)
    options = [f"-DCMAKE_PREFIX_PATH={installed}", *sys.argv[4:]]
    count = 0
    for count, block in enumerate(blocks(project, "cmake", "makefile"), 1):
        wrong = built(block, scratch / str(count), project, installed, options)
        if wrong:
            sys.exit(f"{block.document}:{block.line}: {wrong}")
        print(f"{block.document}:{block.line}: built")
    sys.exit(0 if count else "there is no block")


main()
