"""The module's structures are those of the C headers, and its ABI theirs."""

import ctypes
import os
import pathlib
import re
import shutil
import subprocess
import sys

from conftest import ROOT, Tool

from cellgroupcfg import _library

INCLUDES = [folder for folder in os.environ.get("CELLGROUPCFG_INCLUDES", "").split(":") if folder]


def compiler():
    found = next((name for name in ("cc", "gcc", "clang-14") if shutil.which(name)), None)
    assert found, "a C compiler is needed: cc, gcc or clang-14"
    return found


def expressions():
    """What C says of each structure, with what the module says."""
    for name, (mirror, header) in _library.MIRRORS.items():
        yield f"sizeof({name})", ctypes.sizeof(mirror), header
        for field, *_ in mirror._fields_:
            yield f"offsetof({name}, {field})", getattr(mirror, field).offset, header
            yield f"sizeof((({name}*)0)->{field})", getattr(mirror, field).size, header
    for part, mirror in (("heap", _library.ContextHeap), ("buffer", _library.ContextBuffer)):
        for field, *_ in mirror._fields_:
            offset = getattr(_library.Context, part).offset + getattr(mirror, field).offset
            yield f"offsetof(OSCTXT, {part}.{field})", offset, "asn1Runtime.h"
    yield "RTX_MAX_DEPTH", _library.MAX_DEPTH, "asn1Runtime.h"
    yield "sizeof(BOOL)", 4, "vos_types.h"
    yield "sizeof(RrcCellGroupCfg_t)", _library.RECORD_SIZE, "rrcCodec/rrcCodec.h"
    yield "sizeof(CellGroupConfig)", _library.TREE_SIZE, "NR-RRC-Definitions.h"
    yield "CELLGROUPCFG_ABI", _library.ABI, "cellgroupcfg/version.h"


def test_structures_are_those_of_the_headers(tmp_path):
    assert INCLUDES, "CELLGROUPCFG_INCLUDES names the folders of the headers"
    told = list(expressions())
    headers = sorted({header for *_, header in told})
    source = tmp_path / "layout.c"
    source.write_text(
        "#include <stddef.h>\n#include <stdio.h>\n"
        + "".join(f'#include "{header}"\n' for header in headers)
        + "int main(void)\n{\n"
        + "".join(f'printf("%zu\\n", (size_t)({expression}));\n' for expression, *_ in told)
        + "return 0;\n}\n"
    )
    program = tmp_path / "layout"
    includes = [f"-I{folder}" for folder in INCLUDES]
    subprocess.run([compiler(), "-std=c11", *includes, str(source), "-o", str(program)], check=True, env=Tool.environment)
    done = subprocess.run([str(program)], capture_output=True, text=True, check=True, env=Tool.environment)
    said = [int(line) for line in done.stdout.split()]
    assert len(said) == len(told) > 150
    wrong = [f"{expression}: {c} in C, {own} here" for (expression, own, _), c in zip(told, said) if c != own]
    assert not wrong


def test_each_mirror_has_all_members():
    """The module leaves none out, so that a new member at the end is noticed, too."""
    for name, (mirror, header) in _library.MIRRORS.items():
        file = next(pathlib.Path(folder, header) for folder in INCLUDES if pathlib.Path(folder, header).exists())
        body = re.search(rf"typedef struct {name}\n\{{(.*?)\n\}} {name};", file.read_text("utf-8"), re.S)
        if name == "OSCTXT":
            continue  # its parts are structures without a name; their sizes are compared
        assert body, name
        code = re.sub(r"//[^\n]*|/\*.*?\*/", "", body.group(1), flags=re.S)
        members = re.findall(r"(\w+)(?:\[\w+\])?\s*;", code)
        assert [field for field, *_ in mirror._fields_] == members, name


def import_with(library):
    environment = os.environ | {"CELLGROUPCFG_LIBRARY": str(library), "PYTHONPATH": str(ROOT / "Python")}
    return subprocess.run(
        [sys.executable, "-B", "-c", "import cellgroupcfg"], capture_output=True, text=True, env=environment, check=False
    )


def test_another_abi_is_an_import_error_that_says_both(tmp_path):
    source = tmp_path / "other.c"
    source.write_text("const char* cellgroupcfgVersion(void) { return \"9\"; }\nunsigned cellgroupcfgAbi(void) { return 77; }\n")
    library = tmp_path / "other.so"
    subprocess.run([compiler(), "-shared", "-fPIC", str(source), "-o", str(library)], check=True, env=Tool.environment)
    done = import_with(library)
    assert done.returncode != 0
    assert f"ImportError: {library} has the ABI 77, this module is for the ABI {_library.ABI}" in done.stderr


def test_no_library_is_an_import_error(tmp_path):
    done = import_with(tmp_path / "none.so")
    assert done.returncode != 0
    assert "ImportError: cellgroupcfg needs its shared library" in done.stderr
    assert "CELLGROUPCFG_LIBRARY" in done.stderr


def test_the_abi_is_that_of_the_project():
    cmake = (ROOT / "CMakeLists.txt").read_text("utf-8")
    assert f"set(CELLGROUPCFG_ABI {_library.ABI})" in cmake
    version = re.search(r"\n    VERSION (\S+)\n", cmake).group(1)
    pyproject = (ROOT / "Python" / "pyproject.toml").read_text("utf-8")
    assert f'version = "{version}"' in pyproject
