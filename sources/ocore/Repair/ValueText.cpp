#include "ocore/Repair/ValueText.h"

#include "ocore/Attributes/EmbeddedList.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/FeatureValue.h"

namespace zent {

namespace {

class ValueWriter {
public:
    explicit ValueWriter(bool isForUsers) : m_isForUsers(isForUsers) {}

    CXString write(const CXString& attribute, const AttrValue& value) const {
        if (!value.isList()) {
            return writeSingle(attribute, value);
        }
        const AttrNodeList& members = *embeddedList(value);
        std::int32_t first = 0;
        std::int32_t second = 0;
        std::int32_t units = 0;
        // A document may hold anything in a range, so that its members are tested.
        const bool isNumeric = areNumbers(members);
        if (isNumeric && value.isRangeOfInteger() && value.getRangeOfIntegerValues(first, second)) {
            return formatText("(%ld-%ld)", first, second);
        }
        if (isNumeric && value.isResolution() && value.getResolutionValues(first, second, units)) {
            return formatText("(%ld x %ld, %ld)", first, second, units);
        }
        return isPairOfDimensions(members) ? writePair(members)
                                           : writeMembers(attribute, members, value.is1setOf());
    }

private:
    CXString writeSingle(const CXString& attribute, const AttrValue& value) const {
        CXString text = value.getIppValue();
        if (!m_isForUsers || !_FI::isFeatureName(attribute)) {
            return text;
        }
        const auto known = FeatureValue::find(_FI(attribute).getFeature(), text);
        return known ? known->getDisplayString() : text;
    }

    static bool areNumbers(const AttrNodeList& members) {
        for (std::uint32_t i = 0; i < members.getNumberOfNodes(); ++i) {
            if (!members.getNodeAt(i).getAttrValue().isPrimitiveInteger()) {
                return false;
            }
        }
        return true;
    }
    static bool isDimension(const AttrNodeList& members, FeatureEnum dimension,
                            std::uint32_t position) {
        return members.isNodeAt(_FI(dimension).getAttrID(), position) &&
               members.getNodeAt(position).getAttrValue().getAttrValueType() == AVTE_INTEGER;
    }
    static bool isPairOfDimensions(const AttrNodeList& members) {
        return members.getNumberOfNodes() == 2 && isDimension(members, feature::xDimension, 0) &&
               isDimension(members, feature::yDimension, 1);
    }
    static CXString writePair(const AttrNodeList& members) {
        return formatText("(%s x %s)", members.getNodeAt(0).getAttrValue().getIppValue(),
                          members.getNodeAt(1).getAttrValue().getIppValue());
    }

    CXString writeMembers(const CXString& attribute, const AttrNodeList& members,
                          bool isSet) const {
        CXString text;
        for (std::uint32_t i = 0; i < members.getNumberOfNodes(); ++i) {
            const AttrNode& member = members.getNodeAt(i);
            if (member.isPrivate()) {
                continue;
            }
            if (!text.isEmpty()) {
                text += u' ';
            }
            text += write(isSet ? attribute : member.getName(), member.getAttrValue());
        }
        return text;
    }

    bool m_isForUsers;
};

} // namespace

CXString makeValueText(const CXString& attribute, const AttrValue& value) {
    return ValueWriter(false).write(attribute, value);
}

CXString makeValueDisplay(const CXString& attribute, const AttrValue& value) {
    return ValueWriter(true).write(attribute, value);
}

} // namespace zent
