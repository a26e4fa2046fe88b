"""check_names.py functions|texts [<top folder>]: the sources keep the names and the texts that users rely on.

functions.txt: each function is defined exactly once, on a line that begins with its return type.
texts.txt: each function prints exactly its texts. A text is a whole literal in the function or in a helper that it
calls; "... is null" is a NULL_CHECK, and these stand in the order listed.
"""

import pathlib
import re
import sys
from collections import Counter, namedtuple

FOLDERS = ("Common/Src", "Du/Src")
GUARD = " is null\\r\\n"
PASSED_ON = "%s"  # a format that prints another text and nothing of its own

TOKEN = re.compile(r"""
    (?P<space>\s+|//[^\n]*|/\*.*?\*/)
  | (?P<string>"(?:[^"\\\n]|\\.)*")
  | (?P<other>'(?:[^'\\\n]|\\.)*'|\d[\w.']*|->|::)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<mark>.)
    """, re.VERBOSE | re.DOTALL)
DIRECTIVE = re.compile(r"^[ \t]*#(?:[^\n\\]|\\.|\\\n)*", re.MULTILINE)
CLOSING = {"(": ")", "{": "}"}

Token = namedtuple("Token", "kind text start")
# line_start: what its line begins with, as far as the name; guards, texts: in the order of the source; uses: all names.
Function = namedtuple("Function", "name path line_start guards texts uses")


def tokens_of(text):
    return [Token(match.lastgroup, match.group(), match.start())
            for match in TOKEN.finditer(text) if match.lastgroup != "space"]


def matching(tokens, opening):
    """The index of the bracket that closes the one at `opening`."""
    closing = CLOSING[tokens[opening].text]
    depth = 0
    for i in range(opening, len(tokens)):
        if tokens[i].kind == "mark":
            depth += (tokens[i].text == tokens[opening].text) - (tokens[i].text == closing)
            if depth == 0:
                return i
    raise ValueError(f"{tokens[opening].text} without {closing}")


def literals(tokens):
    """The contents of the string literals; adjacent ones are one."""
    result = []
    for i, token in enumerate(tokens):
        if token.kind == "string":
            if i != 0 and tokens[i - 1].kind == "string":
                result[-1] += token.text[1:-1]
            else:
                result.append(token.text[1:-1])
    return result


def guards(text, tokens):
    result = []
    for i, token in enumerate(tokens):
        if token.text == "NULL_CHECK" and tokens[i + 1].text == "(":
            end = matching(tokens, i + 1)
            result.append(" ".join(text[tokens[i + 1].start + 1:tokens[end].start].split()))
    return result


def functions_of(path, source):
    """The functions that a source defines, and the literals outside of them."""
    text = DIRECTIVE.sub(lambda match: " " * len(match.group()), source)
    tokens = tokens_of(text)
    functions = []
    outside = []
    statement = 0
    i = 0
    while i < len(tokens):
        token = tokens[i]
        begun = [t.text for t in tokens[statement:i]]
        if token.text == "{" and begun[:1] in (["namespace"], ["extern"]) and "(" not in begun:
            statement = i + 1
        elif token.text == "{":
            end = matching(tokens, i)
            # What a parameter list precedes is a function's body; what else is in braces is not looked into.
            names = [j for j in range(statement, i) if tokens[j].kind == "name" and tokens[j + 1].text == "("
                     and matching(tokens, j + 1) == i - 1]
            if names and "=" not in begun:
                name = tokens[names[0]]
                body = tokens[i:end]
                functions.append(Function(
                    name.text, path, text[text.rfind("\n", 0, name.start) + 1:name.start],
                    guards(text, body), [t for t in literals(body) if t != PASSED_ON],
                    {t.text for t in body if t.kind == "name"}))
                statement = end + 1
            elif "=" not in begun:
                outside += literals(tokens[statement:end])
                statement = end + 1
            i = end
        elif token.text in (";", "}"):
            outside += literals(tokens[statement:i])
            statement = i + 1
        i += 1
    return functions, outside


class Sources:
    def __init__(self, files):
        """files: path -> content"""
        self.functions = []
        self.complaints = []
        for path, content in sorted(files.items()):
            functions, outside = functions_of(path, content)
            self.functions += functions
            self.complaints += [f'{path}: "{text}" stands outside of all functions' for text in outside]
        self.files = files

    def check_functions(self, listed):
        complaints = [f"{name} is listed twice" for name, count in Counter(listed).items() if count > 1]
        for name in dict.fromkeys(listed):
            found = [function for function in self.functions if function.name == name]
            if len(found) != 1:
                places = "".join(f", {function.path}" for function in found)
                complaints.append(f"{name} is defined {len(found)} times, not once{places}")
            elif not re.match(r"[A-Za-z_].*[ *&]$", found[0].line_start):
                complaints.append(f"{found[0].path}: the line that defines {name} does not begin with its return type")
        return complaints

    def check_texts(self, listed, mandated):
        """listed: (function, text) pairs; mandated: the functions that are not helpers."""
        complaints = list(self.complaints)
        complaints += [f'{name}: "{text}" is listed twice'
                       for (name, text), count in Counter(listed).items() if count > 1]
        if not any(re.search(r'#define NULL_CHECK\(p\)(?:\\\n|[^\n])*vos_err_print\(#p " is null\\r\\n"\)', content)
                   for content in self.files.values()):
            complaints.append('NULL_CHECK(p) does not print the text of p and " is null\\r\\n"')

        texts = {}
        for name, text in listed:
            texts.setdefault(name, []).append(text)
        owners = set(mandated) | set(texts)
        reached = set()
        found_guards = {}
        found_texts = {}
        for function in self.functions:
            if function.name in owners:
                found_guards.setdefault(function.name, []).extend(function.guards)
                found_texts.setdefault(function.name, set()).update(self.texts_of(function, owners, reached))
        for function in self.functions:
            if function.name not in owners:
                complaints += [f"{function.path}: {function.name} guards {guard}, but is not listed"
                               for guard in function.guards]
                if id(function) not in reached:
                    complaints += [f'{function.path}: {function.name} prints "{text}", but is not listed'
                                   for text in function.texts]
        for name in sorted(owners):
            expected = [text for text in texts.get(name, []) if text.endswith(GUARD)]
            actual = [guard + GUARD for guard in found_guards.get(name, [])]
            if actual != expected:
                complaints.append(f"{name}: its null guards are {actual}, not {expected}")
            expected = {text for text in texts.get(name, []) if not text.endswith(GUARD)}
            actual = found_texts.get(name, set())
            complaints += [f'{name} does not print "{text}"' for text in sorted(expected - actual)]
            complaints += [f'{name} prints "{text}", which is not listed' for text in sorted(actual - expected)]
        return complaints

    def texts_of(self, function, owners, reached, seen=()):
        """The texts of a function and of the helpers that it uses; `reached` collects these helpers."""
        result = set(function.texts)
        for helper in self.functions:
            if (helper.name in function.uses and helper.name not in owners and helper not in seen
                    and (helper.path == function.path or helper.path.endswith(".h"))):
                reached.add(id(helper))
                result |= self.texts_of(helper, owners, reached, (*seen, helper))
        return result


def read_lines(path):
    return path.read_text(encoding="ascii").splitlines()


def main():
    what, top = sys.argv[1], pathlib.Path(sys.argv[2] if len(sys.argv) > 2 else ".")
    here = pathlib.Path(__file__).parent
    files = {str(path.relative_to(top)): path.read_text(encoding="utf-8")
             for folder in FOLDERS for path in (top / folder).rglob("*") if path.suffix in (".cpp", ".h")}
    sources = Sources(files)
    functions = read_lines(here / "functions.txt")
    if what == "functions":
        count = len(functions)
        complaints = sources.check_functions(functions)
    else:
        texts = [tuple(line.split("\t")) for line in read_lines(here / "texts.txt")]
        count = len(texts)
        complaints = sources.check_texts(texts, functions)
    print("\n".join(complaints) if complaints else f"{count} {what} are as listed, in {len(files)} files")
    sys.exit(1 if complaints or not files or not count else 0)


if __name__ == "__main__":
    main()
