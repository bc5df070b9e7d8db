#!/usr/bin/env python3
"""Installs what was built into a folder of its own, and looks at it as a user would."""
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

build = sys.argv.pop(1)


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        subprocess.run(["cmake", "--install", build, "--prefix", cls.root], check=True,
                       capture_output=True)

    def test_the_links_of_the_pages_work(self):
        links = 0
        for page in self.root.rglob("*.md"):
            for target in re.findall(r"\]\(([^)#\s]+)[^)]*\)", page.read_text(encoding="utf-8")):
                if not target.startswith("http"):
                    links += 1
                    self.assertTrue((page.parent / target).exists(), f"{page.name}: {target}")
        self.assertGreater(links, 40)

    def test_there_is_what_there_should_be(self):
        files = [file for file in self.root.rglob("*") if not file.is_dir()]
        self.assertEqual([file for file in files if file.name.startswith(".")], [])
        for wanted in ("bin/jobticket", "man1/jobticket.1", "completions/jobticket", "zent27.pc",
                       "include/zent27.h"):
            self.assertTrue(any(str(file).endswith(wanted) for file in files), wanted)
        ticket = self.root / "ticket.xml"
        subprocess.run([self.root / "bin" / "jobticket", "new", "-m", "1", "-o", ticket], check=True)
        self.assertTrue(ticket.exists())


if __name__ == "__main__":
    unittest.main()
