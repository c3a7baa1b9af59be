# Copyright Corvane. MIT License.
"""What the checkers that compile share: how a module's sources are compiled, and running many compilers at once."""

import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess


class Commands:
    """The include folders and definitions of each source file and module, as the build has them."""

    def __init__(self, root, build):
        self.root = root
        self._by_file = {}
        for entry in json.loads((pathlib.Path(build) / "compile_commands.json").read_text()):
            path = pathlib.Path(entry["directory"], entry["file"])
            if path.is_relative_to(root):
                self._by_file.setdefault(str(path.relative_to(root)), shlex.split(entry["command"]))

    def has(self, name):
        return name in self._by_file

    def flags(self, name):
        """Of a file that is compiled, or of the module (the folder that holds Public and Private) in which it lies."""
        if name in self._by_file:
            return self._search_flags(self._by_file[name])
        module = re.match(r"(?:Source|Standalone/Engine|Standalone/Testing(?=/Automation/))/[^/]+", name).group()
        for other, command in self._by_file.items():
            if other.startswith(f"{module}/Private/") and "/Tests/" not in other:
                return self._search_flags(command)
        return None

    @staticmethod
    def _search_flags(command):
        flags = []
        for index, word in enumerate(command):
            if word.startswith(("-I", "-D")) and len(word) > 2:
                flags.append(word)
            elif word in ("-isystem", "-I", "-D"):
                flags += [word, command[index + 1]]
        return flags


def run_all(work, jobs):
    """work(job) for each job, as many at once as there are processors; yields (job, result) in order."""
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 2) as pool:
        yield from zip(jobs, pool.map(work, jobs))


def capture(command, text=None, folder=None):
    """Exit status and everything that was printed."""
    result = subprocess.run(command, input=text, capture_output=True, text=True, errors="replace", cwd=folder,
                            stdin=subprocess.DEVNULL if text is None else None)
    return result.returncode, result.stdout + result.stderr
