#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"
#include "ocore/FeatureSettings/FeatureValue.h"

namespace jobticket {

using Unit = zent::FeatureUnit;

/// Lengths are held in hundredths of a millimetre.
bool isLength(const Unit& unit);
/// "297 mm", "0.25 mm".
std::string lengthInMillimetres(std::int32_t hundredths);

/// "5 mm" for a length, "80 g/m2" for a number with a unit, else the number alone.
std::string withUnit(std::int32_t number, const Unit& unit);

/// How a value of a feature is written on the command line.
enum class ValueKind {
    keyword,    // one of the known values, or a name of the user's own if the feature allows that
    text,       // names, texts and locations
    number,     // integers
    range,      // "3-7" or "3"
    resolution, // "600x600dpi"
    size,       // "21000x29700": the two members of media-size
    collection, // no value of its own: other features, or a ticket within the ticket
};

/// What the program knows of a feature: a view on a row of the feature table.
class Feature {
public:
    explicit Feature(zent::FeatureEnum number) : m_id(number) {}
    /// Raises ProgramError (badValue), with a suggestion for a misspelt name.
    static Feature named(std::string_view name);
    static bool exists(std::string_view name);
    /// All features, in the order of their numbers.
    static std::vector<Feature> all();

    bool operator==(const Feature& other) const { return getNumber() == other.getNumber(); }

    zent::FeatureEnum getNumber() const { return m_id.getFeature(); }
    const zent::_FI& getId() const { return m_id; }
    std::string getName() const;
    /// For people, from the resource library.
    std::string getDisplayName() const;

    ValueKind getKind() const;
    /// "keyword", "number", ...: the kind and its unit in words.
    std::string describeKind() const;
    const Unit& getUnit() const { return m_id.getUnit(); }
    /// Whether the feature holds a set of values.
    bool takesSeveral() const { return m_id.isInSetOf(); }
    /// Whether values are allowed that the value table doesn't hold.
    bool takesOwnValues() const;
    /// Whether white space at the ends of a value counts.
    bool keepsWhiteSpace() const;
    /// Whether its value is a ticket within the ticket, such as that of a range of pages, rather
    /// than a group of features that stand beside all others.
    bool isPageLevel() const;
    /// Whether a ticket itself can hold it, and not only a page-level feature.
    bool standsInTicket() const;
    /// Whether the feature lies in a collection of the same ticket.
    bool isMemberOf(const Feature& collection) const;
    /// The collections that hold it, from the outermost inwards: "media-col / media-size".
    std::string getLocation() const;

    /// The known values, in table order; empty if there are none.
    std::vector<zent::FeatureValue> getValues() const;

private:
    zent::_FI m_id;
};

} // namespace jobticket
