#!/usr/bin/env python3
"""Runs the program jobticket as its users do, and looks at what it writes, says and returns."""
import argparse
import concurrent.futures
import json
import os
import pathlib
import re
import shutil
import stat
import struct
import subprocess
import sys
import tempfile
import unittest
import unittest.mock
import zlib

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
EXAMPLES = sorted((ROOT / "examples").glob("*.xml"))
REPORT = ROOT / "examples" / "report.xml"
COMPLETION = ROOT / "apps" / "jobticket" / "jobticket.bash"
MANUAL = ROOT / "apps" / "jobticket" / "jobticket.1.in"
COMMANDS = ["new", "show", "get", "set", "unset", "diff", "check", "retarget", "instructions", "notes",
            "state", "state pack", "state unpack", "state show", "state renew", "features", "models",
            "capabilities", "stock", "stock list", "stock add", "stock remove", "preferences",
            "preferences list", "preferences get", "preferences set", "help"]

# Of no user's preferences, so that all have their defaults.
UNTOUCHED_SET = "jobticket test, never written"

OK, DIFFERENT, USAGE, UNREADABLE, INVALID, BAD_VALUE, UNWRITABLE, LIBRARY = range(8)

EMPTY = (b'<?xml version="1.0" encoding="UTF-8"?>\r\n'
         b'<!DOCTYPE ordo SYSTEM "ordo-v02025.dtd">\r\n'
         b'<ordo krss-version="2.01" version="1.0" xml:lang="en-US"/>')

program = []  # the command that starts the program
example = None  # the example program in C
is_windows = False


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


class Examples(InFolder):
    def test_each_passes_through_unchanged(self):
        for ticket in EXAMPLES:
            with self.subTest(ticket.name):
                self.assertEqual(run("set", ticket), document(ticket))

    def test_each_is_for_the_printer_that_its_comment_names(self):
        self.assertGreaterEqual(len(EXAMPLES), 7)
        for ticket in EXAMPLES:
            with self.subTest(ticket.name):
                comment = re.search("<!-- For the (.*) with (.*): jobticket (.*) -->\n",
                                    ticket.read_text(encoding="utf-8"))
                model, language, command = comment.groups()
                listed = run(*command.split(), cwd=ROOT).decode()
                self.assertRegex(listed, rf"^Tarvo {model}, .*{language}: no problems\n$")

    def test_each_is_listed(self):
        for ticket in some(EXAMPLES):
            with self.subTest(ticket.name):
                self.assertGreater(len(run("show", ticket).splitlines()), 10)

    def test_each_can_be_built_from_its_listing(self):
        for ticket in some(EXAMPLES):
            with self.subTest(ticket.name):
                # A line of the listing shows a line end as "\n".
                edits = [f"{path}={value}".replace("\\n", "\n")
                         for path, value in raw(ticket.read_bytes()).items()]
                built = self.folder / ticket.name
                run("set", "-", *edits, "-o", built, data=EMPTY)
                self.assertEqual(run("diff", ticket, built), b"")


    def test_the_program_in_c(self):
        if not example:
            self.skipTest("not given")
        ticket = self.folder / "ticket.xml"
        done = subprocess.run([*program[:-1], example, str(ticket)], capture_output=True, text=True,
                              timeout=100, check=True)
        self.assertIn(f"25 copies, {ticket.stat().st_size} bytes", done.stdout)
        of_printer = raw(run("new", "--model", 1))
        self.assertEqual(raw(ticket.read_bytes()), of_printer | {
            "job-name": "Quarterly report", "copies": "25", "sides": "two-sided-long-edge",
            "page-ranges": "1-5,8-9", "media-size": "21000x29700"})


class Editing(InFolder):
    def test_writes_the_whole_document(self):
        expected = "\r\n".join([
            '<?xml version="1.0" encoding="UTF-8"?>',
            '<!DOCTYPE ordo SYSTEM "ordo-v02025.dtd">',
            '<ordo krss-version="2.01" version="1.0" xml:lang="en-US">',
            "\t<ordo-operation-attributes>",
            '\t\t<job-name syntax="name" xml:space="preserve"> Büro &lt;1&gt; &amp; "2"</job-name>',
            "\t</ordo-operation-attributes>",
            "\t<job-template-attributes>",
            '\t\t<copies syntax="integer">2</copies>',
            '\t\t<page-ranges syntax="1setOf">',
            '\t\t\t<value syntax="rangeOfInteger">',
            '\t\t\t\t<lower-bound syntax="integer">1</lower-bound>',
            '\t\t\t\t<upper-bound syntax="integer">5</upper-bound>',
            "\t\t\t</value>",
            "\t\t</page-ranges>",
            '\t\t<media-col syntax="collection">',
            '\t\t\t<media-size syntax="collection">',
            '\t\t\t\t<x-dimension syntax="integer">21000</x-dimension>',
            '\t\t\t\t<y-dimension syntax="integer">29700</y-dimension>',
            "\t\t\t</media-size>",
            "\t\t</media-col>",
            "\t</job-template-attributes>",
            "</ordo>",
        ])
        edits = ['job-name= Büro <1> & "2"', "copies=2", "page-ranges=1-5",
                 "media-size=21000x29700"]
        written = run("set", "-", *edits, data=EMPTY)
        self.assertEqual(written.decode(), expected)

    def test_sets(self):
        rows = [
            # what is set, and what the ticket then says
            (["copies=25"], {"copies": "25"}),
            (["sides=two-sided-short-edge"], {"sides": "two-sided-short-edge"}),
            (["media-size=297x210mm"], {"media-size": "21000x29700"}),
            (["media-size=SIZE_17x11"], {"media-size": "27900x43200"}),
            (["media-size=letter"], {"media-size": "21600x27900"}),
            (["media-size=sra3"], {"media-size": "32000x45000"}),
            (["media-size=8.5inx11in"], {"media-size": "21590x27940"}),
            (["media-size=21 x 29.7 cm"], {"media-size": "21000x29700"}),
            (['media-size=612x792pt'], {"media-size": "21590x27940"}),
            (["x-side1-image-shift=-0.5cm", 'y-side1-image-shift=0.25"', "y-side2-image-shift=72pt"],
             {"x-side1-image-shift": "-500", "y-side1-image-shift": "635",
              "y-side2-image-shift": "2540"}),
            (["finishings=Staple-Top-Left,22"], {"finishings": "20,22"}),
            (["printer-resolution=600dpi"], {"printer-resolution": "600x600dpi"}),
            (["printer-resolution=240x120dpcm"], {"printer-resolution": "240x120dpcm"}),
            (["finishings=20,22"], {"finishings": "20,22"}),
            (["finishings=20,22,28", "finishings=3"], {"finishings": "3"}),
            (["finishings=20,22", "finishings[1]=28", "finishings[2]=3"],
             {"finishings": "20,28,3"}),
            (["page-ranges=1-5, 8", "page-ranges[0]=2-3"], {"page-ranges": "2-3,8"}),
            (["x-side1-image-shift=-1.25mm"], {"x-side1-image-shift": "-125"}),
            (["x-image-shift=5mm", "x-side2-image-shift=1mm", "y-image-shift=2mm"],
             {"x-side1-image-shift": "500", "x-side2-image-shift": "100",
              "y-side1-image-shift": "200", "y-side2-image-shift": "200"}),
            (["sides=one-sided", "x-image-shift=5mm"],
             {"sides": "one-sided", "x-side1-image-shift": "500"}),
            (["media-color= my own blue "], {"media-color": "my own blue"}),
            (["job-name=  kept  "], {"job-name": "  kept  "}),
            (["media-col.media-color=blue"], {"media-color": "blue"}),
            (["cover-front.media-color=blue"], {"cover-front.media-color": "blue"}),
            (["page-overrides[0].pages=3", "page-overrides[0].sides=one-sided"],
             {"page-overrides[0].input-documents": "1", "page-overrides[0].pages": "3",
              "page-overrides[0].sides": "one-sided"}),
            (["insert-sheet[0].insert-after-page-number=4", "insert-sheet[1].insert-count=2"],
             {"insert-sheet[0].insert-after-page-number": "4",
              "insert-sheet[1].insert-count": "2"}),
            (["form-name=a", "forms-col[1].form-name=b", "forms-col[1].form-cycle-start=7"],
             {"form-name": "a", "forms-col[1].form-name": "b",
              "forms-col[1].form-cycle-start": "7"}),
        ]
        for edits, expected in some(rows):
            with self.subTest(edits):
                self.assertEqual(raw(run("set", "-", *edits, data=EMPTY)), expected)

    def test_keeps_the_place_of_what_is_replaced(self):
        before = raw(REPORT.read_bytes())
        after = raw(run("set", REPORT, "copies=99", "media-color=blue"))
        self.assertEqual(list(before), list(after))

    def test_unsets(self):
        start = run("set", "-", "copies=2", "media-color=blue", "finishings=20,22,28",
                    "page-overrides[0].pages=1-2", "page-overrides[1].pages=7",
                    "page-overrides[1].sides=one-sided", "forms-col[0].form-name=a",
                    "forms-col[1].form-name=b", data=EMPTY)
        overrides = "page-overrides[{}].{}".format
        rows = [
            (["copies"], {"copies"}, {}),
            (["sides", "insert-sheet", "page-overrides[9].pages", "cover-front.sides"], set(), {}),
            (["media-color"], {"media-color"}, {}),
            (["media-col"], {"media-color"}, {}),
            (["finishings[1]"], set(), {"finishings": "20,28"}),
            (["finishings"], {"finishings"}, {}),
            (["page-overrides[1].sides"], {overrides(1, "sides")}, {}),
            (["page-overrides[0]"],
             {overrides(1, name) for name in ("input-documents", "pages", "sides")},
             {overrides(0, "pages"): "7", overrides(0, "sides"): "one-sided"}),
            (["forms-col[1].form-name"], {"forms-col[1].form-name"}, {}),
        ]
        for paths, gone, changed in some(rows):
            with self.subTest(paths):
                expected = {k: v for k, v in raw(start).items() if k not in gone} | changed
                self.assertEqual(raw(run("unset", "-", *paths, data=start)), expected)
        self.assertEqual(run("unset", "--all", REPORT), EMPTY)

    def test_unsets_what_is_no_feature(self):
        def attribute(name):
            return f'<{name} syntax="integer">50</{name}>'.encode()
        ticket = REPORT.read_bytes()
        ticket = ticket.replace(b"<copies", attribute("job-priority") + b"<copies")
        ticket = ticket.replace(b"<media-color", attribute("job-k-octets") + b"<media-color")
        ticket = ticket.replace(b"</page-ranges>", b"</page-ranges>" + attribute("number-up") * 2, 1)
        self.assertLessEqual({"job-priority", "job-k-octets"}, set(raw(ticket)))
        self.assertEqual(run("unset", "-", "job-priority", "job-k-octets", "number-up#2",
                             "number-up", "job-sheets", data=ticket),
                         run("set", REPORT))

    def test_reads_assignments_from_a_file(self):
        edits = self.folder / "edits"
        edits.write_text("# what we print on\n\ncopies=2\nmedia-color=my blue\r\n")
        ticket = run("set", "-", "copies=9", f"@{edits}", "sides=one-sided", data=EMPTY)
        self.assertEqual(raw(ticket),
                         {"copies": "2", "media-color": "my blue", "sides": "one-sided"})
        run("set", "-", f"@{self.folder / 'none'}", data=EMPTY, status=UNREADABLE)

    def test_sets_the_medium_to_a_stock(self):
        self.enterContext(unittest.mock.patch.dict(os.environ, HOME=str(self.folder)))
        if is_windows:
            self.skipTest("the user's own library")
        run("stock", "add", "Mine", "media-color=blue", "media-size=A4")
        run("stock", "add", "plain")
        expected = raw(REPORT.read_bytes())
        ticket = run("set", REPORT, "stock=Mine", "cover-front.stock=plain")
        listed = raw(ticket)
        self.assertEqual({path: value for path, value in listed.items() if "media" in path},
                         {"media-color": "blue", "media-size": "21000x29700",
                          "cover-front.media": "plain"})
        self.assertEqual({path for path in expected if "media" not in path},
                         {path for path in listed if "media" not in path})
        run("set", REPORT, "stock=none of these", status=BAD_VALUE)

    def test_gets(self):
        ticket = run("set", "-", "copies=2", "finishings=20,22", "media-color=blue",
                     "media-type=bond", "page-overrides[0].pages=3",
                     "page-overrides[0].sides=one-sided", data=EMPTY)
        for path, expected, status in some([
            ("copies", "2\n", OK),
            ("finishings", "20,22\n", OK),
            ("media-col", "media-color=blue\nmedia-type=bond\n", OK),
            ("page-overrides[0].sides", "one-sided\n", OK),
            ("cover-front", "", DIFFERENT),
            ("sides", "", DIFFERENT),
        ]):
            with self.subTest(path):
                self.assertEqual(run("get", "-", path, data=ticket, status=status).decode(), expected)
        self.assertEqual(len(run("get", "-", "page-overrides[0]", data=ticket).splitlines()), 3)
        run("get", "-", "copiez", data=ticket, status=BAD_VALUE)

    def test_hints_at_a_slip(self):
        _, message = run_for_both("set", REPORT, "media-color=bleu")
        self.assertIn('did you mean "blue"?', message)
        _, message = run_for_both("set", REPORT, "media-color=my own blue", "job-name=bleu")
        self.assertEqual(message, "")


class SeveralTickets(InFolder):
    def setUp(self):
        super().setUp()
        self.tickets = [self.folder / f"{name}.xml" for name in "abc"]
        for number, ticket in enumerate(self.tickets):
            run("set", "-", f"copies={10 ** (number * 2)}", "-o", ticket, data=EMPTY)

    def copies(self, folder):
        return [run("get", folder / ticket.name, "copies").decode().strip()
                for ticket in self.tickets]

    def test_set(self):
        run("set", "-i", *self.tickets, "sides=one-sided")
        self.assertEqual(self.copies(self.folder), ["1", "100", "10000"])
        self.assertEqual(run("get", self.tickets[2], "sides"), b"one-sided\n")
        out = self.folder / "out"
        run("set", *self.tickets, "copies=7", "-o", out, status=USAGE)
        out.mkdir()
        run("set", *self.tickets, self.tickets[0], "copies=7", "-o", out, status=USAGE)
        self.assertEqual(list(out.iterdir()), [])
        _, message = run_for_both("set", *self.tickets, "copies=7", "-o", out)
        self.assertEqual(message, "jobticket: 3 tickets, all of them fine\n")
        self.assertEqual(self.copies(out), ["7"] * 3)

    def test_check_and_instructions(self):
        self.tickets[1].write_bytes(b"no ticket")
        written, message = run_for_both("check", *self.tickets, "-m", "16", status=INVALID)
        self.assertEqual([line.split(" ")[0] for line in written.decode().splitlines()],
                         [f"{self.tickets[0]}:", f"{self.tickets[2]}:", "copies"])
        self.assertIn("b.xml is no valid ticket", message)
        self.assertTrue(message.endswith("jobticket: 3 tickets, 1 with problems, 1 failed\n"))
        written, message = run_for_both("check", "-q", *self.tickets[::2], "-m", "16",
                                        status=DIFFERENT)
        self.assertEqual((written, message), (b"", ""))
        run("instructions", "-q", *self.tickets, "-m", "16", "-o", self.folder, status=INVALID)
        self.assertEqual({file.name for file in self.folder.glob("*.txt")}, {"a.txt", "c.txt"})

    def test_show(self):
        listed = run("show", *self.tickets, "--raw").decode()
        self.assertEqual(listed, "".join(f"{ticket}:\ncopies={copies}\n\n" for ticket, copies in
                                         zip(self.tickets, (1, 100, 10000))))
        several = run("show", *self.tickets, "--json").decode()
        first, end = json.JSONDecoder().raw_decode(several)
        self.assertEqual(first["ticket"], str(self.tickets[0]))
        self.assertGreater(len(several), 2 * end)
        run("show", "-", "-", data=EMPTY, status=USAGE)


class Files(InFolder):
    def test_replaces_a_file_in_place(self):
        ticket = self.folder / "ticket ü.xml"
        shutil.copy(REPORT, ticket)
        run("set", ticket, "copies=99", "-o", ticket)
        self.assertEqual(raw(ticket.read_bytes())["copies"], "99")
        self.assertEqual([file.name for file in self.folder.iterdir()], [ticket.name])

    def test_leaves_the_file_alone_on_failure(self):
        ticket = self.folder / "ticket.xml"
        ticket.write_bytes(b"as it was")
        run("set", REPORT, "copies=none", "-o", ticket, status=BAD_VALUE)
        run("set", ticket, "copies=2", "-o", ticket, status=INVALID)
        self.assertEqual(ticket.read_bytes(), b"as it was")
        run("set", REPORT, "-o", self.folder, status=UNWRITABLE)
        run("set", REPORT, "-o", self.folder / "none" / "ticket.xml", status=UNWRITABLE)
        self.assertEqual([file.name for file in self.folder.iterdir()], [ticket.name])

    def test_keeps_links_and_modes(self):
        if is_windows:
            self.skipTest("of POSIX")
        ticket = self.folder / "ticket.xml"
        shutil.copy(REPORT, ticket)
        ticket.chmod(0o640)
        link = self.folder / "link.xml"
        link.symlink_to(ticket.name)
        run("set", link, "copies=99", "-o", link)
        self.assertTrue(link.is_symlink())
        self.assertEqual(stat.S_IMODE(ticket.stat().st_mode), 0o640)
        self.assertEqual(raw(ticket.read_bytes())["copies"], "99")

    def test_writes_into_a_device(self):
        if is_windows:
            self.skipTest("of POSIX")
        run("set", REPORT, "-o", "/dev/null")
        self.assertTrue(stat.S_ISCHR(os.stat("/dev/null").st_mode))
        run("set", REPORT, "-o", "/dev/full", status=UNWRITABLE)

    def test_opens_no_device_by_its_name(self):
        if not is_windows:
            self.skipTest("of Windows")
        for name in ("NUL", "aux.xml", str(self.folder / "com1 .xml")):
            _, message = run_for_both("set", name, status=UNREADABLE)
            self.assertIn("it is the name of a device", message)
            _, message = run_for_both("set", REPORT, "-o", name, status=UNWRITABLE)
            self.assertIn("it is the name of a device", message)

    def test_a_killed_write_leaves_nothing_for_good(self):
        ticket = self.folder / "ticket.xml"
        shutil.copy(REPORT, ticket)
        for name in ("lock", "new"):
            (self.folder / f".ticket.xml.zent-{name}").touch()
        run("set", ticket, "copies=2", "-o", ticket)
        self.assertEqual([file.name for file in self.folder.iterdir()], [ticket.name])

    def test_takes_standard_streams(self):
        self.assertEqual(run("set", "-", data=REPORT.read_bytes()), document(REPORT))
        self.assertEqual(run("diff", "-", REPORT, data=REPORT.read_bytes()), b"")
        run("diff", "-", "-", status=USAGE)


class Printers(InFolder):
    def test_models(self):
        rows = [line.split("\t") for line in run("models", "--table").decode().splitlines()]
        self.assertEqual([int(row[0]) for row in rows], list(range(1, 52)))
        self.assertEqual(sum(len(row[4:]) for row in rows), 109)
        self.assertEqual(rows[3], ["4", "Tarvo Lumaset 540", "17", "stream",
                                   "ps=Tarvo Lumaset 540 PS3 C3", "pcl=Tarvo Lumaset 540 PCL5e"])
        self.assertEqual(len(run("models", "chromaset").splitlines()), 1 + 9)
        self.assertIn(b"color-pcl  Tarvo Chromaset 900 PCL5c", run("models", "43"))
        listed = json.loads(run("models", "4", "--json"))["models"]
        self.assertEqual(listed, [{"model": 4, "name": "Tarvo Lumaset 540", "family": 17,
                                   "form": "stream", "drivers": [
                                       {"pdl": "ps", "name": "Tarvo Lumaset 540 PS3 C3"},
                                       {"pdl": "pcl", "name": "Tarvo Lumaset 540 PCL5e"}]}])

    def test_there_may_be_a_default_printer(self):
        self.enterContext(unittest.mock.patch.dict(os.environ, XDG_CONFIG_HOME=str(self.folder)))
        if not is_windows:
            run("preferences", "set", "JOBTICKET_PRINTER", "43:ps")
            self.assertIn(b"<opi-image-insertion", run("new"))
        with unittest.mock.patch.dict(os.environ, JOBTICKET_PRINTER="lumaset 540"):
            self.assertEqual(run("new"), run("new", "-m", "4"))
            self.assertEqual(run("new", "-p", "ps"), run("new", "-m", "4", "-p", "ps"))
            self.assertEqual(run("new", "-m", "1"), run("new", "-m", "1", "-p", "pcl"))
            run("retarget", REPORT, "--from", "1", status=USAGE)
        with unittest.mock.patch.dict(os.environ, JOBTICKET_PRINTER="43:x"):
            run("new", status=BAD_VALUE)

    def test_a_new_ticket_holds_the_defaults_of_its_printer(self):
        common = raw(run("new", "--model", "16"))
        self.assertEqual((common["copies"], common["media-type"]), ("1", "stationery"))
        for printer, more in [
            (["--model", "lumaset 540"], {"imposition-template": "none"}),
            (["-m", "43", "-p", "ps", "--form", "xml"], {"opi-image-insertion": "insert"}),
        ]:
            self.assertLessEqual(more.items(), raw(run("new", *printer)).items() - common.items())


    def test_capabilities(self):
        rows = [
            # printer, feature, what its row of the table holds besides the names
            (["-m", "1"], "copies", {"unset=yes", "own=no", "range=1-9999"}),
            (["-m", "lumaset 540"], "job-name", {"unset=no", "length=0-40", "characters=no !"}),
            (["-m", "16"], "media-hole-count", {"range=0-0", "range=3-3"}),
            (["-m", "16"], "media-size", {"own=yes", "value=SIZE_A4"}),
            (["-m", "43"], "form-cycle-type", {"value=auto-cycle"}),
            (["-m", "43"], "printer-resolution", {"value=1200x600dpi"}),
            (["-m", "43"], "x-side1-image-shift", {"range=-5000-5000", "step=1"}),
            (["-m", "43"], "page-overrides", {"member=pages", "member=media-col"}),
            (["-m", "43"], "insert-count", {"range=1-250"}),
            (["-m", "48", "-p", "ps"], "color-srgb-red", {"range=0-255"}),
        ]
        for printer, feature, expected in some(rows):
            with self.subTest(feature):
                table = run("capabilities", *printer, feature, "--table").decode().splitlines()
                self.assertEqual(len(table), 1)
                self.assertLessEqual(expected, set(table[0].split("\t")[2:]))
        table = run("capabilities", "-m", "43", "--table").decode().splitlines()
        offers = json.loads(run("capabilities", "-m", "43", "--json"))
        self.assertTrue(offers["printer"]["separateCovers"])
        values = {offer["feature"]: [value["value"] for value in offer.get("values", [])]
                  for offer in offers["features"]}
        self.assertEqual(values, {line.split("\t")[0]: re.findall(r"\tvalue=([^\t]*)", line)
                                  for line in table})
        listing = run("capabilities", "-m", "43", "-p", "ps").decode()
        self.assertRegex(listing, r"\nInstructions +XML document\n")
        self.assertRegex(listing, r"\nopi-image-insertion +OPI image insertion\n +insert +Insert ")
        self.assertRegex(listing, r"\nx-dimension +Media width +25\.4 to 571\.5 mm\n")
        self.assertNotIn("pcl-paper-source-col", listing)

    def test_each_printer_has_capabilities(self):
        for row in some(run("models", "--table").decode().splitlines()):
            model, *_, driver = row.split("\t")
            with self.subTest(model):
                listed = run("capabilities", "-m", model, "-p", driver.split("=")[0], "--table")
                self.assertTrue(listed.startswith(b"copies\tCopies\t"))
                self.assertGreater(listed.count(b"\n"), 30)


class Checking(InFolder):
    def test_tells_each_kind_of_problem(self):
        ticket = run("set", "-", "copies=99999", "media-size=29700x42000", "toner-saver=none",
                     f"job-message-to-operator={'x' * 60}", f"job-name={'ö' * 44}",
                     "finishings=20,50", "media-color=a b", "save-name=s",
                     "page-overrides[0].pages=3-4", "page-overrides[0].media-type=my own",
                     data=EMPTY)
        lines = run("check", "-", "-m", "16", data=ticket, status=DIFFERENT).decode().splitlines()
        self.assertEqual(lines[0], "Tarvo Lumaset 430, monochrome PCL: 9 problems")
        self.assertEqual(lines[11:], ["  save-info  save-name=s"])  # printed alone, it has no name
        rows = {row[0]: row[1:] for row in (re.split(r"\s{2,}", line) for line in lines[1:10])}
        self.assertEqual(rows, {
            "toner-saver": ["none -> removed", "no such feature"],
            "job-message-to-operator": [f"{'x' * 45}... -> removed", "no such feature"],
            "copies": ["99999 -> 1", "allowed: 1-999"],
            "media-size": [f"29700x42000 -> {raw(run('new', '-m', '16'))['media-size']}",
                           "allowed: SIZE_8PT5x11, SIZE_8PT5x14, SIZE_8PT5x13, SIZE_A4, or "
                           "20300-21600 x 25400-35600"],
            "media-color": ["a b -> white",
                            "allowed: white, pink, yellow, blue, green, buff, goldenrod"],
            "finishings[1]": ["50 (Bind, left) -> 3 (No finishing)",
                              "allowed: 3 (none), 20 (staple-top-left), 21 (staple-bottom-left), "
                              "22 (staple-top-right), 23 (staple-bottom-right)"],
            "job-name": [f"{'ö' * 44} -> {'ö' * 40}", "length: 0-40"],
            "page-overrides[0].media-type": ["my own -> removed", "allowed: stationery"],
            "save-disposition": ["(not set) -> none", "required"]})
        self.assertEqual(run("check", "-", "-m", "16", data=EMPTY),
                         b"Tarvo Lumaset 430, monochrome PCL: no problems\n")

    def test_all_printers(self):
        listed = json.loads(run("check", REPORT, "--all-printers", "--json"))["printers"]
        self.assertEqual(sorted(row["model"] for row in listed), list(range(1, 52)))
        counts = [row["problems"] for row in listed]
        self.assertEqual(counts, sorted(counts))
        for row in some([listed[0], listed[-1]]):
            found = subprocess.run([*program, "check", REPORT, "-m", str(row["model"]), "--json"],
                                   capture_output=True, timeout=100, check=False).stdout
            self.assertEqual(len(json.loads(found)["problems"]), row["problems"])
        colour = run("check", REPORT, "--all-printers", "-p", "color-pcl").decode().splitlines()
        self.assertLess(len(colour), 51)
        run("check", REPORT, "--all-printers", "-p", "x", status=BAD_VALUE)

    def test_problems_as_json(self):
        ticket = run("set", "-", "copies=32768", "forms-col[0].form-location=x",
                     "page-overrides[0].pages=3-4", "page-overrides[0].halftone-images=85-lpi",
                     data=EMPTY)
        found = json.loads(run("check", "-", "-m", "43", "--json", data=ticket, status=DIFFERENT))
        values = found["problems"][1]["allowed"].pop("values")
        self.assertIn({"value": "stochastic", "text": "Stochastic"}, values)
        self.assertEqual(found, {
            "printer": {"model": 43, "name": "Tarvo Chromaset 900", "pdl": "pcl", "form": "xml"},
            "problems": [
                {"path": "copies", "feature": "copies", "name": "Copies",
                 "rule": "unsupported-value", "found": {"value": "32768", "text": "32768"},
                 "allowed": {"feature": "copies", "name": "Copies", "unset": True, "own": False,
                             "ranges": [[1, 32767]]},
                 "repair": {"action": "replace", "with": {"value": "1", "text": "1"}}},
                {"path": "page-overrides[0].halftone-images", "feature": "halftone-images",
                 "name": "Image halftone", "rule": "unsupported-value", "part": "page-overrides[0]",
                 "pages": [3, 4], "found": {"value": "85-lpi", "text": "85 lpi"},
                 "allowed": {"feature": "halftone-images", "name": "Image halftone", "unset": True,
                             "own": False},
                 "repair": {"action": "remove", "path": "page-overrides[0].halftone-images"}},
                {"path": "form-name", "feature": "form-name", "name": "Form name",
                 "rule": "missing-feature",
                 "allowed": {"feature": "form-name", "name": "Form name", "unset": False,
                             "own": True, "length": [0, 255]},
                 "repair": {"action": "remove", "path": "forms-col[0]"}}],
            "notes": []})

    def test_notes_what_the_stream_leaves_out(self):
        ticket = run("set", "-", "page-ranges=1-5,8-9", "finishings=20,22", "job-offset=offset-set",
                     "imposition-template=none", "save-disposition=none", "media-color=lilac",
                     data=EMPTY)
        left_out = ["note: the printing instructions, a stream of comment lines, leave out 2 "
                    "settings:", "  page-ranges[1]  8-9", "  finishings[1]   22 (Staple, top right)"]
        printer = ["-m", "1", "-p", "ps"]
        run("check", "-", *printer, data=run("check", "-", *printer, "--fix", data=ticket,
                                             status=DIFFERENT))
        # What a repair takes away isn't noted as well, and an unknown value keeps nothing back.
        lines = run("check", "-", *printer, data=ticket, status=DIFFERENT).decode().splitlines()
        self.assertEqual(len([line for line in lines if "job-offset" in line]), 1)
        self.assertEqual(lines[3:], left_out)
        found = json.loads(run("check", "-", *printer, "--json", data=ticket, status=DIFFERENT))
        self.assertEqual(found["notes"][0], {
            "path": "page-ranges[1]", "feature": "page-ranges", "name": "Page ranges",
            "rule": "not-in-stream", "found": {"value": "8-9", "text": "8-9"}})
        listed = run("check", "-", *printer, "--form", "xml", data=ticket, status=DIFFERENT)
        self.assertNotIn(b"note", listed)
        for model in some(["1", "4", "16", "25"]):  # nothing that a new ticket holds
            new = run("new", "-m", model)
            self.assertNotIn(b"note", run("check", "-", "-m", model, data=new))

    def test_json_keeps_texts(self):
        name = 'a"b\\c\t\u009b/\u2028 ü\U0001f600'
        ticket = run("set", "-", f"job-name={name}", "finishings=20,22", data=EMPTY)
        listed = run("show", "-", "--json", data=ticket)
        self.assertNotIn("\u009b", listed.decode())
        self.assertEqual(json.loads(listed), {"features": [
            {"path": "job-name", "name": "Job name", "values": [{"value": name, "text": name}]},
            {"path": "finishings", "name": "Finishing", "values": [
                {"value": "20", "text": "Staple, top left"},
                {"value": "22", "text": "Staple, top right"}]}]})

    def test_repairs_for_good(self):
        repaired = self.folder / "repaired.xml"
        for ticket in EXAMPLES:
            for printer in some([["-m", str(model)] for model in range(1, 52, 10)]):
                with self.subTest([ticket.name, *printer]):
                    before = subprocess.run([*program, "check", str(ticket), *printer],
                                            capture_output=True, timeout=100, check=False)
                    fixed = run("check", ticket, *printer, "--fix", "-o", repaired,
                                status=before.returncode)
                    self.assertEqual(fixed, before.stdout)
                    run("check", repaired, *printer)
                    if before.returncode == OK:
                        self.assertEqual(raw(repaired.read_bytes()), raw(ticket.read_bytes()))

    def test_writes_the_ticket_and_the_list_apart(self):
        for command in (["check", REPORT, "-m", "1", "--fix"],
                        ["retarget", REPORT, "--from", "43", "--to", "1"]):
            written, listed = run_for_both(*command, status=DIFFERENT)
            self.assertNotIn("output-bin", raw(written))
            self.assertIn("output-bin          stacker -> removed", listed)
            out = self.folder / "out.xml"
            self.assertEqual(run(*command, "-o", out, status=DIFFERENT).decode(), listed)
            self.assertEqual(out.read_bytes(), written)

    def test_dialogs_need_a_display(self):
        if is_windows:
            self.skipTest("there is always one")
        ticket = self.folder / "ticket.xml"
        ticket.write_bytes(REPORT.read_bytes())
        _, message = run_for_both("notes", ticket, "-m", "1", status=LIBRARY)
        self.assertIn("no display", message)
        self.assertEqual(ticket.read_bytes(), REPORT.read_bytes())
        # The report goes to where people read it.
        # Nobody can agree to a repair there.
        written, message = run_for_both("check", ticket, "-m", "1", "--fix", "--dialog",
                                        status=DIFFERENT)
        self.assertEqual(written, b"")
        self.assertIn("Job ticket check", message)
        self.assertIn("Stacker -> Removed", message)
        written, message = run_for_both("check", ticket, "-m", "1", "--dialog", status=DIFFERENT)
        self.assertEqual(written, b"")
        self.assertNotIn("->", message)

    def test_retarget_tells_what_is_lost(self):
        ticket = self.folder / "ticket.xml"
        run("set", ROOT / "examples" / "mailing.xml", "highlight-map=pictorial", "-o", ticket)
        out = self.folder / "out.xml"
        move = json.loads(run("retarget", ticket, "--from", "43", "--to", "16", "--to-pdl", "ps",
                              "--json", "-o", out, status=DIFFERENT))
        self.assertEqual((move["from"]["model"], move["to"]["model"], move["to"]["pdl"]),
                         (43, 16, "ps"))
        lost = {problem["path"] for problem in move["lost"]}
        self.assertLessEqual({"pages-per-subset", "job-hold-until"}, lost)
        self.assertEqual({problem["path"] for problem in move["others"]},
                         {"highlight-map"})
        run("check", out, "-m", "16", "-p", "ps")
        run("retarget", REPORT, "--from", "1", "--to", "43", "-o", out)


class Instructions(InFolder):
    def test_both_forms(self):
        ticket = run("set", "-", "copies=7", "job-name=Old", "sides=one-sided", data=EMPTY)
        printer = ["-m", "16", "--set", UNTOUCHED_SET]
        user = raw(run("new", "-m", "1"))["requesting-user-name"]
        stream = run("instructions", "-", *printer, "--document", "Report.ps", data=ticket)
        self.assertEqual(stream.decode().split("\n"), [
            "%TRVbegin: 001.0300", "%TRVtitle: Report.ps", f"%TRVsenderName: {user}",
            f"%TRVrecipientName: {user}", "%TRVcopyCount: 7", "%TRVrequirements: simplex",
            "%TRVdisposition: PRINT", "%TRVdeleteSource: False", "%TRVend", ""])
        document = run("instructions", "-", *printer, "--form", "xml", "--document", "Näme.ps",
                       data=ticket)
        self.assertEqual(raw(document), {
            "job-name": "Näme.ps", "copies": "7", "sides": "one-sided",
            "requesting-user-name": user, "job-recipient-name": user})

    def test_names_of_the_ticket(self):
        self.enterContext(unittest.mock.patch.dict(os.environ, XDG_CONFIG_HOME=str(self.folder)))
        ticket = run("set", "-", "requesting-user-name=somebody else", data=EMPTY)
        user = raw(run("new", "-m", "1"))["requesting-user-name"]
        line = f'Sender "somebody else" gives way to the logon name "{user}"'
        stream, message = run_for_both("instructions", "-", "-m", "1", "--set", UNTOUCHED_SET,
                                       data=ticket)
        self.assertIn(f"senderName: {user}\n", stream.decode())
        self.assertIn(line, message)
        self.assertNotIn("Recipient", message)
        for form, said in (("stream", b"senderName: somebody else\n"), ("xml", b">somebody else<")):
            stream, message = run_for_both("instructions", "-", "-m", "1", "--set", UNTOUCHED_SET,
                                           "--keep-names", "--form", form, data=ticket)
            self.assertIn(said, stream)
            self.assertNotIn(b"recipient", stream.lower())
            self.assertNotIn("note", message)
        if is_windows:
            return  # would leave traces in the registry
        # What is set without a printer holds for all of them.
        run("preferences", "set", "USE_LOGON_NAME_PREFERENCE", "false")
        stream, message = run_for_both("instructions", "-", "-m", "1", data=ticket)
        self.assertIn(b"senderName: somebody else\n", stream)
        self.assertNotIn("note", message)
        _, message = run_for_both("instructions", "-", "-m", "1", "--printer-preferences",
                                  data=ticket)
        self.assertIn(line, message)

    def test_notes_what_the_stream_leaves_out(self):
        ticket = run("set", "-", "page-ranges=1-5,8-9", data=EMPTY)
        _, message = run_for_both("instructions", "-", "-m", "1", data=ticket)
        self.assertIn("leave out 1 setting:\n  page-ranges[1]  8-9\n", message)
        _, message = run_for_both("instructions", "-", "-m", "2", data=ticket)
        self.assertNotIn("note", message)

    def test_notes_what_the_printer_lacks(self):
        ticket = run("set", "-", "copies=70000", data=EMPTY)
        stream, message = run_for_both("instructions", "-", "-m", "16", data=ticket)
        self.assertIn(b"%TRVcopyCount: 70000\n", stream)
        self.assertIn('"jobticket check" lists what', message)


class Stocks(InFolder):
    def stocks(self, *options):
        listed = json.loads(run("stock", "list", "--json", "--folder", self.folder, *options))
        return {stock["name"]: stock for stock in listed["stocks"]}

    def test_adds_and_removes(self):
        begin = self.stocks()
        self.assertEqual(list(begin), [str(number) for number in range(1, 11)])
        self.assertEqual(list(self.folder.iterdir()), [])
        run("stock", "add", "Büro <90>", "media-color=blue", "media-size=SIZE_A4", "--favorite",
            "--folder", self.folder)
        run("stock", "add", "plain", "--folder", self.folder)
        run("stock", "remove", "3", "10", "--folder", self.folder)
        after = self.stocks()
        self.assertEqual(list(after), [*"12456789", "Büro <90>", "plain"])
        self.assertEqual(after["Büro <90>"], {
            "name": "Büro <90>", "kind": "library", "favorite": True, "features": [
                {"path": "media-color", "name": "Media color",
                 "values": [{"value": "blue", "text": "Blue"}]},
                {"path": "media-size", "name": "Media size",
                 "values": [{"value": "21000x29700", "text": "A4 (210 x 297 mm)"}]}]})
        self.assertEqual((after["plain"]["favorite"], after["plain"]["features"]), (False, []))
        self.assertEqual(after["1"], begin["1"])
        self.assertIn("Büro <90>  library  favorite  Blue, A4 (210 x 297 mm)\n",
                      run("stock", "list", "--folder", self.folder).decode())
        of_printer = self.stocks("-m", "43")
        self.assertEqual(list(of_printer)[:10], list(after))
        self.assertEqual(of_printer["iso-a4-white"]["kind"], "printer")

    def test_adds_at_a_time_lose_nothing(self):
        def add(process):
            for count in range(8):
                run("stock", "add", f"{count} of {process}", "--folder", self.folder)
        with concurrent.futures.ThreadPoolExecutor(4) as pool:
            list(pool.map(add, range(4)))
        self.assertEqual(len(self.stocks()), 10 + 32)
        self.assertEqual([file.name for file in self.folder.iterdir()], ["omedpref.omp"])

    def test_leaves_the_library_alone_on_failure(self):
        file = self.folder / "omedpref.omp"
        run("stock", "add", "plain", "--folder", self.folder)
        before = file.read_bytes()
        for arguments, status, expected in [
            (["add", "plain"], BAD_VALUE, "has a stock"),
            (["add", "other", "copies=2"], BAD_VALUE, "no feature of a stock"),
            (["add", "other", "cover-front.media-color=blue"], BAD_VALUE, "no feature of a stock"),
            (["add", ""], BAD_VALUE, "empty"),
            (["remove", "1", "other"], BAD_VALUE, "no stock"),
        ]:
            with self.subTest(arguments):
                _, message = run_for_both("stock", *arguments, "--folder", self.folder,
                                          status=status)
                self.assertIn(expected, message)
                self.assertEqual(file.read_bytes(), before)
        file.write_bytes(before[:300])
        _, message = run_for_both("stock", "add", "x", "--folder", self.folder, status=INVALID)
        self.assertIn("damaged\n  Fatal error at line", message)
        self.assertEqual(file.read_bytes(), before[:300])


class StateBlobs(InFolder):
    def test_a_ticket_passes_through_a_blob(self):
        for ticket in some(EXAMPLES):
            with self.subTest(ticket.name):
                blob = run("state", "pack", ticket)
                self.assertEqual(run("state", "unpack", "-", data=blob), document(ticket))

    def test_show_and_renew(self):
        def show(blob):
            lines = run("state", "show", "-", data=blob).decode().splitlines()
            return dict(re.split(r"\s{2,}", line) for line in lines)
        blob = (ROOT / "tests" / "golden" / "state" / "report.blob").read_bytes()
        expected = {"Size": "215 bytes", "Version": "0x03080001", "Ticket in it": "243 bytes",
                    "State tag": "1", "Logon name": "me", "Job named as document": "yes",
                    "Logon name is sender": "no", "Logon name is recipient": "yes"}
        self.assertEqual(show(blob), expected)
        renewed = run("state", "renew", "-", "--set", UNTOUCHED_SET, data=blob)
        user = raw(run("new", "-m", "1"))["requesting-user-name"]
        self.assertEqual(show(renewed), expected | {
            "Size": f"{len(renewed)} bytes", "Logon name": user, "Logon name is sender": "yes"})
        self.assertEqual(run("state", "unpack", "-", data=renewed),
                         run("state", "unpack", "-", data=blob))

    def test_reads_the_oldest_form(self):
        ticket = document(REPORT)
        blob = (struct.pack("<IIH", 10, 0x03070001, 7) + zlib.compress(ticket) +
                struct.pack(">I", len(ticket)) + b"COMP")
        self.assertEqual(run("state", "unpack", "-", data=blob), ticket)
        listed = run("state", "show", "-", data=blob).decode()
        self.assertRegex(listed, r"0x03070001\n.*bytes\nState tag +7\nLogon name +\(none")


class Preferences(InFolder):
    def test_stores_and_lists(self):
        self.enterContext(unittest.mock.patch.dict(os.environ, XDG_CONFIG_HOME=str(self.folder)))
        mine = ["--set", f"jobticket test {os.getpid()}"]
        for name, value, kind in [
            ("JOB_NAME_PREFERENCE", "false", None),
            ("TOOL_BAR_PREFERENCE", "-2", None),
            ("IMAGE_SHIFT_UNIT_PREFERENCE", "inches", None),
            ("words", "grün 1", None),
            ("switch", "true", "bool"),
            ("bytes", "00ff7f", "data"),
            ("nothing", "", "data"),
        ]:
            of_type = ["--type", kind] if kind else []
            run("preferences", "set", name, value, *mine, *of_type)
            written = run("preferences", "get", name, *mine, *of_type).decode()
            self.assertEqual(written, value + "\n")
        listed = run("preferences", "list", *mine).decode().splitlines()
        rows = {line.split()[0]: line.split()[1:] for line in listed}
        self.assertEqual(len(rows), 10)
        self.assertEqual(rows["JOB_NAME_PREFERENCE"], ["bool", "false"])
        self.assertEqual(rows["TOOL_BAR_PREFERENCE"], ["number", "-2"])
        self.assertEqual(rows["IMAGE_SHIFT_UNIT_PREFERENCE"], ["unit", "inches"])
        self.assertEqual(rows["ACCOUNT_REQUIRED_PREFERENCE"], ["bool", "false", "(default)"])
        blob = run("state", "pack", REPORT, *mine)
        self.assertRegex(run("state", "show", "-", data=blob), rb"document +no\n")

    def test_each_printer_has_a_set(self):
        if is_windows:
            self.skipTest("would leave traces in the registry")
        self.enterContext(unittest.mock.patch.dict(os.environ, XDG_CONFIG_HOME=str(self.folder)))
        run("preferences", "set", "mine", "a", "-m", "1", "-p", "ps", "--printer-preferences")
        self.assertEqual(run("preferences", "get", "mine", "--set", "Tarvo Lumaset 510 PS3 C3"),
                         b"a\n")
        for other in ([], ["-m", "1", "-p", "ps"], ["-m", "1", "--printer-preferences"]):
            run("preferences", "get", "mine", *other, status=BAD_VALUE)

    def test_preferences_out_of_reach_are_at_their_defaults(self):
        if is_windows:
            self.skipTest("there is always a registry")
        home = self.folder / "file in the place of a folder"
        home.write_bytes(b"")
        self.enterContext(unittest.mock.patch.dict(os.environ, XDG_CONFIG_HOME=str(home)))
        self.assertIn(b"(default)", run("preferences", "list"))
        run("instructions", REPORT, "-m", "1")
        _, message = run_for_both("preferences", "set", "mine", "a", status=LIBRARY)
        self.assertEqual(message, f"jobticket: mine: can't be stored in {home}/zent27/"
                                  "preferences.sqlite: unable to open database file (Not a directory)\n")


class Failures(InFolder):
    def test_each_kind_has_its_status(self):
        report = document(REPORT)
        wrong_name = report.replace(b"copies", b"copiez")
        wrong_type = EMPTY.replace(b"/>", b'><job-template-attributes><forms-col syntax="1setOf">'
                                   b'<value syntax="text">no collection</value></forms-col>'
                                   b"</job-template-attributes></ordo>")
        rows = [
            # arguments, standard input, status, what the message says
            ([], b"", USAGE, "which command"),
            (["state"], b"", USAGE, "which command of state"),
            (["--fox"], b"", USAGE, '"--fox"'),
            (["help", "shaw"], b"", USAGE, '"shaw"'),
            (["check", "--fox"], b"", USAGE, 'did you mean "--fix"'),
            (["new", "-m"], b"", USAGE, "--model takes a value"),
            (["new", "-m", "1", "-m", "1"], b"", USAGE, "--model can be given only once"),
            (["edit", REPORT], b"", USAGE, "edit"),
            (["shaw", REPORT], b"", USAGE, 'did you mean "show"'),
            (["show"], b"", USAGE, "TICKET"),
            (["state", "shaw"], b"", USAGE, 'did you mean "state show"'),
            (["diff", REPORT, REPORT, REPORT], b"", USAGE, "isn't expected"),
            (["set", REPORT, "copies"], b"", USAGE, "FEATURE=VALUE"),
            (["show", self.folder / "none.xml"], b"", UNREADABLE, "none.xml"),
            (["show", self.folder], b"", UNREADABLE, "folder"),
            (["show", "-"], b"", INVALID, "empty"),
            (["set", "-"], b"", INVALID, "empty"),
            (["show", "-"], b"no XML", INVALID, "line 1, column 1"),
            (["set", "-"], wrong_name, INVALID, "line 9, column 10: \"no declaration"),
            (["diff", REPORT, "-"], report[:200], INVALID, "line 5"),
            (["set", REPORT, "copis=2"], b"", BAD_VALUE, 'did you mean "copies"'),
            (["unset", REPORT, "media-colour"], b"", BAD_VALUE, 'did you mean "media-color"'),
            (["features", "zzz"], b"", BAD_VALUE, "zzz"),
            (["models", "zzz"], b"", BAD_VALUE, "zzz"),
            (["capabilities", "zzz", "-m", "1"], b"", BAD_VALUE, "Tarvo Lumaset 510"),
            (["new"], b"", USAGE, "which printer"),
            (["new", "--model", "52"], b"", BAD_VALUE, '"52"'),
            (["new", "--model", "lumaset 61"], b"", BAD_VALUE, "may be Tarvo Lumaset 610, Tarvo"),
            (["new", "--model", "1", "--pdl", "3"], b"", BAD_VALUE, "it has ps, pcl"),
            (["new", "--model", "1", "--pdl", "x"], b"", BAD_VALUE, "color-pcl (3)"),
            (["new", "--model", "1", "--form", "0"], b"", USAGE, "stream (2)"),
            (["set", REPORT, "copies=0"], b"", BAD_VALUE, "lowest is 1"),
            (["set", REPORT, "copies=2.5"], b"", BAD_VALUE, "isn't a number"),
            (["set", REPORT, "copies=4294967297"], b"", BAD_VALUE, "isn't a number"),
            (["set", REPORT, "copies="], b"", BAD_VALUE, "empty"),
            (["set", REPORT, "media-color=  "], b"", BAD_VALUE, "blank"),
            (["set", REPORT, "sides=both"], b"", BAD_VALUE,
             "allowed: one-sided, two-sided-long-edge, two-sided-short-edge"),
            (["set", REPORT, "finishings=20,4"], b"", BAD_VALUE, '"4"'),
            (["set", REPORT, "page-ranges=5-3"], b"", BAD_VALUE, "ends before"),
            (["set", REPORT, "page-ranges=0-3"], b"", BAD_VALUE, "lowest is 1"),
            (["set", REPORT, "printer-resolution=600"], b"", BAD_VALUE, "600x1200dpi"),
            (["set", REPORT, "media-size=A9"], b"", BAD_VALUE, "8.5x11in"),
            (["set", REPORT, "media-size=210x297"], b"", BAD_VALUE, '"210x297mm"'),
            (["set", REPORT, "media-size=0x0mm"], b"", BAD_VALUE, "lowest is 1"),
            (["set", REPORT, "x-image-shift=5ft"], b"", BAD_VALUE, "0.2in"),
            (["set", REPORT, "finishings=staple-top"], b"", BAD_VALUE,
             'did you mean "staple-top-left"? (allowed: none or 3, bind or 7'),
            (["set", REPORT, "collate=1"], b"", BAD_VALUE, 'did you mean "sheet-collate"'),
            (["set", REPORT, "x-image-shift=999999999mm"], b"", BAD_VALUE, "x-image-shift"),
            (["set", REPORT, "job-name=a\x01b"], b"", BAD_VALUE, "a\\x01b"),
            (["set", REPORT, "media-col=blue"], b"", BAD_VALUE, "media-key=..."),
            (["set", REPORT, "media-col.copies=2"], b"", BAD_VALUE, "no part of media-col"),
            (["set", REPORT, "copies.sides=2"], b"", BAD_VALUE, "holds no other features"),
            (["set", REPORT, "copies[0]=2"], b"", BAD_VALUE, "no index"),
            (["set", REPORT, "finishings[x]=3"], b"", BAD_VALUE, "[0]"),
            (["set", REPORT, "finishings[0=3"], b"", BAD_VALUE, "closed"),
            (["set", REPORT, "finishings[0]=3,20"], b"", BAD_VALUE, "one value only"),
            (["set", REPORT, "finishings[5]=3"], b"", BAD_VALUE, "the next is [1]"),
            (["set", REPORT, "page-overrides[1].sides=one-sided"], b"", BAD_VALUE, "[0]"),
            (["set", REPORT, "pages=1-2"], b"", BAD_VALUE, "stands only in page-overrides[0]\n"),
            (["set", REPORT, "cover-type=x"], b"", BAD_VALUE, "only in cover-front, cover-back\n"),
            (["set", REPORT, "cover-front.copies=2"], b"", BAD_VALUE, "no printer takes"),
            (["set", "copies=2"], b"", USAGE, "TICKET is required"),
            (["unset", REPORT, "job-prioritx"], b"", BAD_VALUE, "no feature"),
            (["set", "-", "form-name=a"], wrong_type, INVALID, "form-name"),
            (["state", "pack", "-"], b"no XML", INVALID, "line 1, column 1"),
            (["state", "unpack", "-"], report, INVALID, "no state blob"),
            (["state", "show", "-"], report, INVALID, "no state blob"),
            (["state", "show", "-"], struct.pack("<II", 8, 0x03080001), INVALID, "damaged"),
            (["check", REPORT], b"", USAGE, "which printer"),
            (["check", "-", "-m", "1"], b"no XML", INVALID, "line 1, column 1"),
            (["check", REPORT, "-m", "1", "-o", "x"], b"", USAGE, "--fix"),
            (["retarget", REPORT, "--from", "1"], b"", USAGE, "--to takes"),
            (["retarget", REPORT, "--from", "1", "--to", "1", "--to-pdl", "3"], b"", BAD_VALUE,
             "--to-pdl: "),
            (["check", REPORT, "-m", "1", "--json", "--dialog"], b"", USAGE, "--json"),
            (["notes", REPORT], b"", USAGE, "which printer"),
            (["instructions", REPORT, "--document", "x"], b"", USAGE, "which printer"),
            (["preferences", "set", "x", "0g", "--type", "data"], b"", BAD_VALUE, "hexadecimal"),
            (["preferences", "set", "x", "yes", "--type", "bool"], b"", BAD_VALUE, "true or false"),
            (["preferences", "get", "x", "--type", "unit"], b"", USAGE, "bool, number, text, data"),
            (["preferences", "set", "JOB_NAME_PREFERENCE", "x", "--type", "text"], b"", BAD_VALUE,
             "another type"),
        ]
        for arguments, data, status, expected in some(rows):
            with self.subTest(arguments):
                written, message = run_for_both(*arguments, data=data, status=status)
                self.assertEqual(written, b"")
                self.assertIn(expected, message)

    def test_no_message_or_listing_steers_the_terminal(self):
        name = "a\u009b31mb"
        ticket = run("set", REPORT, f"job-name={name}")
        self.assertIn(b"a\\x9b31mb", run("show", "-", data=ticket))
        self.assertEqual(raw(ticket)["job-name"], "a\\x9b31mb")
        _, message = run_for_both("set", REPORT, f"{name}=2", status=BAD_VALUE)
        self.assertNotIn("\u009b", message)
        _, message = run_for_both("show", f"no such\x1b[31m{name}\n.xml", status=UNREADABLE)
        self.assertIn("no such\\x1b[31ma\\x9b31mb\\n.xml: ", message)
        invalid = self.folder / "in\x1bvalid"
        if not is_windows: # where no file can have such a name
            invalid.write_text("no XML")
            _, message = run_for_both("show", invalid, status=INVALID)
            self.assertIn("in\\x1bvalid is no valid ticket", message)
            _, message = run_for_both("show", "no\udcff\x1b", status=UNREADABLE)
            self.assertIn("no\\xff\\x1b: ", message)


class Diff(InFolder):
    def test_lists_what_differs(self):
        other = self.folder / "other.xml"
        run("set", REPORT, "copies=25", "cover-back.media-color=blue", "-o", other)
        run("unset", other, "finishings", "-o", other)
        lines = run("diff", REPORT, other, status=DIFFERENT).decode().splitlines()
        self.assertEqual([line.split(maxsplit=1) for line in lines], [
            ["copies", "3 -> 25"],
            ["finishings", "20 -> (not set)"],
            ["cover-back.media-color", "(not set) -> blue"],
        ])

    def test_order_says_nothing(self):
        one = run("set", "-", "copies=2", "sides=one-sided", data=EMPTY)
        other = self.folder / "other.xml"
        run("set", "-", "sides=one-sided", "copies=2", "-o", other, data=EMPTY)
        self.assertEqual(run("diff", "-", other, data=one), b"")
        run("unset", other, "copies", "-o", other)
        listed = json.loads(run("diff", "-", other, "--json", data=one, status=DIFFERENT))
        self.assertEqual(listed, {"differences": [
            {"path": "copies", "first": [{"value": "2", "text": "2"}]}]})
        self.assertEqual(run("diff", "-q", "-", other, data=one, status=DIFFERENT), b"")


class Looking(InFolder):
    def test_show_for_people(self):
        lines = {tuple(re.split(r"\s{2,}", line.strip())): len(line) - len(line.lstrip())
                 for line in run("show", REPORT).decode().splitlines()}
        for line, indent in [
            (("Job name", "Quarterly report Q3"), 0),
            (("Sides printed", "One-sided"), 0),
            (("Media details",), 0),
            (("Media size", "Letter (8.5 x 11 in)"), 2),
            (("Media weight", "80 g/m2"), 2),
            (("Finishing", "Staple, top left"), 0),
            (("Resolution", "600 x 600 dpi"), 0),
            (("Side 2 horizontal image shift", "-3 mm"), 0),
        ]:
            self.assertEqual(lines.get(line), indent, line)
        self.assertEqual(run("show", "-", data=EMPTY), b"The ticket is empty.\n")
        twins = run("set", "-", "separator-sheets-type=none", data=EMPTY)
        self.assertIn(b"Slip sheet mode (none)\n", run("show", "-", data=twins))
        self.assertEqual(run("show", "--raw", "-", data=EMPTY), b"")

    def test_show_lists_what_is_no_feature(self):
        priority = b'<job-priority syntax="integer">50</job-priority>'
        unknown = b'<job-sheets syntax="dateTime">2026</job-sheets>'
        ticket = REPORT.read_bytes().replace(b"<copies", priority + unknown + b"<copies")
        listed = raw(ticket)
        self.assertEqual(listed["job-priority"], "50")
        self.assertIn("dateTime", listed["job-sheets"])
        self.assertEqual(run("diff", REPORT, "-", data=ticket, status=DIFFERENT).count(b"\n"), 2)

    def test_features(self):
        table = [line.split("\t") for line in run("features", "--table").decode().splitlines()]
        self.assertEqual([int(row[0]) for row in table], list(range(2, 138)))
        rows = {row[1]: row[2:] for row in table}
        self.assertEqual(rows["page-ranges"][:4],
                         ["range (page number)", "set", "", "Page ranges"])
        self.assertEqual(rows["media-weight-metric"][:3], ["number (g/m2)", "single", "media-col"])
        self.assertEqual(rows["x-dimension"][2], "media-col / media-size")
        self.assertEqual(rows["pages"][2], "page-level features only")
        self.assertEqual(rows["page-overrides"][:2], ["ticket", "set"])
        self.assertIn("two-sided-long-edge=Two-sided, long edge", rows["sides"])
        self.assertEqual(len(run("features").splitlines()), 136)
        self.assertEqual({line.split()[0] for line in run("features", "HALFTONE").splitlines()},
                         {b"halftone-graphics", b"halftone-images", b"halftone-text"})
        self.assertIn(b"two-sided-long-edge   Two-sided, long edge", run("features", "sides"))
        self.assertEqual([line.split()[0] for line in run("features", "staple-dual").splitlines()[:2]],
                         [b"Feature", b"Name"])
        listed = json.loads(run("features", "sides", "--json"))["features"]
        self.assertEqual([(row["number"], row["type"], row["set"]) for row in listed],
                         [(4, "keyword", False)])
        self.assertIn({"value": "one-sided", "text": "One-sided"}, listed[0]["values"])


class Documents(InFolder):
    """What people read agrees with what there is."""

    def setUp(self):
        if is_windows:
            self.skipTest("the same on each system")
        super().setUp()

    def test_help_and_manual_tell_all_commands(self):
        general = run("--help").decode()
        manual = re.sub(r"\\f.", "", run("manual", MANUAL).decode().replace("\\-", "-"))
        self.assertNotIn('.\\" @', manual)
        self.assertLessEqual(max(map(len, general.splitlines())), 80)
        for command in COMMANDS:
            *group, name = command.split()
            listing = run(*group, "--help").decode() if group else general
            self.assertRegex(listing, rf"(?m)^  {name} ")
            self.assertIn(f"jobticket {command}", manual)
            own = run(*command.split(), "--help").decode()
            self.assertEqual(run("help", *command.split()).decode(), own)
            self.assertLessEqual(max(map(len, own.splitlines())), 80, command)
            for option in re.findall(r"--[a-z]+", own):
                self.assertIn(option, manual)
        self.assertRegex(run("--version").decode(), r"^jobticket 27\.\d+\.\d+\s*$")

    def test_results_are_told_as_the_header_numbers_them(self):
        header = (ROOT / "include" / "zent27.h").read_text(encoding="utf-8")
        results = re.findall(r"(ZENT_OK|ZENT_ERR_\w+) = (\d+)", header)
        self.assertEqual([int(number) for _, number in results], list(range(1, 33)))
        guide = (ROOT / "docs" / "guide.md").read_text(encoding="utf-8")
        self.assertEqual(re.findall(r"\| (\d+) \| `(\w+)` \|", guide),
                         [(number, name) for name, number in results])
        messages = (ROOT / "apps" / "jobticket" / "LibraryError.cpp").read_text(encoding="utf-8")
        self.assertEqual(re.findall(r'\{"(ZENT_\w+)"', messages), [name for name, _ in results])


class Completion(InFolder):
    def complete(self, line):
        """What bash offers at the end of a line."""
        script = """
            source "$1"
            COMP_LINE=$2 COMP_POINT=${#2}
            # as bash splits it: at blanks, and at "=" and ":", which are words as well
            read -r -a words <<< "$(sed 's/[=:]/ & /g' <<< "$2")"
            [[ $2 == *[[:space:]] ]] && words+=("")
            COMP_WORDS=("${words[@]}") COMP_CWORD=$((${#words[@]} - 1))
            current=${words[-1]}
            [[ $current == [=:] ]] && current=""
            jobticket() { "$PROGRAM" "$@"; }
            _jobticket jobticket "$current" "${words[-2]}"
            printf '%s\\n' "${COMPREPLY[@]}"
        """
        done = subprocess.run(["bash", "-c", script, "bash", str(COMPLETION), line],
                              env={**os.environ, "PROGRAM": program[-1]}, cwd=self.folder,
                              capture_output=True, text=True, check=True)
        return done.stdout.split()

    def test_offers_what_fits(self):
        if is_windows or not shutil.which("bash"):
            self.skipTest("needs bash")
        (self.folder / "ticket.xml").touch()
        home = self.enterContext(tempfile.TemporaryDirectory(dir=os.environ.get("TEST_TMPDIR")))
        self.enterContext(unittest.mock.patch.dict(os.environ, HOME=home))
        run("stock", "add", "Letterhead")
        self.assertEqual(run("complete", "--", "jobticket"), b"whole\n")
        rows = [
            ("jobticket se", ["set"]),
            ("jobticket show --r", ["--raw"]),
            ("jobticket set ", ["ticket.xml"]),
            ("jobticket set -o ", ["ticket.xml"]),
            ("jobticket set ticket.xml cop", ["copies="]),
            ("jobticket set -o out.xml t", ["ticket.xml"]),
            ("jobticket set ticket.xml sides=two-sided-s", ["two-sided-short-edge"]),
            ("jobticket set ticket.xml sheet-collate=", ["collated", "uncollated"]),
            ("jobticket set ticket.xml copies=2 finishings=20,11", ["20,110", "20,111"]),
            ("jobticket set ticket.xml page-o", ["page-overrides[0]."]),
            ("jobticket set ticket.xml page-overrides[0].sid", ["page-overrides[0].sides="]),
            ("jobticket set ticket.xml pages", ["pages-per-subset="]),
            ("jobticket set ticket.xml nonsense.", []),
            ("jobticket unset ticket.xml cop", ["copies"]),
            ("jobticket state s", ["show"]),
            ("jobticket state pack ", ["ticket.xml"]),
            ("jobticket preferences get TOOL", ["TOOL_BAR_PREFERENCE"]),
            ("jobticket new -m 5", ["5", "50", "51"]),
            ("jobticket new -m 5 --pdl ", ["ps", "pcl", "color-pcl"]),
            ("jobticket features cover-f", ["cover-front"]),
            ("jobticket retarget ticket.xml --to-pdl p", ["ps", "pcl"]),
            ("jobticket check --fix -m 1 ", ["ticket.xml"]),
            ("jobticket stock add Mine media-col", ["media-color="]),
            ("jobticket stock remove Let", ["Letterhead"]),
        ]
        for line, expected in rows:
            with self.subTest(line):
                self.assertEqual(self.complete(line), expected)


def main():
    global program, example, is_windows
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program", nargs="+", help="the program, behind the command that starts it")
    parser.add_argument("--example", help="the example program in C, built")
    arguments = parser.parse_args()
    program, example = arguments.program, arguments.example
    is_windows = program[-1].endswith(".exe")
    unittest.main(argv=sys.argv[:1])


if __name__ == "__main__":
    main()
