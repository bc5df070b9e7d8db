#!/usr/bin/env python3
"""Passes tickets through the program: building, editing, listing, comparing, files."""
import json
import os
import re
import shutil
import stat
import subprocess
import unittest.mock

from program import (BAD_VALUE, DIFFERENT, EMPTY, EXAMPLES, INVALID, OK, REPORT, ROOT, UNREADABLE,
                     UNWRITABLE, USAGE, InFolder, document, example, is_windows, main, program, raw,
                     run, run_for_both, some)


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
        for path in "", ".", "media-col.", ".copies", "[0]":
            run("unset", REPORT, path, status=BAD_VALUE)

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


if __name__ == "__main__":
    main()
