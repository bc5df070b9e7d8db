#include "ocore/Attributes/AttrValue.h"

#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/AttrNodeList.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Faults/Exceptions.h"

namespace zent {

bool AttrValue::isPrimitiveString() const {
    switch (m_type) {
    case AVTE_NAME:
    case AVTE_KEYWORD:
    case AVTE_TEXT:
    case AVTE_MIMEMEDIA:
    case AVTE_URI:
        return true;
    default:
        return false;
    }
}

bool AttrValue::hasListSyntax(const CXString& keyword) const {
    return isList() && getIppSyntax() == keyword;
}

const IppList& AttrValue::asList() const { return static_cast<const IppList&>(*this); }

bool AttrValue::getRangeOfIntegerValues(std::int32_t& lower, std::int32_t& upper) const {
    if (!isRangeOfInteger()) {
        Raise<AttributeTypeMismatchException>()("AttrValue::getRangeOfIntegerValues: This "
                                                "AttrValue is not a rangeOfInteger list!!\r\n");
    }
    const AttrNodeList& nodes = asList().getAttrNodeList();
    const bool hasLower = nodes.OrdoAttrToLong(&lower, attrNames::lowerBound());
    const bool hasUpper = nodes.OrdoAttrToLong(&upper, attrNames::upperBound());
    return hasLower && hasUpper;
}

bool AttrValue::getResolutionValues(std::int32_t& crossFeed, std::int32_t& feedDirection,
                                    std::int32_t& units) const {
    if (!isResolution()) {
        Raise<AttributeTypeMismatchException>()(
            "AttrValue::getResolutionValues: This AttrValue is not a resolution list!!\r\n");
    }
    const AttrNodeList& nodes = asList().getAttrNodeList();
    const bool hasCrossFeed = nodes.OrdoAttrToLong(&crossFeed, attrNames::crossFeed());
    const bool hasFeedDirection = nodes.OrdoAttrToLong(&feedDirection, attrNames::feedDirection());
    const bool hasUnits = nodes.OrdoAttrToLong(&units, attrNames::units());
    return hasCrossFeed && hasFeedDirection && hasUnits;
}

bool AttrValue::isSameResolution(const AttrValue& other) const {
    if (!isResolution() || !other.isResolution()) {
        return false;
    }
    struct Numbers {
        std::int32_t crossFeed = 0;
        std::int32_t feedDirection = 0;
        std::int32_t units = 0;
        bool operator==(const Numbers&) const = default;
    };
    Numbers mine;
    Numbers theirs;
    const bool complete = getResolutionValues(mine.crossFeed, mine.feedDirection, mine.units);
    if (complete !=
        other.getResolutionValues(theirs.crossFeed, theirs.feedDirection, theirs.units)) {
        return false;
    }
    return !complete || mine == theirs;
}

} // namespace zent
