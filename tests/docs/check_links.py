"""check_links.py <project> [--installed]: each link, with its heading, and each path that the documents name leads somewhere, and
links lead from README.md to every page of docs/. Installed documents name paths of the sources, which are not beside them."""

import functools
import pathlib
import re
import sys

LINK = re.compile(r"\]\(([^)#]*)(?:#([^)]*))?\)")
PATH = re.compile(r"`([A-Za-z.]+/[\w./-]*)`")
FENCED = re.compile(r"^( *)```.*?^\1```$", re.M | re.S)  # code, whose lambdas look like links


@functools.cache
def anchors(document):
    """What its headings are called in links: no punctuation, blanks become dashes, a second one of a name gets a number."""
    text = FENCED.sub("", document.read_text(encoding="utf-8"))
    found = []
    for heading in re.findall(r"^#+ (.*)$", text, re.M):
        name = re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")
        found.append(f"{name}-{times}" if (times := sum(re.sub(r"-\d+$", "", known) == name for known in found)) else name)
    return found


def lost_heading(target, heading):
    return bool(heading) and target.suffix == ".md" and target.is_file() and heading not in anchors(target)


def reachable(begin):
    """The documents that links lead to from this one."""
    found, ahead = set(), [begin.resolve()]
    while ahead:
        document = ahead.pop()
        if document in found or document.suffix != ".md" or not document.is_file():
            continue
        found.add(document)
        ahead += [(document.parent / link).resolve() for link, _ in LINK.findall(document.read_text(encoding="utf-8"))
                  if link and "://" not in link]
    return found


def main():
    project = pathlib.Path(sys.argv[1])
    documents = [path for path in sorted(project.rglob("*.md"))
                 if not {"build", ".git", "node_modules"} & set(path.relative_to(project).parts)]
    is_installed = "--installed" in sys.argv[2:]
    folders = set() if is_installed else {path.name for path in project.iterdir() if path.is_dir()} - {"build"}
    checked = 0
    lost = []
    for document in documents:
        text = FENCED.sub("", document.read_text(encoding="utf-8"))
        links = [(document.parent / link if link else document, heading) for link, heading in LINK.findall(text)
                 if "://" not in link]
        targets = [target for target, _ in links]
        targets += [project / path for path in PATH.findall(text) if path.split("/")[0] in folders]
        checked += len(targets)
        lost += [f"{document.relative_to(project)}: {target}" for target in targets if not target.exists()]
        lost += [f"{document.relative_to(project)}: {target}#{heading}" for target, heading in links
                 if lost_heading(target, heading)]
    known = reachable(project / "README.md")
    lost += [f"no link leads to {page}" for page in sorted((project / "docs").rglob("*.md")) if page.resolve() not in known]
    print("\n".join(lost))
    print(f"{len(documents)} documents, {checked} links and paths, {len(lost)} lost")
    sys.exit(1 if lost or not checked else 0)


main()
