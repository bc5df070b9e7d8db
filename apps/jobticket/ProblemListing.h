#pragma once

#include <string>
#include <vector>

#include "Json.h"
#include "TicketCheck.h"

namespace jobticket {

/// A line for each problem: where in the ticket, what is there and what a repair makes of it, and
/// what the printer takes instead.
std::string listProblems(const std::vector<Problem>& problems);
/// An array of them, with all that is known.
Json toJson(const std::vector<Problem>& problems);

/// A sentence that says how much the printing instructions leave out, and an indented line for
/// each: where in the ticket, and what is there. Empty if there is nothing.
std::string listOmissions(const std::vector<Omission>& omissions);
/// An array of them, as notes of what isn't wrong.
Json toJson(const std::vector<Omission>& omissions);

/// "Tarvo Lumaset 430, monochrome PCL".
std::string describePrinterForPeople(const Offers& offers);

} // namespace jobticket
