"""Reads a page as a browser without script does: the trees of its messages, their findings and its data."""

import functools
import html.parser
import json
import re


class Node:
    def __init__(self, parent):
        self.parent = parent
        self.text = ""
        self.kind = "leaf"
        self.children = []
        self.meaning = ""
        self.findings = []
        self.bits = None

    @property
    def name(self):
        return self.text.strip().split(" ", 1)[0]

    @property
    def literal(self):
        return self.text.strip().split(" ", 1)[1]

    def value(self):
        """The node as the JSON that it stands for."""
        if self.kind == "leaf":
            return json.loads(self.literal)
        if self.kind == "array":
            assert [child.name for child in self.children] == [f"[{i}]" for i in range(len(self.children))]
            return [child.value() for child in self.children]
        assert len({child.name for child in self.children}) == len(self.children)
        return {child.name: child.value() for child in self.children}

    def all(self):
        yield self
        for child in self.children:
            yield from child.all()

    @functools.cache
    def path(self):
        if self.parent is None:
            return self.name
        return self.parent.path() + ("" if self.name.startswith("[") else ".") + self.name


class Page(html.parser.HTMLParser):
    """`trees`: the root Node of each message. `data`: what the script reads. `differences`: (path, words)."""

    def __init__(self, text):
        super().__init__()
        self.trees = []
        self.data = None
        self.differences = []
        self.elements = []  # (tag, attributes) of all of them
        self.texts = []  # outside of style and script
        self.node = None
        self.within = []  # "i", "p", "code": where a text stands
        self.raw = None
        self.area = None
        self.feed(text)
        self.close()
        for tree, message in zip(self.trees, self.data["messages"] if self.data else []):
            place(tree, message["bits"])

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        self.elements.append((tag, given))
        if tag == "ul" and given.get("class") == "t":
            self.area = "tree"
            return
        if tag == "details" and "d" in given.get("class", "").split():
            self.area = "differences"
        if tag in ("style", "script"):
            self.raw = given.get("type", tag)
        elif self.area == "differences" and tag == "li":
            self.differences.append(["", ""])
        elif self.area == "differences" and tag == "code":
            self.within.append("code")
        elif self.area == "tree":
            self.in_tree(tag, given)

    def end_paragraph(self):
        """What HTML ends where no end tag stands."""
        if self.within == ["p"]:
            self.within.pop()

    def in_tree(self, tag, given):
        if tag in ("li", "ul", "ol", "p"):
            self.end_paragraph()
        if tag == "li":
            # An item ends where the next one begins; `node` is then the one whose list it is in.
            parent = self.node
            while parent is not None and parent.kind == "leaf":
                parent = parent.parent
            node = Node(parent)
            if parent is None:
                self.trees.append(node)
            else:
                parent.children.append(node)
            self.node = node
        elif tag in ("ul", "ol"):
            self.node.kind = "array" if tag == "ol" else "object"
        elif tag == "p":
            self.node.findings.append({"id": given["data-id"], "path": given["data-path"],
                                       "severity": {"e": "error", "w": "warning", "n": "notice"}[given["class"]],
                                       "text": ""})
            self.within.append("p")
        elif tag == "i":
            self.within.append("i")

    def handle_endtag(self, tag):
        if self.raw is not None and tag in ("style", "script"):
            self.raw = None
        elif tag == "details":
            self.area = None
        elif self.within and tag == self.within[-1]:
            self.within.pop()
        elif self.area == "tree" and tag in ("ul", "ol"):
            self.end_paragraph()
            node = self.node
            while node is not None and node.kind == "leaf":
                node = node.parent
            # What follows belongs to the list around it.
            self.node = node.parent
            if self.node is None:
                self.area = None

    def handle_data(self, text):
        if self.raw == "application/json":
            self.data = json.loads(text)
        if self.raw is not None:
            return
        self.texts.append(text)
        if self.area == "differences" and self.differences:
            self.differences[-1][0 if self.within else 1] += text
        elif self.area == "tree" and self.node is not None:
            if not self.within:
                self.node.text += text
            elif self.within[-1] == "i":
                self.node.meaning += text
            else:
                self.node.findings[-1]["text"] += text


def place(tree, bits):
    """Gives the nodes their (first, count), as the data says: counted from where the last list began or leaf ended."""
    following = 0
    nodes = list(tree.all())
    assert len(nodes) == len(bits)
    for node, entry in zip(nodes, bits):
        if entry is not None:
            distance, count = entry if isinstance(entry, list) else (0, entry)
            node.bits = (following + distance, count)
            following += distance + (count if node.kind == "leaf" else 0)


def unfold(numbers, heads):
    """The items of a list that the page leaves to its script."""
    numbers = iter(numbers)

    def item(number):
        if number >= 0:
            return "<li>" + heads[number]
        tag = "ol" if next(numbers) == 1 else "ul"
        inner = "".join(item(next(numbers)) for _ in range(next(numbers)))
        return f"<li>{heads[-1 - number]}<{tag}>{inner}</{tag}>"

    return "".join(item(number) for number in numbers)


def unfolded(text):
    """The page after its script has made the lists that are left to it."""
    data = json.loads(re.search(r'<script type="application/json">(.*?)</script>', text, re.S)[1])
    sections = re.split(r"(?=<section class=m)", text)
    for at, message in enumerate(data["messages"], 1):
        sections[at] = re.sub(r" data-rest=(\d+)>",
                              lambda found, m=message: ">" + unfold(m["rest"][int(found[1])], m["heads"]), sections[at])
    return "".join(sections)


def traced(lines, root):
    """(first, end) of all paths and those above them, from the lines of `decode --trace`."""
    ranges = {}
    whole = []
    for line in lines[1:]:
        columns = re.match(r"(\d+)(?:\.\.\d+)? +\d+\.\d+ +(\d+) +\S+ +(.*)", line)
        first, width, rest = int(columns[1]), int(columns[2]), columns[3]
        path = re.match(r"(?:[\w$-]|\.|\[\[?(?:\d+|\.\.\.)\]\]?)+", rest)[0]
        path = re.sub(r"\.\[\[[^\]]*\]\]", "", path)
        meaning = rest[len(re.match(r"(?:[\w$-]|\.|\[\[?(?:\d+|\.\.\.)\]\]?)+", rest)[0]):]
        if meaning.startswith((": not read",)) or meaning.endswith(" behind the message") or (
                meaning.startswith(": padding") and path == root):
            whole.append((first, width))
            continue
        while path:
            low, high = ranges.get(path, (first, first))
            ranges[path] = (min(low, first), max(high, first + width))
            path = re.sub(r"(\.[^.\[\]]+|\[\d+\]|^[^.\[\]]+)$", "", path)
    return {path: (low, high - low) for path, (low, high) in ranges.items()}, whole
