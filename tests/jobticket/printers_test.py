#!/usr/bin/env python3
"""Asks the program about printers: what they offer, checks, repairs, instructions."""
import json
import os
import re
import subprocess
import unittest.mock

from program import (BAD_VALUE, DIFFERENT, EMPTY, LIBRARY, REPORT, ROOT, UNTOUCHED_SET, USAGE,
                     InFolder, document, is_windows, main, program, raw, run, run_for_both, some)


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


if __name__ == "__main__":
    main()
