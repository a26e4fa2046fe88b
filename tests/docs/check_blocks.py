"""check_blocks.py <program> <project> <build>: no block of code in README.md, SECURITY.md and docs/ goes unchecked. Each one of a language
in CHECKED is run or compiled by a test, which is what is looked at here, or is tried here. The others are for the eye:
what is listed in SHOWN. Names of tests that the documents call as witnesses are names of tests."""

import json
import pathlib
import re
import subprocess
import sys
import tempfile

from blocks import blocks, documents

SHOWN = {"", "text", "asn1", "diff"}
SNIPPET = re.compile(r'cgc_(?:snippet|doc_program)\(\s*(?:\w+\s+)?([\w./-]+\.md)\s+"((?:[^"\\]|\\.)*)"')
WITNESSES = ("SECURITY.md", "docs/assurance.md", "docs/versions.md")


class Checker:
    def __init__(self, program, project, build):
        self.program, self.project, self.build = program, project, build
        self.compiled = self.find_compiled()
        presets = json.loads((project / "CMakePresets.json").read_text(encoding="utf-8"))
        self.presets = {preset["name"] for preset in presets["buildPresets"]}
        self.steps = {path.stem.removeprefix("test-") for path in (project / "scripts").glob("test-*.sh")}
        self.goals = self.find_targets()

    def find_compiled(self):
        """(document, line) of each block that a test of CMake's compiles."""
        found = set()
        for file in (self.project / "tests").rglob("CMakeLists.txt"):
            for document, begin in SNIPPET.findall(file.read_text(encoding="utf-8")):
                text = (self.project / document).read_text(encoding="utf-8")
                at = text.index("\n```c", text.index(re.sub(r"\\(.)", r"\1", begin) + "\n"))
                found.add((document, text.count("\n", 0, at + 1) + 1))
        return found

    def find_targets(self):
        printed = subprocess.run(["cmake", "--build", self.build, "--target", "help"], capture_output=True, text=True,
                                 check=True).stdout
        return {line.split(":")[0].removeprefix("... ").strip() for line in printed.splitlines()}

    # Each of these returns what is wrong with a block, or nothing.

    def console(self, block):
        """Run by check_console.py, which takes every document."""
        return "" if re.match(r"\$ ", block.text) else "it begins with no command"

    def cmake(self, _):
        """Built by check_cmake.py, which takes every document."""
        return ""

    makefile = cmake

    def cpp(self, block):
        known = (block.document, block.line) in self.compiled
        return "" if known else "no cgc_snippet of tests/ compiles it"

    c = cpp

    def toml(self, block):
        """Settings of the tool."""
        return self.tried([], {"project.toml": block.text}, "check", "--config", "project.toml", "--fail-on", "never",
                          str(self.project / "docs/guide/call.hex"))

    def json(self, block):
        """A record."""
        return self.tried([("example", "typical-call", "call.json")], {"record.json": block.text}, "compose",
                          "record.json")

    def tried(self, before, files, *arguments):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                (pathlib.Path(folder) / name).write_text(text, encoding="utf-8")
            for command, name, to in before:
                made = subprocess.run([self.program, command, name], capture_output=True, text=True, check=True).stdout
                (pathlib.Path(folder) / to).write_text(made, encoding="utf-8")
            done = subprocess.run([self.program, *arguments], cwd=folder, capture_output=True, text=True, check=False)
        return done.stderr if done.returncode else ""

    def sh(self, block):
        """The project's own commands, which are too much to run for each: they are there, with the presets, targets and
        steps that are named. scripts/test-run.sh runs ./run."""
        return "; ".join(filter(None, map(self.command, block.text.splitlines())))

    def command(self, line):
        words = re.sub(r"\s+#.*", "", line).split()
        if not words or words[0].startswith("#"):
            return ""
        name, *rest = words
        if name == "./run":
            return "" if rest in ([], ["--tree"], ["--json"]) else f"{line}: ./run has no such option"
        if name == "./test":
            return "" if set(rest) <= self.steps else f"{line}: there is no such step"
        if name == "scripts/build.sh":
            known = rest and rest[0] in self.presets and set(rest[1:]) <= self.goals
            return "" if known else f"{line}: there is no such preset or target"
        if name.startswith("scripts/"):
            return "" if (self.project / name).is_file() else f"{line}: there is no such script"
        if name == "cmake":
            return self.cmake_command(line, rest)
        if name.startswith("build/"):
            return "" if pathlib.PurePath(name).name in self.goals else f"{line}: no target makes that program"
        if name == "asncomp":
            return self.compiler_command(rest)
        if name == "cp":
            return "" if all((self.project / word).exists() for word in rest[1:-1]) else f"{line}: there is no such file"
        if name in ("cd", "export"):
            return ""
        return f"{line}: what is no command of the project's belongs into a console block"

    def compiler_command(self, words):
        """Run with a folder of its own in place of DIR."""
        with tempfile.TemporaryDirectory() as folder:
            words = [folder if word == "DIR" else word for word in words]
            return subprocess.run([self.build / "Asn/asncomp", *words], cwd=self.project, capture_output=True, text=True,
                                  check=False).stderr

    def cmake_command(self, line, words):
        target = re.search(r"--target (\S+)", line)
        if target and target[1] not in self.goals:
            return f"{line}: there is no such target"
        options = [word[2:].split("=")[0] for word in words if word.startswith("-DCELLGROUPCFG")]
        declared = (self.project / "CMakeLists.txt").read_text(encoding="utf-8")
        lost = [option for option in options if f"option({option} " not in declared]
        return f"{line}: there is no option {lost}" if lost else ""

    def witnesses(self):
        """Of tests that are called as witnesses: ctest's names, and GoogleTest's behind them."""
        listed = subprocess.run(["ctest", "--test-dir", self.build, "-N"], capture_output=True, text=True, check=True).stdout
        known = set(re.findall(r"Test +#\d+: (\S+)", listed))
        sources = "".join(path.read_text(encoding="utf-8") for path in (self.project / "tests").rglob("*.cpp"))
        known |= {".".join(pair) for pair in re.findall(r"^TEST(?:_F|_P)?\((\w+), (\w+)\)", sources, re.M)}
        families = {name.split(".")[0] for name in known}
        for document in WITNESSES:
            text = (self.project / document).read_text(encoding="utf-8")
            for name in re.findall(r"`(\w+\.[\w.]+)`", text):
                family, _, rest = name.partition(".")
                if family in families and rest not in ("h", "md", "cpp", "py", "sh"):
                    yield f"{document}: there is no test {name}" if name not in known else ""


def main():
    program, project, build = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    checker = Checker(program, project, build)
    wrong, count = [], 0
    for block in blocks(project):
        if block.language in SHOWN:
            continue
        count += 1
        check = getattr(checker, block.language, None)
        said = check(block) if check else f"nothing checks {block.language}"
        if said:
            wrong.append(f"{block.document}:{block.line}: {said}")
    named = list(checker.witnesses())
    wrong += filter(None, named)
    print("\n".join(wrong))
    print(f"{len(documents(project))} documents, {count} blocks, {len(named)} tests named, {len(wrong)} wrong")
    sys.exit(1 if wrong or not count or not named else 0)


main()
