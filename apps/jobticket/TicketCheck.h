#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Listing.h"
#include "Offers.h"
#include "Outline.h"
#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Repair/RepairReport.h"

namespace jobticket {

/// What a repair does about a problem.
enum class Repair {
    remove,  // the value is removed, or the whole collection that lacks a member
    replace, // by another value
    add,     // the printer's default of what is missing
};

/// One thing in a ticket that a printer can't do. Paths are as "jobticket set" takes them.
struct Problem {
    std::string path;
    std::string feature; // or the attribute, if it is none
    std::string name;    // for people
    zent::ProblemRule rule;
    std::string part;                // such as "page-overrides[1]"; empty for the job as a whole
    std::optional<Range> pages;      // that the part is for
    std::optional<ShownValue> value; // nothing if the value is missing
    std::optional<Range> limits;     // of the number, or of the length of the text
    Repair repair;
    std::string removedPath;            // of what a removal takes away
    std::optional<ShownValue> newValue; // nothing for a removal
    std::shared_ptr<const Offer> offer; // of the feature; null if the printer lacks it
};

/// Something in a ticket that the printing instructions leave out: they are a stream of comment
/// lines, which has no line for it.
struct Omission {
    std::string path;    // as "jobticket set" takes it
    std::string feature; // or the attribute, if it is none
    std::string name;    // for people
    ShownValue value;
};

struct TicketCheck {
    Offers offers;
    std::vector<Problem> problems;   // in the order of the library's reports
    std::vector<Omission> omissions; // once the problems are repaired, in the ticket's order
};

/// Finds what a printer can't do of a ticket, which is first brought into the form that an import
/// gives it.
TicketCheck checkTicket(zent::AttrNodeList ticket, const PrinterChoice& choice);

/// Finds what the instructions for a printer leave out of a ticket, which is first brought into the
/// form that an import gives it. Nothing for a printer that gets the XML document.
std::vector<Omission> findOmissions(zent::AttrNodeList ticket, const PrinterChoice& choice);

/// A line for each problem: where in the ticket, what is there and what a repair makes of it, and
/// what the printer takes instead.
std::string listProblems(const std::vector<Problem>& problems);
/// An array of them, with all that is known.
Json toJson(const std::vector<Problem>& problems);

/// A sentence that says how much the printing instructions leave out, and an indented line for
/// each: where in the ticket, and what is there. Empty if there is nothing.
std::string listOmissions(const std::vector<Omission>& omissions);
/// An array of them, as notes about what isn't wrong.
Json toJson(const std::vector<Omission>& omissions);

/// "Tarvo Lumaset 430, monochrome PCL".
std::string describePrinterForPeople(const Offers& offers);

} // namespace jobticket
