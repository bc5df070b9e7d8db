#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Feature.h"
#include "Listing.h"
#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Attributes/AttrValue.h"

namespace jobticket {

/// A value as it is listed. The texts are as the ticket has them, control characters included.
struct ShownValue {
    std::string value; // as "jobticket set" takes it
    std::string text;  // for people, with its unit
};

/// A value, or the values of a set; nothing for a collection, or for a set that holds one.
std::optional<std::vector<ShownValue>> showValues(const zent::AttrValue& value,
                                                  const std::optional<Feature>& feature);

Json toJson(const ShownValue& value);
Json toJson(const std::vector<ShownValue>& values);

/// "20,22": as "jobticket set" takes them.
std::string joinValues(const std::vector<ShownValue>& values);
/// "Staple, top left, Fold": for people.
std::string joinTexts(const std::vector<ShownValue>& values);

/// One line of a ticket's listing.
struct OutlineLine {
    unsigned depth;    // how many collections the line lies in
    bool isHeading;    // the line is that of a collection, whose members follow one level deeper
    std::string path;  // as "jobticket set" takes it
    std::string label; // the name for people
    std::vector<ShownValue> values; // none in a heading
};

/// The content of a ticket, line by line in its own order. Attributes that are no feature are
/// listed by the names that they have.
std::vector<OutlineLine> makeOutline(const zent::AttrNodeList& ticket);

/// An array of the lines that are no headings, each with its path, name and values.
Json toJson(const std::vector<OutlineLine>& outline);

/// The value of an attribute on one line; a collection as "media-color=blue media-type=stationery".
ShownValue describeAttribute(const std::string& name, const zent::AttrValue& value);

} // namespace jobticket
