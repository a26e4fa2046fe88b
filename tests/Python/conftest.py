"""What the tests share: the tool as the independent witness, examples and random messages."""

import os
import pathlib
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = os.environ.get("CELLGROUPCFG_PROGRAM", "")
CELL_GROUPS = os.environ.get("CELLGROUPCFG_CELL_GROUPS", "")
RANDOM = 200
EXAMPLES = ("one-bearer", "reconfiguration-with-sync", "typical-call", "secondary-cells", "releases")


class Tool:
    """The command-line tool, a process for each call."""

    # What the sanitizer's runtime needs for Python, the tool does not.
    environment = {name: value for name, value in os.environ.items() if name != "LD_PRELOAD"}

    def run(self, *arguments, stdin=""):
        """Standard output; findings, differences and malformed messages are no failure."""
        done = subprocess.run(
            (PROGRAM, *arguments), input=stdin, capture_output=True, text=True, env=self.environment, check=False
        )
        assert done.returncode in (0, 1, 3, 4), done.stderr
        return done.stdout


@pytest.fixture(scope="session")
def tool():
    return Tool()


@pytest.fixture(scope="session")
def records(tool):
    """The examples as JSON."""
    return {name: tool.run("example", name) for name in EXAMPLES}


@pytest.fixture(scope="session")
def examples(tool, records):
    return {name: bytes.fromhex(tool.run("compose", stdin=record)) for name, record in records.items()}


@pytest.fixture(scope="session")
def call(examples):
    return examples["typical-call"]


@pytest.fixture(scope="session")
def random_messages():
    done = subprocess.run(
        (CELL_GROUPS, "kept", str(RANDOM), "1"), capture_output=True, text=True, env=Tool.environment, check=True
    )
    messages = [bytes.fromhex(line.split()[1]) for line in done.stdout.splitlines()]
    assert len(messages) == RANDOM
    return messages


@pytest.fixture(scope="session")
def messages(examples, random_messages):
    return [*examples.values(), *random_messages]
