#include "Feature.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "Errors.h"
#include "Text.h"
#include "ocore/FeatureSettings/FeatureDataBase.h"
#include "ocore/FeatureSettings/FeatureTable.h"
#include "ocore/FeatureSettings/FeatureValueDataBase.h"
#include "ocore/OrdoParse/OrdoCategories.h"

namespace jobticket {

bool isLength(const Unit& unit) { return unit.name == std::string_view(Unit::length); }

std::string lengthInMillimetres(std::int32_t hundredths) {
    const std::int64_t size = std::abs(std::int64_t(hundredths));
    std::string text = (hundredths < 0 ? "-" : "") + std::to_string(size / 100);
    if (const std::int64_t rest = size % 100; rest != 0) {
        text += rest < 10 ? ".0" : ".";
        text += std::to_string(rest % 10 == 0 ? rest / 10 : rest);
    }
    return text + " mm";
}

std::string withUnit(std::int32_t number, const Unit& unit) {
    if (isLength(unit)) {
        return lengthInMillimetres(number);
    }
    const std::string_view name = unit.name;
    std::string text = std::to_string(number);
    // "Insert after page: 12" says without a unit what the number is.
    if (!name.empty() && name.find("number") == std::string_view::npos) {
        text.append(" ").append(name);
        if (number == 1 && text.ends_with('s')) {
            text.pop_back();
        }
    }
    return text;
}

namespace {

constexpr std::string_view sizeCollection = "media-size";

} // namespace

bool Feature::exists(std::string_view name) {
    return !name.empty() && zent::_FI::isFeatureName(zent::CXString(fromUtf8(name)));
}

Feature Feature::named(std::string_view name) {
    if (exists(name)) {
        return Feature(zent::_FI(zent::CXString(fromUtf8(name))).getFeature());
    }
    std::vector<std::string> names;
    for (const Feature& feature : all()) {
        names.push_back(feature.getName());
    }
    const std::string nearest = findNearest(name, names);
    throw ProgramError(ExitStatus::badValue,
                       "there is no feature " + inQuotes(name) +
                           (nearest.empty() ? "; \"jobticket features\" lists all"
                                            : "; did you mean \"" + nearest + "\"?"));
}

std::vector<Feature> Feature::all() {
    std::vector<Feature> features;
    for (const zent::FeatureRow& row : zent::getFeatureRows()) {
        features.emplace_back(row.feature);
    }
    return features;
}

std::string Feature::getName() const { return toUtf8(m_id.getName()); }

std::string Feature::getDisplayName() const { return toPrintable(m_id.getDisplayString()); }

ValueKind Feature::getKind() const {
    switch (zent::syntaxToAVTE(m_id.getSyntax(0))) {
    case zent::AVTE_INTEGER:
        return ValueKind::number;
    case zent::AVTE_NAME:
    case zent::AVTE_TEXT:
    case zent::AVTE_URI:
        return ValueKind::text;
    case zent::AVTE_LIST:
        break;
    default:
        return ValueKind::keyword; // keywords, enums and MIME types come from the table
    }
    const zent::CXString& syntax = m_id.getSyntax(0);
    if (syntax == zent::syntax::rangeOfInteger) {
        return ValueKind::range;
    }
    if (syntax == zent::syntax::resolution) {
        return ValueKind::resolution;
    }
    return getName() == sizeCollection ? ValueKind::size : ValueKind::collection;
}

std::string Feature::describeKind() const {
    const std::string unit =
        *getUnit().name == '\0' ? "" : std::string(" (") + getUnit().name + ")";
    switch (getKind()) {
    case ValueKind::keyword:
    case ValueKind::text: {
        const bool mayBeName = m_id.isMultiple() && takesOwnValues();
        return toUtf8(m_id.getSyntax(0)) + (mayBeName ? " or own name" : "");
    }
    case ValueKind::number:
        return "number" + unit;
    case ValueKind::range:
        return "range" + unit;
    case ValueKind::resolution:
        return "resolution";
    case ValueKind::size:
        return "size" + unit;
    case ValueKind::collection:
        break;
    }
    return isPageLevel() ? "ticket" : "collection";
}

bool Feature::takesOwnValues() const {
    return getKind() == ValueKind::text ||
           (getKind() == ValueKind::keyword && m_id.isUserDefinable());
}

bool Feature::keepsWhiteSpace() const {
    // A value that isn't known is stored in the first syntax, which therefore decides.
    const zent::AVTE type = zent::syntaxToAVTE(m_id.getSyntax(0));
    return type == zent::AVTE_NAME || type == zent::AVTE_TEXT;
}

bool Feature::isPageLevel() const {
    if (getKind() != ValueKind::collection) {
        return false;
    }
    const std::vector<Feature> features = all();
    return std::none_of(features.begin(), features.end(), [this](const Feature& feature) {
        return !(feature == *this) && feature.isMemberOf(*this);
    });
}

bool Feature::standsInTicket() const {
    const zent::NestedAttrID& path = m_id.getNestedAttrID();
    const zent::CXString& outermost =
        path.getDepth() == 0 ? m_id.getName() : path.getParentName(path.getDepth() - 1);
    return zent::findOrdoCategory(outermost) != zent::OrdoCategory::none;
}

bool Feature::isMemberOf(const Feature& collection) const {
    return m_id.getNestedAttrID().hasParent(collection.m_id.getName());
}

std::string Feature::getLocation() const {
    const zent::NestedAttrID& path = m_id.getNestedAttrID();
    const zent::CXString& value = u"value";
    std::string location;
    for (std::uint32_t index = path.getDepth(); index-- > 0;) {
        // Sets are left out, since their members stand for them, and so is a set that the feature
        // is named after.
        if (path.isNamingParent(index) || path.getParentName(index) == value) {
            continue;
        }
        location += (location.empty() ? "" : " / ") + toUtf8(path.getParentName(index));
    }
    return location;
}

std::vector<zent::FeatureValue> Feature::getValues() const {
    std::vector<zent::FeatureValue> values;
    for (std::int32_t number = zent::FeatureValue::unspecified + 1;
         number < zent::value::firstRunTimeValue; ++number) {
        if (zent::FeatureValue::isValidNumber(number) &&
            zent::FeatureValue(number).belongsTo(getNumber())) {
            values.emplace_back(number);
        }
    }
    return values;
}

} // namespace jobticket
