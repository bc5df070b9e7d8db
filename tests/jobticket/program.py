"""Runs the program jobticket as its users do. The tests of the program share this."""
import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
EXAMPLES = sorted((ROOT / "examples").glob("*.xml"))
REPORT = ROOT / "examples" / "report.xml"

# Of no user's preferences, so that all have their defaults.
UNTOUCHED_SET = "jobticket test, never written"

OK, DIFFERENT, USAGE, UNREADABLE, INVALID, BAD_VALUE, UNWRITABLE, LIBRARY = range(8)

EMPTY = (b'<?xml version="1.0" encoding="UTF-8"?>\r\n'
         b'<!DOCTYPE ordo SYSTEM "ordo-v02025.dtd">\r\n'
         b'<ordo krss-version="2.01" version="1.0" xml:lang="en-US"/>')

parser = argparse.ArgumentParser()
parser.add_argument("program", nargs="+", help="the program, after the command that starts it")
parser.add_argument("--example", help="the example program in C, built")
arguments = parser.parse_args()
program, example = arguments.program, arguments.example
is_windows = program[-1].endswith(".exe")


def run(*arguments, data=b"", status=OK, cwd=None):
    """The program's standard output; `status` is what it has to return."""
    return run_for_both(*arguments, data=data, status=status, cwd=cwd)[0]


def run_for_both(*arguments, data=b"", status=OK, cwd=None):
    done = subprocess.run([*program, *map(str, arguments)], input=data, cwd=cwd,
                          capture_output=True, timeout=100, check=False)
    message = done.stderr.decode(errors="replace")
    if done.returncode != status:
        raise AssertionError(f"{arguments} gave {done.returncode}, not {status}: {message}")
    return done.stdout, message


def raw(document):
    """A ticket's assignments, from a document."""
    lines = run("show", "--raw", "-", data=document).decode().splitlines()
    return dict(line.split("=", 1) for line in lines)


def document(ticket):
    """An example as the library writes it: a comment is no part of a ticket."""
    return re.sub(rb"<!--.*-->\r\n", b"", ticket.read_bytes())


def some(rows):
    """A few of the rows where an emulator makes each run slow: they are the same on each system."""
    return rows[::8] if len(program) > 1 else rows


class InFolder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(dir=os.environ.get("TEST_TMPDIR"))
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)


def main():
    unittest.main(argv=sys.argv[:1])
