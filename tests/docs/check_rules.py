"""check_rules.py <program> <project> [--update]: what docs/rules.md tells of each rule is the table of rules, or is written from
it. The table comes from the program."""

import difflib
import json
import os
import pathlib
import re
import subprocess
import sys

BEGIN, END = "<!-- The rules: written by tests/docs/check_rules.py -->\n", "<!-- End of the rules -->\n"
CELL_GROUP = "CellGroupConfig."


def anchor(heading):
    """As it is made of a heading: no punctuation, blanks become dashes."""
    return re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")


def steps(line):
    return line.split(" = ")[0].split(".")


def shared(lines):
    """The steps that all paths begin with, without the last one of any."""
    return os.path.commonprefix([steps(line)[:-1] for line in lines])


def example(rule):
    """What is in both examples, in the bad one (-), in the good one (+), under the path that all of it is below."""
    bad, good = rule["bad"], rule["good"]
    place = shared(bad + good)
    cut = len(".".join(place)) + 1 if place else 0
    both = []
    for line in difflib.ndiff([line[cut:] for line in bad], [line[cut:] for line in good]):
        if not line.startswith("?"):
            both.append(f"{line[0]} {line[2:]}")
    return "\n".join(["```diff", f"@@ {'.'.join(place)} @@", *both, "```"])


def section(rule):
    given = f"*Given: {rule['given']}*\n\n" if rule["given"] else ""
    return (f"### {rule['id']}\n\n**{rule['severity']}** · {rule['clause']}\n\n{rule['statement']}\n\n"
            f"{rule['advice']}\n\n{given}{example(rule)}\n")


def document(rules):
    groups = {}
    for rule in rules:
        groups.setdefault(rule["group"], []).append(rule)
    contents = "".join(
        f"- [{title}](#{anchor(title)}): " + ", ".join(f"[{rule['id']}](#{rule['id']})" for rule in members) + "\n"
        for title, members in groups.items())
    texts = "\n".join(f"## {title}\n\n" + "\n".join(section(rule) for rule in members)
                      for title, members in groups.items())
    return f"\n{contents}\n{texts}\n"


def main():
    program, project = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    table = subprocess.run([program, "rules", "--json"], check=True, capture_output=True, timeout=60).stdout
    rules = json.loads(table)["rules"]
    path = project / "docs/rules.md"
    text = path.read_text(encoding="utf-8")
    if text.count(BEGIN) != 1 or text.count(END) != 1:
        sys.exit("docs/rules.md has no place for the rules")
    head, rest = text.split(BEGIN)
    found = head + BEGIN + document(rules) + END + rest.split(END)[1]
    if "--update" in sys.argv:
        path.write_text(found, encoding="utf-8")
    elif found != text:
        print("\n".join(difflib.unified_diff(text.splitlines(), found.splitlines(), "docs/rules.md", "the table",
                                             lineterm="")))
        sys.exit(1)
    anchors = {anchor(heading) for heading in re.findall(r"^#+ (.*)$", found, re.M)}
    lost = sorted(set(re.findall(r"\]\(#([^)]*)\)", found)) - anchors)
    print(f"{len(rules)} rules" + "".join(f"; #{name} leads nowhere" for name in lost))
    sys.exit(1 if lost or not rules else 0)


main()
