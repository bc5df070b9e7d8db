#!/usr/bin/env python3
"""Works out the ticket streams that the tickets beside this script must give.

This is a second reading of the rules, which shares nothing with the library: the tests compare the
library's streams with what this writes. Without an argument it writes the .golden files; with
--check it compares them with what it would write.
"""
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

HERE = pathlib.Path(__file__).resolve().parent

# What the resource library holds as strings 10826 and 6201.
UNTITLED = "Untitled job"
UNKNOWN_USER = "Unknown user"

# By the number of the printer family. "weight": the family's printers know weights of media, so that
# the job's weight counts for all its sheets. Limits of media are x from, x to, y from, y to.
FAMILIES = {
    7: dict(swap=0, unix=1, weight=1, none=1, full=0, limits=(13970, 45720, 10410, 30480)),
    11: dict(swap=0, unix=0, weight=1, none=0, full=0, limits=(17800, 47000, 25400, 35600)),
    12: dict(swap=0, unix=0, weight=1, none=0, full=0, limits=(17800, 47000, 25400, 36400)),
    13: dict(swap=0, unix=0, weight=1, none=0, full=0, limits=(20300, 21600, 25400, 35600)),
    14: dict(swap=0, unix=0, weight=1, none=0, full=0, limits=(20300, 21600, 25400, 35600)),
    17: dict(swap=1, unix=0, weight=1, none=0, full=1, limits=(20300, 43200, 25400, 36300)),
}

PLEX = {"one-sided": "simplex", "two-sided-long-edge": "duplex",
        "two-sided-short-edge": "duplex(tumble)"}
ROTATION = {"rotate-0": "0", "rotate-90": "90", "rotate-180": "180", "rotate-270": "270"}
COLLATION = {"collated": "collated", "uncollated": "uncollated"}
SIGNATURE = {"signature": "True", "none": "False"}

BINDING = {50: "left", 52: "right"}
STITCHING = {20: "SinglePortrait", 21: "SingleLandscape",
             22: "RightSinglePortrait", 23: "RightSingleLandscape",
             28: "DualLandscape", 29: "DualPortrait",
             30: "RightDualLandscape", 31: "RightDualPortrait"}
BOOKLET = {13: "True"}

PRINTING_COLORS = ("red green blue cyan magenta black cardinal royal ruby violet brown "
                   "other").split()
MAPPING_COLORS = PRINTING_COLORS + ["yellow"]
MAPPING = {"object-based": "Automatic", "pictorial": "Pictorial", "presentation": "Presentation",
           "color-tables": "PictorialTable", "color-to-highlight": "ColorToHighlight",
           "monochrome-grayscale": "Monochrome"}
MISMATCH = {"use-ready": "selectCurrent", "hold": "hold", "abort": "abort"}

PAPER_COLORS = {"no-color": "noColor", "white": "white", "pink": "pink", "yellow": "yellow",
                "blue": "blue", "green": "green", "buff": "buff", "goldenrod": "goldenrod",
                "red": "red"}

COVERS = {("front", "print-front"): "outsideOnly", ("back", "print-front"): "insideOnly",
          ("front", "print-back"): "insideOnly", ("back", "print-back"): "outsideOnly",
          ("front", "print-both"): "both", ("back", "print-both"): "both"}


def value_of(element):
    """A number, a text, a (lower, upper) pair, a list of members, or a dictionary of members."""
    syntax = element.get("syntax")
    if syntax in ("integer", "enum"):
        return int(element.text)
    if syntax == "1setOf":
        return [value_of(member) for member in element]
    if syntax == "rangeOfInteger":
        return int(element.find("lower-bound").text), int(element.find("upper-bound").text)
    if syntax == "collection":
        return {member.tag: value_of(member) for member in element}
    return element.text or ""


def read_ticket(path):
    root = ElementTree.parse(path).getroot()
    return {attribute.tag: value_of(attribute) for category in root for attribute in category}


def one_line(text):
    for line_end in ("\r\n", "\n\r", "\r", "\n"):
        text = text.replace(line_end, " ")
    return text


def millimetres(hundredths):
    return str(int(hundredths * 0.01))


def one_field(name):
    return name.replace(" ", "\x08")


class Paper:
    """The five texts on the paper of a job or of a part of it; None where it says nothing."""

    def __init__(self, settings, printer):
        media = settings.get("media-col", {})
        self.size = self.size_text(media.get("media-size", {}), settings, printer)
        color = media.get("media-color")
        self.color = color and PAPER_COLORS.get(color, one_field(color))
        kind = media.get("media-type")
        self.opacity = kind and ("transparency" if kind == "transparency" else "opaque")
        self.finish = kind and self.finish_text(kind, media)
        self.weight = media.get("media-weight-metric")

    @staticmethod
    def size_text(size, settings, printer):
        if "x-dimension" not in size or "y-dimension" not in size:
            return None
        x, y = size["x-dimension"], size["y-dimension"]
        x_from, x_to, y_from, y_to = printer["limits"]
        if not (x_from <= x <= x_to and y_from <= y <= y_to):
            if x_from <= y <= x_to and y_from <= x <= y_to:
                x, y = y, x
        if settings.get("imposition-template") == "signature" and printer["swap"] and x > 22900:
            x, y = y, x
        return f"{millimetres(x)} {millimetres(y)}"

    @staticmethod
    def finish_text(kind, media):
        drilled = media.get("media-hole-count") == 3
        order = media.get("media-order-count", 0)
        if kind in ("stationery", "transparency"):
            return "PlainDrilled 3 0" if drilled else "Plain 0 0"
        if kind in ("pre-cut-tabs", "full-cut-tabs"):
            return f"DrilledPreCutTab 3 {order}" if drilled else f"PlainPreCutTab 0 {order}"
        return f"{one_field(kind)} {3 if drilled else 0} {order}"


class Stream:
    def __init__(self, ticket, printer):
        self.ticket = ticket
        self.printer = printer
        self.paper = Paper(ticket, printer)
        self.lines = []

    def line(self, keyword, text):
        self.lines.append(f"%TRV{keyword}: {text}\n")

    def word(self, keyword, table, attribute):
        if self.ticket.get(attribute) in table:
            self.line(keyword, table[self.ticket[attribute]])

    def write(self):
        self.line("begin", "001.0300")
        self.identification()
        self.layout()
        self.finishing()
        self.word("requirements", COLLATION, "sheet-collate")
        self.word("rotation", ROTATION, "page-rotation")
        self.shifts()
        self.disposition()
        self.highlight()
        self.document_paper()
        for page in self.ticket.get("force-front-side", []):
            self.line("chapterStartHint", page)
        self.cover("front")
        self.cover("back")
        self.inserts()
        self.exceptions()
        self.line("deleteSource", "False")
        self.lines.append("%TRVend\n")
        return "".join(self.lines).encode("utf-8")

    def identification(self):
        ticket = self.ticket
        if "job-account-id" in ticket:
            self.line("account", one_line(ticket["job-account-id"]))
        self.line("title", one_line(ticket.get("job-name", UNTITLED)))
        self.line("senderName", one_line(ticket.get("requesting-user-name", UNKNOWN_USER)))
        if "job-recipient-name" in ticket:
            self.line("recipientName", one_line(ticket["job-recipient-name"]))
        notes = [ticket[name] for name in ("job-phone-number", "job-sheet-message")
                 if name in ticket]
        if notes:
            self.line("message", one_line(" ".join(notes)))
        if "job-message-to-operator" in ticket:
            self.line("jobStartMessage", one_line(ticket["job-message-to-operator"]))

    def layout(self):
        ticket = self.ticket
        imposition = ticket.get("imposition-template", "none" if self.printer["swap"] else None)
        if imposition in SIGNATURE:
            self.line("signature", SIGNATURE[imposition])
        if "copies" in ticket:
            self.line("copyCount", ticket["copies"])
        if ticket.get("page-ranges"):
            self.line("pagesToPrint", "%d %d" % ticket["page-ranges"][0])
        self.word("requirements", PLEX, "sides")

    def finishing(self):
        number = None
        template = self.ticket.get("finishings-col", {}).get("finishing-template")
        if template is not None:
            self.line("outputLocation", f"FinishingBypass {template}")
        elif "separator-sheets-type" in self.ticket.get("separator-sheets", {}):
            self.line("requirements", "slipSheeting")
        else:
            number = self.ticket.get("finishings", [None])[0]
        for keyword, table, none in (("binding", BINDING, "None"),
                                     ("edgeStitching", STITCHING, "None"),
                                     ("bookletMaker", BOOKLET, "False")):
            if number in table:
                self.line(keyword, table[number])
            elif self.printer["none"]:
                self.line(keyword, none)

    def shifts(self):
        rows = [("xImageShift", "x-side1-image-shift"), ("yImageShift", "y-side1-image-shift")]
        if self.ticket.get("sides") != "one-sided":
            rows += [("x2ImageShift", "x-side2-image-shift"),
                     ("y2ImageShift", "y-side2-image-shift")]
        for keyword, attribute in rows:
            if attribute in self.ticket:
                self.line(keyword, millimetres(self.ticket[attribute]))

    def disposition(self):
        saving = self.ticket.get("job-save-disposition", {})
        how = saving.get("save-disposition", "none")
        self.line("disposition", {"none": "PRINT", "save-only": "SAVE",
                                  "print-save": "PRINT&SAVE"}[how])
        places = saving.get("save-info", [])
        if how != "none" and places and "save-name" in places[0]:
            system = "UNIX" if self.printer["unix"] else "DOS"
            self.line("destination", f"{system}:{places[0]['save-name']}")

    def highlight(self):
        self.word("highlightPrintingColor", {c: c for c in PRINTING_COLORS}, "highlight-colorant")
        self.word("highlightMappingColor", {c: c for c in MAPPING_COLORS}, "highlight-map-color")
        self.word("highlightMappingAlgorithm", MAPPING, "highlight-map")
        self.word("mismatchedHighlightPrintingColor", MISMATCH, "highlight-colorant-mismatch")

    def document_paper(self):
        for keyword, text in (("documentPaperColors", self.paper.color),
                              ("paperType-opacity", self.paper.opacity),
                              ("paperType-preFinish", self.paper.finish),
                              ("paperType-size", self.paper.size),
                              ("paperType-weight", self.paper.weight)):
            if text is not None:
                self.line(keyword, text)

    def description(self, settings):
        own, job = Paper(settings, self.printer), self.paper
        job_weight = job.weight if self.printer["weight"] else None
        fields = [(own.size, job.size, "216 279"), (own.color, job.color, "white"),
                  (own.opacity, job.opacity, "opaque"), (own.finish, job.finish, "Plain 0 0"),
                  (own.weight, job_weight, 75)]
        return " ".join(str(next(text for text in row if text is not None)) for row in fields)

    def cover(self, side):
        cover = self.ticket.get(f"cover-{side}")
        if cover:
            printed = COVERS.get((side, cover.get("cover-type")), "noImage")
            self.line(f"cover-{side}", f"{printed} {self.description(cover)}")

    def inserts(self):
        for insert in self.ticket.get("insert-sheet", []):
            if "insert-after-page-number" in insert:
                self.line("blankPageInserts",
                          f"{insert['insert-after-page-number']} {insert.get('insert-count', 1)} "
                          f"{self.description(insert)}")

    def exceptions(self):
        numbers = {"x": 0, "y": 0}  # of first sides; an entry inherits that of the one before
        for entry in self.ticket.get("page-overrides", []):
            if entry.get("pages"):
                self.exception(entry, "%d %d" % entry["pages"][0], numbers)

    def exception(self, entry, pages, numbers):
        full = self.printer["full"]
        self.line("pageExceptions" if full else "pageExceptions-medium",
                  f"{pages} {self.description(entry)}")
        for part, attribute, table, default in (("plex", "sides", PLEX, "simplex"),
                                                ("rotation", "page-rotation", ROTATION, "0")):
            word = table.get(entry.get(attribute))
            if word is None and full:
                word = table.get(self.ticket.get(attribute), default)
            if word is not None:
                self.line(f"pageExceptions-{part}", f"{pages} {word}")
        for axis in "xy":
            first = entry.get(f"{axis}-side1-image-shift")
            second = entry.get(f"{axis}-side2-image-shift")
            keyword = f"pageExceptions-{axis}Shift"
            if first is not None:
                numbers[axis] = first
                which = "ALL" if second == first else "ODD"
                self.line(keyword, f"{pages} {millimetres(first)} {which}")
            if second is not None and second != numbers[axis]:
                self.line(keyword, f"{pages} {millimetres(second)} EVEN")


def main():
    check = sys.argv[1:] == ["--check"]
    wrong = []
    for number, printer in FAMILIES.items():
        name = f"family-{number:02}"
        stream = Stream(read_ticket(HERE / f"{name}.xml"), printer).write()
        golden = HERE / f"{name}.golden"
        if not check:
            golden.write_bytes(stream)
        elif golden.read_bytes() != stream:
            wrong.append(golden.name)
    return f"not what the tickets give: {', '.join(wrong)}" if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
