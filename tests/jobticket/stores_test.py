#!/usr/bin/env python3
"""Has the program keep things: stocks, state blobs, preferences."""
import concurrent.futures
import json
import os
import re
import unittest.mock

from program import (BAD_VALUE, EXAMPLES, INVALID, LIBRARY, REPORT, ROOT, UNTOUCHED_SET, InFolder,
                     document, is_windows, main, raw, run, run_for_both, some)


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


if __name__ == "__main__":
    main()
