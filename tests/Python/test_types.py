"""mypy finds nothing, by its strict rules, and the module's types are those that a caller sees."""

import subprocess
import sys

from conftest import ROOT, Tool


def mypy(*arguments):
    return subprocess.run(
        [sys.executable, "-m", "mypy", "--strict", "--no-incremental", "--cache-dir=/dev/null", *arguments],
        capture_output=True, text=True, cwd=ROOT / "Python", env=Tool.environment, check=False,
    )


def test_the_module_is_strictly_typed():
    done = mypy("-p", "cellgroupcfg")
    assert done.returncode == 0, done.stdout + done.stderr


def test_a_callers_mistakes_are_found(tmp_path):
    caller = tmp_path / "caller.py"
    caller.write_text(
        "import cellgroupcfg\n"
        "sent: bytes = cellgroupcfg.encode({'cellGroupId': 0})\n"
        "lines: list[str] = [finding.advice for finding in cellgroupcfg.check(sent, band='n78')]\n"
        "to_send: bytes = cellgroupcfg.delta(None, sent)\n"
        "cellgroupcfg.decode('5c00b1')\n"
    )
    done = mypy(str(caller))
    wrong = [line.split(":")[1] for line in done.stdout.splitlines() if ": error:" in line]
    assert wrong == ["4", "5"], done.stdout
