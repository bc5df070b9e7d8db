#pragma once

#include <string>
#include <vector>

#include "ocore/Attributes/AttrNodeList.h"

namespace jobticket {

/// One line of a ticket's listing.
struct OutlineLine {
    unsigned depth;    // how many collections the line lies in
    bool isHeading;    // of a collection, whose members follow one deeper
    std::string path;  // as "jobticket set" takes it
    std::string value; // as "jobticket set" takes it; several with commas between them
    std::string label; // the name for people
    std::string text;  // the value for people, with its unit
};

/// What a ticket says, line by line in its own order. Attributes that are no feature are listed by
/// the names that they have.
std::vector<OutlineLine> makeOutline(const zent::AttrNodeList& ticket);

} // namespace jobticket
