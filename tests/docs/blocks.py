"""The blocks of code in README.md, SECURITY.md and docs/, for the tests that run them."""

import re
from collections import namedtuple

# A block: the document as seen from the project, its line, its language or "", its text.
Block = namedtuple("Block", "document line language text")
FENCED = re.compile(r"^( *)```([^\n`]*)\n(.*?)^\1```$", re.M | re.S)


def documents(project):
    return [project / "README.md", project / "SECURITY.md", *sorted((project / "docs").rglob("*.md"))]


def blocks(project, *languages):
    """All blocks in order, or those of these languages."""
    found = []
    for document in documents(project):
        text = document.read_text(encoding="utf-8")
        for match in FENCED.finditer(text):
            line = text.count("\n", 0, match.start()) + 1
            found.append(Block(str(document.relative_to(project)), line, match[2], match[3]))
    return [block for block in found if not languages or block.language in languages]
