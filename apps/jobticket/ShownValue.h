#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Feature.h"
#include "Json.h"
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

} // namespace jobticket
