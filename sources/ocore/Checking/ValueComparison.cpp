// The comparison goes by pairs of kinds, that of the value and that of the supported one. Pairs
// that no rule speaks of fit: a document may describe a capability in a way that this library
// doesn't know, and a job mustn't be stopped for that.

#include "ocore/Checking/ValueComparison.h"

#include <algorithm>

#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Attributes/IppBoolean.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "ocore/Faults/Trace.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureIdentifier.h"

namespace zent {

namespace {

/// A pair of bounds; a bound that is missing excludes nothing.
struct Range {
    explicit Range(const AttrValue& value) {
        isComplete = value.getRangeOfIntegerValues(lower, upper);
    }
    bool contains(std::int32_t number) const {
        return !isComplete || (number >= lower && number <= upper);
    }
    std::int32_t lower = 0;
    std::int32_t upper = 0;
    bool isComplete = false;
};

bool isText(AVTE type) { return type == AVTE_KEYWORD || type == AVTE_NAME; }

const CXString& textOf(const AttrValue& value) {
    return static_cast<const PrimitiveString&>(value).getValue();
}

std::int32_t numberOf(const AttrValue& value) {
    return static_cast<const PrimitiveInteger&>(value).getValue();
}

bool isWithin(const AttrValue& value, const AttrValue& supported) {
    const Range inner(value);
    const Range outer(supported);
    return !inner.isComplete || (outer.contains(inner.lower) && outer.contains(inner.upper));
}

bool isSetOrCollection(const AttrValue& value) {
    return value.isList() && !value.isRangeOfInteger() && !value.isResolution();
}

bool compareSingleValues(const AttrValue& value, const AttrValue& supported, bool userDefined) {
    const AVTE type = value.getAttrValueType();
    const AVTE supportedType = supported.getAttrValueType();
    if (type == AVTE_NULL) {
        return false;
    }
    if (supportedType == AVTE_NULL) {
        return true;
    }
    if (userDefined && (type == AVTE_INTEGER || type == AVTE_NAME || type == AVTE_URI)) {
        return true;
    }
    if (value.isRangeOfInteger() && supported.isRangeOfInteger()) {
        return isWithin(value, supported);
    }
    if (value.isResolution() && supported.isResolution()) {
        return value.isSameResolution(supported);
    }
    if (type == supportedType) {
        return value.isEqual(supported);
    }
    if (isText(type) && isText(supportedType)) {
        return textOf(value) == textOf(supported);
    }
    if (type == AVTE_INTEGER && supported.isRangeOfInteger()) {
        return Range(supported).contains(numberOf(value));
    }
    return supportedType != AVTE_BOOLEAN || static_cast<const IppBoolean&>(supported).getValue();
}

bool compareWithMember(const CXString& attribute, const AttrValue& value, const AttrNode& member,
                       bool userDefined) {
    try {
        return compareAttrValues(attribute, value, member.getAttrValue(), userDefined);
    } catch (const std::exception&) {
        trace::output(formatText("Capabilities::compareAttrValues(%s)", attribute));
        trace::output(formatText(
            "Exception thrown while recursing. Assume the value (with syntax '%s') being tested is "
            "supported. Continuing to check supported values.",
            value.getIppSyntax()));
        return true;
    }
}

/// The dimensions of a size, each null where it is missing.
struct Dimensions {
    explicit Dimensions(const AttrNodeList* size) {
        if (size != nullptr) {
            x = size->findNode(_FI(feature::xDimension).getAttrID());
            y = size->findNode(_FI(feature::yDimension).getAttrID());
        }
    }
    const AttrNode* x = nullptr;
    const AttrNode* y = nullptr;
};

bool isPlainOrMissing(const AttrNode* dimension) {
    return dimension == nullptr || dimension->getAttrValue().getAttrValueType() == AVTE_INTEGER;
}

} // namespace

bool compareAttrValues(const CXString& attribute, const AttrValue& value,
                       const AttrValue& supported, bool userDefined) {
    if (!isSetOrCollection(supported)) {
        return compareSingleValues(value, supported, userDefined);
    }
    const AttrNodeList& members = *embeddedList(supported);
    for (std::uint32_t i = 0; i < members.getNumberOfNodes(); ++i) {
        const AttrNode& member = members.getNodeAt(i);
        if (!member.isPrivate() && compareWithMember(attribute, value, member, userDefined)) {
            return true;
        }
    }
    return false;
}

bool compareAttrValues(const CXString& attribute, const AttrValue& value,
                       const SupportedValues& supported, bool userDefined) {
    const AVTE type = value.getAttrValueType();
    const bool isLookedUp = type == AVTE_KEYWORD || (type == AVTE_NAME && !userDefined);
    if (!isLookedUp || !isSetOrCollection(supported.getValue())) {
        return compareAttrValues(attribute, value, supported.getValue(), userDefined);
    }
    return supported.hasText(textOf(value)) ||
           std::ranges::any_of(supported.getOtherMembers(), [&](const AttrNode* member) {
               return compareWithMember(attribute, value, *member, userDefined);
           });
}

bool compareMediaSizes(const AttrNodeList& size, const AttrNodeList& supported,
                       bool userDefinedSizes) {
    const Dimensions wanted(&size);
    if (wanted.x == nullptr && wanted.y == nullptr) {
        return true;
    }
    bool fits = true; // it fits if there is no size to compare with
    bool rangeSeen = false;
    const auto isInside = [&](const AttrNode* dimension, const AttrNode* allowed) {
        return validateMediaSizeDimensionInRange(dimension, allowed, rangeSeen, false);
    };
    for (std::uint32_t i = 0; i < supported.getNumberOfNodes(); ++i) {
        const AttrNode& entry = supported.getNodeAt(i);
        const Dimensions allowed(embeddedList(entry));
        if (entry.isPrivate() ||
            (userDefinedSizes && isPlainOrMissing(allowed.x) && isPlainOrMissing(allowed.y))) {
            continue;
        }
        fits = (isInside(wanted.x, allowed.x) && isInside(wanted.y, allowed.y)) ||
               (isInside(wanted.x, allowed.y) && isInside(wanted.y, allowed.x));
        if (fits) {
            return true;
        }
    }
    return fits || (userDefinedSizes && !rangeSeen);
}

bool validateMediaSizeDimensionInRange(const AttrNode* dimension,
                                       const AttrNode* supportedDimension, bool& rangeSeen,
                                       bool userDefined) {
    if (dimension == nullptr || supportedDimension == nullptr) {
        return true;
    }
    const AttrValue& supported = supportedDimension->getAttrValue();
    rangeSeen = rangeSeen || supported.isRangeOfInteger();
    bool isInside = false;
    try {
        isInside = compareAttrValues(dimension->getName(), dimension->getAttrValue(), supported,
                                     userDefined);
    } catch (const std::exception&) {
        trace::output(formatText("Exception thrown while comparing values. Assume the value (with "
                                 "syntax '%s') being tested is supported. Continuing to check "
                                 "supported values.",
                                 dimension->getAttrValue().getIppSyntax()));
    }
    return isInside;
}

} // namespace zent
