#!/usr/bin/env python3
"""Sets the expected ticket streams before a page of PostScript: the page must come out the same."""
import pathlib
import subprocess
import unittest

GOLDENS = sorted((pathlib.Path(__file__).resolve().parent.parent / "golden" / "ajt").glob("*.golden"))

PAGE = b"""%!PS-Adobe-3.0
%%Pages: 1
%%EndComments
%%Page: 1 1
/Helvetica findfont 24 scalefont setfont
72 700 moveto (A page of its own) show
0.6 setgray 100 300 200 150 rectfill
0 setgray 4 setlinewidth 72 72 moveto 500 650 lineto stroke
showpage
%%EOF
"""


def rendered(document):
    """What Ghostscript makes of a document: its messages, and the pages as bitmaps."""
    done = subprocess.run(
        ["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pgmraw", "-r36",
         "-sstdout=%stderr", "-sOutputFile=-", "-"],
        input=document, capture_output=True, timeout=60, check=False)
    return done.returncode, done.stderr, done.stdout


class PostScript(unittest.TestCase):
    def setUp(self):
        self.alone = rendered(PAGE)

    def test_the_page_shows_something(self):
        status, messages, page = self.alone
        self.assertEqual((status, messages), (0, b""))
        self.assertGreater(len(set(page)), 10)

    def test_streams_are_comments(self):
        self.assertEqual(len(GOLDENS), 6)
        for golden in GOLDENS:
            with self.subTest(golden.name):
                self.assertEqual(rendered(golden.read_bytes() + PAGE), self.alone)

    def test_what_is_no_comment_would_show(self):
        stream = GOLDENS[0].read_bytes()
        self.assertNotEqual(rendered(stream.replace(b"\n%TRVend", b"\nTRVend") + PAGE), self.alone)


if __name__ == "__main__":
    unittest.main()
