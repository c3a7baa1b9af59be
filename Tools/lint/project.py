# Copyright Corvane. MIT License.
"""What every checker shares: the project's files, the exceptions, and how a result is printed."""

import argparse
import os
import pathlib
import re
import subprocess
import sys

CPP = (".h", ".cpp")


class Project:
    """The files of a tree, and what one checker finds in them."""

    def __init__(self, checker, root):
        self.checker = checker
        self.root = pathlib.Path(root).resolve()
        self.names = sorted(name for name in self._list() if (self.root / name).is_file())
        self._texts = {}
        self._failures = []
        self._exceptions = self._read_exceptions()
        self._used = set()

    def _list(self):
        """Tracked files and new ones; everything where the tree is no repository."""
        if (self.root / ".git").exists():
            # A tree that belongs to somebody else is the ordinary case where a build runs as root.
            command = ["git", "-c", "safe.directory=*", "-C", str(self.root), "ls-files", "-z", "--cached", "--others",
                       "--exclude-standard"]
            listing = subprocess.run(command, check=True, capture_output=True)
            return set(filter(None, listing.stdout.decode().split("\0")))
        names = set()
        for folder, folders, files in os.walk(self.root):
            folders[:] = [name for name in folders if name not in (".git", "build", "__pycache__")]
            names.update(str((pathlib.Path(folder) / name).relative_to(self.root)) for name in files)
        return names

    def _read_exceptions(self):
        """Lines "CHECKER PATH [NAME] -- REASON": what a checker finds in PATH (about NAME) is meant to be so."""
        path = self.root / "Tools/lint/exceptions.txt"
        exceptions = []
        for number, line in enumerate(path.read_text().splitlines() if path.exists() else [], 1):
            if not line.strip() or line.startswith("#"):
                continue
            rule, separator, reason = line.partition(" -- ")
            words = rule.split()
            if not separator or not reason.strip() or len(words) not in (2, 3):
                self._failures.append((str(path.relative_to(self.root)), number, "is not CHECKER PATH [NAME] -- REASON"))
            elif words[0] == self.checker:
                exceptions.append((words[1], words[2] if len(words) == 3 else None, number))
        return exceptions

    def files(self, *folders, ending=None):
        """Names of the files below these folders (all without a folder), with one of these endings."""
        for name in self.names:
            if folders and not any(name.startswith(folder + "/") for folder in folders):
                continue
            if ending is None or name.endswith(ending):
                yield name

    def bytes(self, name):
        return (self.root / name).read_bytes()

    def text(self, name):
        """Characters that are not UTF-8 become U+FFFD; check-text reports them."""
        if name not in self._texts:
            self._texts[name] = self.bytes(name).decode("utf-8", "replace")
        return self._texts[name]

    def fail(self, name, line, message, about=None):
        for exception in self._exceptions:
            if name == exception[0] and exception[1] in (None, about):
                self._used.add(exception)
                return
        self._failures.append((name, line, message))

    def close(self, summary):
        """Prints the failures or one OK line; the status for the process."""
        for exception in self._exceptions:
            if exception not in self._used:
                self._failures.append(("Tools/lint/exceptions.txt", exception[2], "excuses nothing any more"))
        for name, line, message in sorted(self._failures):
            print(f"FAIL {name}:{line}: {message}")
        if not self._failures:
            print(f"OK   {self.checker}: {summary}")
        return 1 if self._failures else 0


def open_project(description, arguments=()):
    """The tree that the command line names with --root, by default the one in which the checker lies."""
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--root", default=pathlib.Path(__file__).resolve().parent.parent.parent)
    for argument, settings in arguments:
        parser.add_argument(argument, **settings)
    options = parser.parse_args()
    return Project(pathlib.Path(sys.argv[0]).name, options.root), options


def line_of(text, position):
    return text.count("\n", 0, position) + 1


def stem_of(name):
    """The file's name up to its first dot."""
    return re.match(r"[^.]*", pathlib.PurePosixPath(name).name).group()
