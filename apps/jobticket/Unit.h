#pragma once

#include <cstdint>
#include <string>

#include "ocore/FeatureSettings/FeatureEnum.h"

namespace jobticket {

/// What the numbers of a feature count, and how small they can get. Upper bounds are a matter of
/// the printer.
struct Unit {
    const char* name;    // "" if the number is no quantity
    std::int32_t lowest; // a smaller number makes no sense on any printer
};

const Unit& getUnit(zent::FeatureEnum feature);

/// Lengths are held in hundredths of a millimetre.
bool isLength(const Unit& unit);
/// "297 mm", "0.25 mm".
std::string lengthInMillimetres(std::int32_t hundredths);

/// "5 mm" for a length, "80 g/m2" for a number with a unit, else the number alone.
std::string withUnit(std::int32_t number, const Unit& unit);

} // namespace jobticket
