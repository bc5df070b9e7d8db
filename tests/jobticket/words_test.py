#!/usr/bin/env python3
"""What the program says: failures, help, the manual page, completion."""
import os
import re
import shutil
import struct
import subprocess
import tempfile
import unittest.mock

from program import (BAD_VALUE, EMPTY, INVALID, REPORT, ROOT, UNREADABLE, USAGE, InFolder, document,
                     is_windows, main, program, raw, run, run_for_both, some)

COMPLETION = ROOT / "apps" / "jobticket" / "jobticket.bash"
MANUAL = ROOT / "apps" / "jobticket" / "jobticket.1.in"
COMMANDS = ["new", "show", "get", "set", "unset", "diff", "check", "retarget", "instructions", "notes",
            "state", "state pack", "state unpack", "state show", "state renew", "features", "models",
            "capabilities", "stock", "stock list", "stock add", "stock remove", "preferences",
            "preferences list", "preferences get", "preferences set", "help"]


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
        messages = (ROOT / "apps" / "jobticket" / "Errors.cpp").read_text(encoding="utf-8")
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


if __name__ == "__main__":
    main()
