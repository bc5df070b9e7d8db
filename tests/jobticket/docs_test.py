#!/usr/bin/env python3
"""Runs every command that the README, the docs, the manual page and the help texts show, and compares
what it writes with what they show. "..." alone on a line stands for lines that are left out, "USER" for who is logged on."""
import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PAGES = [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]
MANUAL = ROOT / "apps" / "jobticket" / "jobticket.1.in"
FENCE = "```"

# What takes a job to a printer, where there is one: here it keeps the files, or what it reads.
SENDER = """#!/bin/sh
while [ $# -gt 0 ] && [ ! -f "$1" ]; do shift; done
cat "$@" >>"$HOME/sent"
"""

program = None


def write(*arguments):
    """What the program writes."""
    return subprocess.run([program, *arguments], capture_output=True, text=True, timeout=100,
                          check=True).stdout


def commands_of(*group):
    """The commands that help lists, with those of groups."""
    listing = write(*group, "--help").partition("Commands:\n")[2].partition("\n\n")[0]
    for name in re.findall(r"(?m)^  (\w+)", listing):
        yield " ".join([*group, name])
        yield from commands_of(*group, name)


def shown_commands(text):
    """The commands after a "$" in blocks of code, each with the lines that are shown after it."""
    for block in re.findall(rf"(?ms)^{FENCE}\w*\n(.*?)^{FENCE}$", text):
        for step in re.split(r"(?m)^\$ ", block)[1:]:
            command, output = re.fullmatch(r"((?:.*\\\n)*.*\n)((?:.*\n)*)", step).groups()
            yield command, output


def is_shown(shown, written):
    """Whether lines were written as they are shown."""
    pattern = "".join("(.*\n)*" if line == "..." else re.escape(line) + "\n"
                      for line in shown.rstrip("\n").split("\n"))
    return re.fullmatch(pattern, written.rstrip("\n") + "\n") is not None


class Docs(unittest.TestCase):
    def setUp(self):
        self.commands = list(commands_of())

    def start_page(self):
        """A folder with what a reader has at hand, and a user without preferences."""
        folder = tempfile.TemporaryDirectory(dir=os.environ.get("TEST_TMPDIR"))
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "examples").symlink_to(ROOT / "examples")
        for name in ("report.xml", "ticket.xml", "other.xml"):
            shutil.copy(ROOT / "examples" / "report.xml", self.folder / name)
        (self.folder / "report.ps").write_text("%!PS\n", encoding="utf-8")
        (self.folder / "hotfolder").mkdir()
        for name in ("lp", "nc"):
            (self.folder / name).write_text(SENDER, encoding="utf-8")
            (self.folder / name).chmod(0o755)
        self.run_in_folder("jobticket state pack report.xml -o queue.blob")
        new = self.run_in_folder("jobticket new -m 1 | jobticket show --raw -").stdout
        self.user = re.search("(?m)^requesting-user-name=(.*)", new)[1]

    def run_in_folder(self, command):
        environment = {**os.environ, "HOME": str(self.folder), "XDG_CONFIG_HOME": str(self.folder),
                       "LC_ALL": "C.UTF-8",
                       "PATH": f"{self.folder}:{program.parent}:{os.environ['PATH']}"}
        environment.pop("DISPLAY", None)
        environment.pop("WAYLAND_DISPLAY", None)
        return subprocess.run(["bash", "-o", "pipefail", "-c", command], cwd=self.folder,
                              env=environment, text=True, timeout=100, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def check(self, command, shown=""):
        done = self.run_in_folder(command)
        written = done.stdout.replace(f'"{self.user}"', '"USER"')
        with self.subTest(command):
            self.assertTrue(not shown.strip() or is_shown(shown, written), f"it writes\n{written}")
            # 1 says that something was found; errors are shown as such; dialogs need a display.
            self.assertTrue(done.returncode in (0, 1) or "jobticket: " in shown or
                            "dialog can't start" in done.stdout, done.stdout)

    def test_commands_of_pages(self):
        count = 0
        sent = ""
        for page in PAGES:
            self.start_page()
            for command, shown in shown_commands(page.read_text(encoding="utf-8")):
                self.check(command, shown)
                count += 1
            if (self.folder / "sent").exists():
                sent += (self.folder / "sent").read_text(encoding="utf-8")
        self.assertGreater(count, 30)
        self.assertIn("%TRVend\n%!PS\n", sent)
        self.assertIn("</ordo>%!PS\n", sent)  # two documents, one after the other

    def test_commands_of_the_manual(self):
        self.start_page()
        examples = write("manual", MANUAL).partition(".SH EXAMPLES\n.nf\n")[2].partition(".fi")[0]
        self.assertGreater(examples.count("\n"), 10)
        for command in examples.replace("\\-", "-").splitlines():
            self.check(command)

    def test_commands_of_help(self):
        self.start_page()
        for name in self.commands:
            examples = write(*name.split(), "--help").partition("Examples:\n")[2]
            for command in re.findall("(?m)^  (.*)", examples.partition("\n\n")[0]):
                self.check(command)

    def test_what_the_text_speaks_of_is_there(self):
        for page in PAGES:
            for use in re.findall("`jobticket ([a-z][^`]*)`", page.read_text(encoding="utf-8")):
                with self.subTest(page=page.name, use=use):
                    words = use.split()
                    name = next(name for name in (" ".join(words[:2]), words[0])
                                if name in self.commands)
                    options = re.findall(r"(?<![\w-])(--?[a-z][a-z-]*)", use)
                    known = write(*name.split(), "--help")
                    for option in options:
                        self.assertRegex(known, rf"[ ,]{option}[ ,\n]")


def main():
    global program
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program", type=pathlib.Path, help="the program")
    program = parser.parse_args().program.resolve()
    unittest.main(argv=sys.argv[:1])


if __name__ == "__main__":
    main()
