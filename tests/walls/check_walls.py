#!/usr/bin/python3
"""Looks whether the folders of src/ keep to the arrows between them, and all files to the house rules.

Usage: tests/walls/check_walls.py [ROOT]

Prints one line per violation and ends with 1 when there is one. The compiler keeps logic from
including Qt, as its targets do not link it; but all folders share one include root, so that only
this table keeps one folder from including a neighbour.
"""

import os
import pathlib
import re
import sys

QT = "Qt"
FORM_PARTS = ["platform", "platform/qt", "platform/controls", "core", QT]

# What the files of a folder may include, besides their own folder and the standard library.
MAY_INCLUDE = {
    "platform": [],
    "platform/files": ["platform"],
    "platform/serial": ["platform", "platform/files"],
    "platform/start": ["platform", "platform/files"],
    "platform/bus": ["platform"],
    "platform/sqlite": ["platform", "platform/files"],
    "platform/access": ["platform"],
    "platform/qt": ["platform", QT],
    "platform/calendar": ["platform"],
    "platform/controls": ["platform", "platform/qt", "platform/calendar",
                          "platform/controls/models", QT],
    "platform/controls/models": ["platform"],
    "planner/sqlite": ["platform", "platform/files", "platform/sqlite", "planner"],
    "core": ["platform"],
    "core/forms": FORM_PARTS,
}

# The subsystems, each with the subsystems whose logic its own logic builds on. Besides these it
# may use core and platform. A form may use its own logic, and through it what that builds on.
SUBSYSTEMS = {
    "phonebook": [],
    "planner": ["platform/calendar", "phonebook"],
    "telephony": ["phonebook", "docpad"],
    "docpad": ["phonebook"],
    "reports": ["phonebook"],
    "exchange": ["phonebook", "planner", "platform/files", "platform/sqlite"],
    "accessories": [],
}
for subsystem, builds_on in SUBSYSTEMS.items():
    MAY_INCLUDE[subsystem] = ["platform", "core", *builds_on]
    MAY_INCLUDE[subsystem + "/forms"] = [*FORM_PARTS, subsystem,
                                         *(on for on in builds_on if on in SUBSYSTEMS)]

# These put the others together.
ANYTHING = ("", "app")

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
QT_HEADER = re.compile(r"^(Q[A-Z]\w*|Qt\w*/.*|q[a-z]+\.h)$")
SOURCES = (".h", ".cpp")

# (pattern, where, why): what must not stand in a file whose path matches `where`.
FORBIDDEN = [
    (r"#\s*include\s*<QtWidgets>", r"\.(h|cpp)$", "include the headers of single classes"),
    (r"\{[^\n]*\bQ_OBJECT\b", r"\.h$", "Q_OBJECT stands on a line of its own"),
    (r"#\s*include\s*<(sys/\w+|fcntl|unistd|dirent|poll|signal|pwd|grp|spawn|termios|dlfcn)\.h>"
     r"|#\s*include\s*<(filesystem|fstream)>", r"^src/(?!platform/)",
     "files and the system are behind platform/files"),
    (r"\bQMessageBox\b", r"^src/(?!platform/qt/|app/)", "ask and tell through Messages"),
    (r"\b(QSettings|QFile|QDir|QSaveFile)\b", r"^src/.*forms/", "forms touch no files or settings"),
    # A key is a constant of that table; a name by itself is for those that are made at run time.
    (r"\bsettings\w*(?:\(\))?(?:\.|->)(?:Read|Save|Delete|readAll)\("
     r"|\bsettings\w*(?:\(\))?(?:\.|->)(?:remove\((?!keys::)|\w+\(\s*[{\"])"
     r"|\b(?:Text|Switch|Number|Choice|Font)Key(?:\s+\w+)?\s*\{|\bKeyFamily(?:\s+\w+)?\s*\{",
     r"^src/(?!core/Setting|planner/NumberedList\.cpp|platform/)",
     "keys of the settings stand in core/SettingKeys.h"),
    (r"\bstd::(toupper|tolower|isalpha|locale)\b|\bstrn?casecmp\b", r"^src/(?!platform/CodePage)",
     "letters are folded by the code page"),
    (r"\b(sleep_for|sleep_until|usleep|QThread::m?sleep|QTest::q(Wait|Sleep)\()", r"^tests/.*\.cpp$",
     "tests wait for conditions"),
    (r"\bDISABLED_\w", r"^tests/.*\.cpp$", "a test that does not run is mended or removed"),
    (r"\b(TODO|FIXME|XXX)\b", r"", "unfinished work does not stay in the tree"),
    (r"(?<![\w.])/(work|root)/\w", r"", "paths of one machine"),
    (r"(?<![\w.])/home/\w", r"^(?!tests/)", "paths of one machine"),
    (r"(?i)\b(?:[r]ulings?|[s]pecification|[s]pec\.md|the [s]pec)\b|\bParts? [1-8]\.\d", r"",
     "words that a reader of the repository can not follow"),
]
TEXT_FILES = (".h", ".cpp", ".py", ".md", ".txt", ".cmake", ".json", ".qss", ".qrc", ".yml", "")
NOT_OURS = {"build", "pictures", ".git", ".cache", "__pycache__"}


def files_of(root):
    found = []
    for folder, folders, names in os.walk(root):
        folders[:] = [name for name in folders if name not in NOT_OURS]
        found += [(pathlib.Path(folder) / name).relative_to(root) for name in names
                  if name not in NOT_OURS]
    return [relative for relative in sorted(found) if (root / relative).is_file()]


def folder_of(relative):
    """The folder of a path that is relative to src/: "" for src/ itself."""
    parent = relative.parent.as_posix()
    return "" if parent == "." else parent


def includes(text):
    """(line, quoted, name) of all include lines."""
    for match in INCLUDE.finditer(text):
        # A match may begin with the blank lines before it.
        yield text.count("\n", 0, match.start(2)) + 1, match[1] == '"', match[2]


def include_violation(source, folder, quoted, name):
    """Why a file of `folder` must not include `name`, or None."""
    if folder in ANYTHING:
        allowed = None
    else:
        allowed = {folder, *MAY_INCLUDE[folder]}
    if not quoted:
        if QT_HEADER.match(name) and allowed is not None and QT not in allowed:
            return "no Qt here"
        return None
    if name.endswith(".moc"):
        return None
    if not (source / name).is_file():
        return "own headers are named from src/ on"
    target = folder_of(pathlib.PurePosixPath(name))
    if allowed is not None and target not in allowed:
        return f"no arrow from {folder} to {target or 'src'}"
    return None


def wall_violations(root):
    source = root / "src"
    for relative in files_of(source):
        if relative.suffix not in SOURCES:
            continue
        folder = folder_of(relative)
        if folder not in MAY_INCLUDE and folder not in ANYTHING:
            yield f"src/{relative}: this folder is not in the table of arrows"
            continue
        text = (source / relative).read_text(encoding="utf-8")
        for line, quoted, name in includes(text):
            why = include_violation(source, folder, quoted, name)
            if why:
                yield f"src/{relative}:{line}: includes {name}: {why}"


def word_violations(root):
    this_file = pathlib.Path(__file__).resolve()
    its_tests = this_file.with_name("test_" + this_file.name)
    rules = [(re.compile(pattern), re.compile(where), why) for pattern, where, why in FORBIDDEN]
    for relative in files_of(root):
        path = root / relative
        if relative.suffix not in TEXT_FILES or path.resolve() in (this_file, its_tests):
            continue
        try:
            text = path.read_text(encoding="utf-8")
        except UnicodeDecodeError:
            continue
        for pattern, where, why in rules:
            if not where.search(relative.as_posix()):
                continue
            for match in pattern.finditer(text):
                line = text.count("\n", 0, match.start()) + 1
                yield f"{relative}:{line}: {match[0].strip()!r}: {why}"


def violations(root):
    return [*wall_violations(root), *word_violations(root)]


def main():
    default = pathlib.Path(__file__).resolve().parents[2]
    found = violations(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default)
    for line in found:
        print(line)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
