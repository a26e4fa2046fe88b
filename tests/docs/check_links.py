"""check_links.py <project>: each link and each path that the documents name leads somewhere."""

import pathlib
import re
import sys

LINK = re.compile(r"\]\(([^)#]+)(?:#[^)]*)?\)")
PATH = re.compile(r"`([A-Za-z.]+/[\w./-]*)`")
FENCED = re.compile(r"^( *)```.*?^\1```$", re.M | re.S)  # code, whose lambdas look like links


def main():
    project = pathlib.Path(sys.argv[1])
    documents = [path for path in sorted(project.rglob("*.md"))
                 if not {"build", ".git", "node_modules"} & set(path.relative_to(project).parts)]
    folders = {path.name for path in project.iterdir() if path.is_dir()} - {"build"}
    checked = 0
    lost = []
    for document in documents:
        text = FENCED.sub("", document.read_text(encoding="utf-8"))
        targets = [document.parent / link for link in LINK.findall(text) if "://" not in link]
        targets += [project / path for path in PATH.findall(text) if path.split("/")[0] in folders]
        checked += len(targets)
        lost += [f"{document.relative_to(project)}: {target}" for target in targets if not target.exists()]
    print("\n".join(lost))
    print(f"{len(documents)} documents, {checked} links and paths, {len(lost)} lost")
    sys.exit(1 if lost or not checked else 0)


main()
