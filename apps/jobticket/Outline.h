#pragma once

#include <string>
#include <vector>

#include "Json.h"
#include "ShownValue.h"
#include "ocore/Attributes/AttrNodeList.h"

namespace jobticket {

/// One line of a ticket's listing.
struct OutlineLine {
    unsigned depth;                 // how many collections the line lies in
    bool isHeading;                 // of a collection, whose members follow one deeper
    std::string path;               // as "jobticket set" takes it
    std::string label;              // the name for people
    std::vector<ShownValue> values; // none in a heading
};

/// What a ticket says, line by line in its own order. Attributes that are no feature are listed by
/// the names that they have.
std::vector<OutlineLine> makeOutline(const zent::AttrNodeList& ticket);

/// An array of the lines that are no headings, each with its path, name and values.
Json toJson(const std::vector<OutlineLine>& outline);

/// The value of an attribute on one line; a collection as "media-color=blue media-type=stationery".
ShownValue describeAttribute(const std::string& name, const zent::AttrValue& value);

} // namespace jobticket
