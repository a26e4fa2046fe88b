"""check_page.py <program> <project> <cellGroups> <densest> COUNT: what a page shows is what the other commands say, as a browser
without script has it; nothing is loaded, nothing of a name or a message becomes markup, pages stay small."""

import collections
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "Tool"))
from harness import DONE, MALFORMED, PROJECT, USAGE, expect, main, run, true  # noqa: E402
from pageReader import Page, traced, unfolded  # noqa: E402

FOLDER = pathlib.Path(tempfile.mkdtemp())
CELL_GROUPS, DENSEST, COUNT = sys.argv[3:]
ROOT = "CellGroupConfig"


def out(*arguments, stdin=b""):
    return run(*arguments, stdin=stdin)[1].decode()


def view(*operands):
    status, text, error = run("view", *operands)
    true(status == DONE and not error, f"view {operands}: {status}, {error.decode()}")
    return text.decode()


def write(hex_digits):
    file = FOLDER / "message.hex"
    file.write_text(hex_digits)
    return str(file)


def flat(path):
    return re.sub(r"\[(\d+): [^\]]*\]", r"[\1]", path)


def same(what, found, expected):
    true(found == expected, f"{what}: {str(found)[:400]} instead of {str(expected)[:400]}")


def compare(hex_digits, *context):
    """One message: its tree, bits, findings and meanings against the other commands."""
    page = Page(unfolded(view("--as", "hex", write(hex_digits), *context)))
    tree = page.trees[0]
    what = hex_digits[:60]
    same(f"{what}: JSON", tree.value(), json.loads(out("decode", "--json", "--as", "hex", "-", stdin=hex_digits)))
    ranges, stretches = traced(out("decode", "--trace", "--as", "hex", "-", stdin=hex_digits).splitlines(), ROOT)
    for node in tree.all():
        if "$" not in node.path():
            same(f"{what}: bits of {node.path()}", node.bits, ranges.get(node.path()))
    same(f"{what}: bits of no node", [tuple(one[:2]) for one in page.data["messages"][0]["stretches"]], stretches)
    same(f"{what}: octets", page.data["messages"][0]["octets"], hex_digits.lower())
    check = json.loads(out("check", "--no-config", "--format", "json", "--severity", "notice", "--as", "hex", *context,
                           "-", stdin=hex_digits))
    told = [(one["id"], one["severity"], one["path"]) for one in check["messages"][0]["findings"]]
    shown = [(one["id"], one["severity"], one["path"], node.path()) for node in tree.all() for one in node.findings]
    left_out = re.search(r"there is no room for (\d+) finding", "".join(page.texts))
    if left_out:
        same(f"{what}: findings left out", len(told) - len(shown), int(left_out[1]))
        true(not collections.Counter(one[:3] for one in shown) - collections.Counter(told), f"{what}: findings")
        return page
    same(f"{what}: findings", sorted(one[:3] for one in shown), sorted(told))
    for message in check["messages"][0]["findings"]:
        true(any(message["message"] in finding["text"] for node in tree.all() for finding in node.findings),
             f"{what}: no '{message['message']}'")
    paths = {node.path() for node in tree.all()}
    earlier = {(one["id"], one["path"]) for one in check["messages"][0]["findings"] if one.get("configuredBefore")}
    for name, _, path, place in shown:
        at = ROOT if (name, path) in earlier else flat(path)
        while at not in paths:
            at = re.sub(r"(\.[^.\[\]]+|\[\d+\])$", "", at)
        same(f"{what}: place of {name} {path}", place, at)
    return page


def meanings(hex_digits, page, *context):
    lines = out("decode", "--flat", "--explain", "--as", "hex", *context, "-", stdin=hex_digits).splitlines()
    expected = {}
    for line in lines:
        path, rest = line.split(" = ", 1)
        if "  # " in rest:
            expected[path] = rest.split("  # ", 1)[1]
    found = {node.path(): node.meaning for node in page.trees[0].all() if node.meaning}
    for path, words in found.items():
        # A choice without content has its meaning at the choice, flat lines have it at the alternative.
        line = expected.get(path) or next((words for at, words in expected.items() if at.startswith(path + ".")), "")
        # Behind it the tool names its options.
        true(line == words or line.startswith(words + " (--"), f"{path}: means '{words}', not '{line}'")
    same("how many meanings", len(found), len(expected))


def examples():
    names = [line.split()[0] for line in out("example").splitlines()]
    true(len(names) >= 5, "there are examples")
    return [out("compose", "-", stdin=out("example", name)).strip() for name in names]


def test_examples(_):
    for message in examples():
        page = compare(message)
        meanings(message, page)
        meanings(message, compare(message, "--band", "n78", "--carrier", "30:0:273"), "--band", "n78", "--carrier",
                 "30:0:273")


def test_random(_):
    lines = subprocess.run([CELL_GROUPS, "kept", COUNT, "1"], capture_output=True, check=True, text=True).stdout
    messages = [line.split()[1] for line in lines.splitlines()]
    same("random messages", len(messages), int(COUNT))
    for message in messages:
        compare(message)


def test_findings(_):
    broken = PROJECT / "docs/guide/refused.hex"
    message = out("decode", "--compact", str(broken))
    page = compare(out("encode", "--as", "jer", "-", stdin=message).strip(), "--full")
    errors = [one for node in page.trees[0].all() for one in node.findings if one["severity"] == "error"]
    true(errors and all(f"{one['id']}" in one["text"] for one in errors), "an error names its rule")


def test_malformed(_):
    whole = examples()[0]
    expect(["view", "--as", "binary", "-"], MALFORMED, err="cellgroupcfg: standard input: the input is empty\n")
    for length in range(2, len(whole), 2):
        page = compare(whole[:length])
        true("$error" in page.trees[0].value(), f"{length // 2} octets: the error is told")
    page = compare("ff" * 20)
    true(any(one[2] == "not read" for one in page.data["messages"][0]["stretches"]), "bits that were not read")
    page = compare(whole + "00")
    same("surplus octets", page.data["messages"][0]["stretches"][-1], [8 * len(whole) // 2, 8, "not read"])
    # The additions of a later release (tests/Tool/check_tool.py has the bits).
    unknown = Page(view(bits_hex("1 0000000 00  0 000001 01  00000001 10101011")))
    same("unknown additions", unknown.trees[0].value()["$unknownAdditions"], [{"index": 1, "octets": "AB"}])
    octets = next(node for node in unknown.trees[0].all() if node.name == "octets")
    same("bits of the unknown addition", octets.bits, (27, 8))


def bits_hex(bits):
    bits = bits.replace(" ", "")
    bits += "0" * (-len(bits) % 8)
    return bytes(int(bits[i:i + 8], 2) for i in range(0, len(bits), 8)).hex()


def test_two(folder):
    guide = PROJECT / "docs/guide"
    pairs = [(str(guide / "before.hex"), str(guide / "after.hex")), (str(guide / "call.hex"), str(guide / "before.hex"))]
    messages = examples()
    files = []
    for i, message in enumerate(messages):
        files.append(folder / f"{i}.hex")
        files[-1].write_text(message)
    pairs += [(str(a), str(b)) for a in files for b in files]
    for a, b in pairs:
        page = Page(view(a, b))
        told = json.loads(out("diff", "--json", a, b))["differences"]
        same(f"{a} {b}: differences", [path for path, _ in page.differences], [one["path"] for one in told])
        same(f"{a} {b}: their number", len(page.data["differences"]), len(told))
        for side, tree in enumerate(page.trees):
            same(f"{a} {b}: JSON", tree.value(), json.loads(out("decode", "--json", (a, b)[side])))
        nodes = [list(tree.all()) for tree in page.trees]
        for one, (at_a, at_b, there) in zip(told, page.data["differences"]):
            sides = {"removed": 1, "added": 2}.get(one["kind"], 3)
            same(f"{a} {b}: {one['path']} is there", there, sides)
            for side, number in enumerate((at_a, at_b)):
                node = nodes[side][number]
                if there & (1 << side):
                    last = re.sub(r"\[.*?\]", "", one["path"]).split(".")[-1]
                    true(last == re.sub(r"\[.*?\]", "", node.path()).split(".")[-1], f"{node.path()} for {one['path']}")
    page = Page(view(pairs[0][0], "ff"))
    same("nothing is compared with what is malformed", page.data["differences"], None)


def test_safe(folder):
    name = folder / '<script>alert(1)<&"\'>.hex'
    name.write_text("20023f00")
    for operands in ((str(name),), (str(name), str(name)), (str(PROJECT / "docs/guide/refused.hex"),)):
        text = view(*operands)
        page = Page(text)
        scripts = [given for tag, given in page.elements if tag == "script"]
        same("scripts", [one.get("type") for one in scripts], ["application/json", None])
        rest = re.sub(r'xmlns="http://www.w3.org/2000/svg"', "", text)
        for pattern in (r"https?:", r"\bsrc\s*=", r"\bhref\s*=\s*[\"']?[^#\"']", r"url\((?!#)", r"@import", r"\bon\w+\s*=\s*[\"']"):
            true(not re.search(pattern, rest), f"{operands}: {pattern} stands in the page")
        policy = next(given["content"] for tag, given in page.elements
                      if tag == "meta" and given.get("http-equiv") == "Content-Security-Policy")
        same("policy", policy, "default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline' "
             "'wasm-unsafe-eval'; img-src data:")
    true('<script>alert(1)<&"\'>' in "".join(Page(view(str(name))).texts), "the name is shown as it is")
    # Octets of a name that are no UTF-8.
    odd = bytes(folder) + b"/\xff\xfe\x80.hex"
    pathlib.Path(odd.decode(errors="surrogateescape")).write_text("20023f00")
    status, text, _ = run("view", odd)
    true(status == DONE and "\ufffd" in text.decode(), "what is no UTF-8 is replaced")


def test_command(folder):
    expect(["view", "-o", str(folder / "page.html"), "20023f00"], DONE)
    true((folder / "page.html").read_text().startswith("<!DOCTYPE html>"), "a page is written to the file")
    expect(["view", "20023f00", "20023f00", "20023f00"], USAGE, err=re.compile("At Most 2"))
    expect(["view", str(folder / "none.hex")], USAGE, err=re.compile("none.hex"))
    expect(["view", "--band", "n999999", "20023f00"], USAGE, err=re.compile("--band"))
    held = str(PROJECT / "docs/guide/before.hex")
    delta = out("delta", held, str(PROJECT / "docs/guide/after.hex")).strip()
    compare(delta, "--previous", held)


def test_size(_):
    """The largest messages that make the largest pages."""
    for price in ("20.7", "20.5", "13"):
        message = json.loads(subprocess.run([DENSEST, price], capture_output=True, check=True).stdout)
        cells = message.pop("sCellToAddModList", [])
        largest = ""
        for number in range(len(cells) + 1):
            if number != 0:
                message["sCellToAddModList"] = cells[:number]
            digits = out("encode", "--as", "jer", "-", stdin=json.dumps(message)).strip()
            if not 0 < len(digits) <= 2 * 8192:
                break
            largest = digits
        if not largest:
            continue
        page = compare(largest)
        size = len(view(write(largest)))
        print(f"{len(largest) // 2} octets, {len(list(page.trees[0].all()))} elements: a page of {size} octets")
        true(size < 1000000, f"a page of {size} octets")


def test_script(_):
    """The script is one that a browser takes."""
    if shutil.which("node") is None:
        print("no node: the script's syntax is not looked at")
        return
    done = subprocess.run(["node", "--check", str(PROJECT / "Page/Src/page.js")], capture_output=True, check=False)
    true(done.returncode == 0, done.stderr.decode())


main(test_examples, test_random, test_findings, test_malformed, test_two, test_safe, test_command, test_size, test_script)
