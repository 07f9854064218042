#!/usr/bin/python3
"""Looks whether files, functions and classes of src/ are small enough to be read.

Usage: tests/walls/check_sizes.py [ROOT]

Prints one line per violation and ends with 1 when there is one. It reads the sources by their
braces, which is sound for files that clang-format has laid out and that no macro cuts up; what it
takes for a function is a body behind a closing bracket, and for a method what is called so in the
body of a class.
"""

import pathlib
import re
import sys

LONGEST_FILE = 450
LONGEST_FUNCTION = 60
MOST_METHODS = 45

NOT_CODE = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'', re.DOTALL)
PREPROCESSOR = re.compile(r"^[ \t]*#(?:[^\n\\]|\\.|\\\n)*", re.MULTILINE)
CLASS = re.compile(r"\b(?:class|struct)\s+(?:\w+\s+)*?(\w+)\s*(?:final\s*)?(?::[^;{}()]*)?$")
NAMESPACE = re.compile(r"(\bnamespace\b[^;{}()]*|\bextern\s*)$")
ACCESS = re.compile(r"^\s*(?:public|protected|private|signals)(?:\s+slots)?\s*:|^\s*Q_\w+\s*(\([^)]*\))?")
NO_METHOD = re.compile(r"^\s*(?:friend|using|typedef|static_assert|enum)\b")
LAMBDA = re.compile(r"\[[^\[\]]*\]\s*(?:\([^()]*\)\s*)?(?:mutable\s*)?(?:->[^{}]*)?$")
METHOD = re.compile(r"(?:operator\s*\S+|~?\w+)\s*\(")


def blank(match):
    """The same number of lines and characters without their meaning."""
    return re.sub(r"[^\n]", " ", match[0])


def code_of(text):
    return PREPROCESSOR.sub(blank, NOT_CODE.sub(blank, text))


def without_templates(statement):
    """What stands in angle brackets, such as the signature of a std::function, is no call."""
    while True:
        shorter = re.sub(r"<[^<>;{}]*>", "", statement)
        if shorter == statement:
            return statement
        statement = shorter


def is_method(statement):
    statement = re.sub(r"\{[^{}]*\}", "", without_templates(ACCESS.sub("", statement)))
    if NO_METHOD.match(statement):
        return False
    call = METHOD.search(statement)
    return bool(call) and "=" not in statement[:call.start()].replace("operator=", "")


class Scope:
    def __init__(self, kind, name, line):
        self.kind = kind  # "class", "function", "namespace", "value" or "other"
        self.name = name
        self.line = line
        self.methods = 0


def kind_of(head):
    """What an opening brace behind these words opens: kind and name."""
    head = re.sub(r"\[\[[^\]]*\]\]", "", head).strip()
    head = ACCESS.sub("", head).strip()
    if LAMBDA.search(head):
        return "other", ""
    if NAMESPACE.search(head):
        return "namespace", ""
    bare = without_templates(head)
    found = CLASS.search(bare)
    if found and "(" not in bare:
        return "class", found[1]
    if re.search(r"\)\s*(?:const|noexcept|override|final|mutable|->[^{}]*|\s)*(?::[^?]*)?$", bare):
        name = METHOD.search(bare)
        return "function", re.sub(r"\s*\($", "", name[0]) if name else ""
    return "other", ""


def sizes(text):
    """(kind, name, line, size) of each function (in lines) and class (in methods)."""
    code = code_of(text)
    scopes = []
    begin = 0  # of the statement under way
    line = 1
    for at, character in enumerate(code):
        if character == "\n":
            line += 1
        if character not in "{};":
            continue
        statement = code[begin:at]
        inside = scopes[-1] if scopes else None
        in_code = any(scope.kind == "function" for scope in scopes)
        if character == "{":
            # The layout leaves no blank before the braces of a value, as in ": a_{1}".
            if not code[at - 1].isspace():
                scopes.append(Scope("value", "", line))
                continue
            kind, name = ("other", "") if in_code else kind_of(statement)
            scopes.append(Scope(kind, name, line))
            if kind == "function" and inside and inside.kind == "class":
                inside.methods += 1
        elif character == ";":
            if inside and inside.kind == "class" and is_method(statement):
                inside.methods += 1
        elif scopes:
            scope = scopes.pop()
            if scope.kind == "value":
                continue
            if scope.kind == "function":
                yield "function", scope.name, scope.line, line - scope.line + 1
            elif scope.kind == "class":
                yield "class", scope.name, scope.line, scope.methods
        begin = at + 1


def size_violations(root):
    for path in sorted((root / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        relative = path.relative_to(root)
        text = path.read_text(encoding="utf-8")
        lines = text.count("\n")
        if lines > LONGEST_FILE:
            yield f"{relative}: {lines} lines, more than {LONGEST_FILE}"
        for kind, name, line, size in sizes(text):
            if kind == "function" and size > LONGEST_FUNCTION:
                yield f"{relative}:{line}: {name} has {size} lines, more than {LONGEST_FUNCTION}"
            if kind == "class" and size > MOST_METHODS:
                yield f"{relative}:{line}: {name} has {size} methods, more than {MOST_METHODS}"


def main():
    default = pathlib.Path(__file__).resolve().parents[2]
    found = list(size_violations(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default))
    for line in found:
        print(line)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
