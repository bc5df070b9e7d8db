#include "ocore/Checking/PrivateCapabilityCheck.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "ocore/Checking/FailedEmbeddedSpacesCapability.h"
#include "ocore/Checking/FailedRangeCapability.h"
#include "ocore/Checking/UnsupportedAttribute.h"
#include "ocore/Faults/Trace.h"

namespace zent {

namespace {

template <typename... Args>
void traceCheck(const char* format, const Args&... args) {
    if (trace::isOutputEnabled()) {
        trace::output(u"Capabilities::validateAgainstPrivateCapability(): " +
                      formatText(format, args...));
    }
}

const char* kindName(const _CI& capability) {
    switch (capability.getCapabilityType()) {
    case CAPTYPE_INT_RANGE:
        return "CAPTYPE_INT_RANGE";
    case CAPTYPE_IS_SUPPORTED:
        return "CAPTYPE_IS_SUPPORTED";
    case CAPTYPE_INT_UPPER_LIMIT:
        return "CAPTYPE_INT_UPPER_LIMIT";
    default:
        return "CAPTYPE_EMBEDDED_SPACES";
    }
}

void traceNotPresent(const _CI& capability) {
    traceCheck("%S capability '%s' not present.\r\n", kindName(capability), capability.getName());
}

void traceNoValue(const char* valueClass, const _CI& capability, const CXString& content) {
    traceCheck("could not retrieve the %S value for feature '%s' to validate %S capability '%s' "
               "(%s).\r\n",
               valueClass, _FI(capability.getFeature()).getName(), kindName(capability),
               capability.getName(), content);
}

/// The class of a feature's values as the feature table has it. The ticket may hold a value of
/// another class.
enum class ValueClass { number, range, text, other };

ValueClass valueClassOf(const _FI& feature) {
    switch (feature.getAVTE(0)) {
    case AVTE_INTEGER:
    case AVTE_ENUM:
        return ValueClass::number;
    case AVTE_NAME:
    case AVTE_KEYWORD:
    case AVTE_TEXT:
    case AVTE_MIMEMEDIA:
    case AVTE_URI:
        return ValueClass::text;
    default:
        return feature.getSyntax(0) == syntax::rangeOfInteger ? ValueClass::range
                                                              : ValueClass::other;
    }
}

const char* nameOf(ValueClass valueClass) {
    switch (valueClass) {
    case ValueClass::number:
        return "integer/enum";
    case ValueClass::range:
        return "range-of-integer";
    default:
        return "string";
    }
}

/// What limits are compared with: a number is its own lower and upper end, a range has two, and a
/// text has its length.
struct Extent {
    Extent(std::int32_t a, std::int32_t b) : least(std::min(a, b)), greatest(std::max(a, b)) {}
    std::int32_t least;
    std::int32_t greatest;
};

/// Measures a value; nothing if it isn't of the class.
std::optional<Extent> measure(const AttrValue& value, ValueClass valueClass) {
    std::int32_t lower = 0;
    std::int32_t upper = 0;
    if (valueClass == ValueClass::number && value.isPrimitiveInteger()) {
        lower = upper = static_cast<const PrimitiveInteger&>(value).getValue();
    } else if (valueClass == ValueClass::text && value.isPrimitiveString()) {
        lower = upper = static_cast<const PrimitiveString&>(value).getValue().length();
    } else if (valueClass != ValueClass::range || !value.isRangeOfInteger() ||
               !value.getRangeOfIntegerValues(lower, upper)) {
        return std::nullopt;
    }
    return Extent(lower, upper);
}

} // namespace

bool PrivateCapabilityCheck::validateAgainstPrivateCapability(const _CI& capability) {
    try {
        return check(capability);
    } catch (...) {
        trace::output(formatText("Capabilities::validateAgainstPrivateCapability(%s)\r\n",
                                 capability.getName()));
        trace::output(u"Exception thrown while validating private capabilities. In order to be "
                      u"fault-tolerant during customer builds we'll assume that this feature is "
                      u"valid.");
        return true;
    }
}

bool PrivateCapabilityCheck::check(const _CI& capability) {
    switch (capability.getCapabilityType()) {
    case CAPTYPE_INT_RANGE:
        return checkRange(capability);
    case CAPTYPE_IS_SUPPORTED:
        return checkIsSupported(capability);
    case CAPTYPE_INT_UPPER_LIMIT:
        return checkUpperLimit(capability);
    case CAPTYPE_EMBEDDED_SPACES:
        return checkEmbeddedSpaces(capability);
    default:
        return true;
    }
}

bool PrivateCapabilityCheck::checkRange(const _CI& capability) {
    Limits limits;
    if (!m_capabilities.getRange(capability, &limits.lower, &limits.upper)) {
        traceNotPresent(capability);
        return true;
    }
    return checkLimits(capability, limits, limits);
}

bool PrivateCapabilityCheck::checkUpperLimit(const _CI& capability) {
    std::int32_t upper = 0;
    if (!m_capabilities.getLong(capability, &upper)) {
        traceNotPresent(capability);
        return true;
    }
    return checkLimits(capability, {std::numeric_limits<std::int32_t>::min(), upper}, {0, upper});
}

bool PrivateCapabilityCheck::checkLimits(const _CI& capability, const Limits& limits,
                                         const Limits& failing) {
    const ValueClass valueClass = valueClassOf(_FI(capability.getFeature()));
    if (valueClass == ValueClass::other) {
        traceCheck("feature '%s' does not support any of the appropriate syntaxes for the %S "
                   "capability.\r\n",
                   _FI(capability.getFeature()).getName(), kindName(capability));
        return true;
    }
    const std::optional<Extent> extent = measure(m_value.node.getAttrValue(), valueClass);
    if (!extent) {
        const bool isRange = capability.getCapabilityType() == CAPTYPE_INT_RANGE;
        traceNoValue(nameOf(valueClass), capability,
                     isRange ? formatText("%d - %d", limits.lower, limits.upper)
                             : formatText("%d", limits.upper));
        return true;
    }
    const bool isEmptyText = valueClass == ValueClass::text && extent->greatest == 0;
    if (isEmptyText || (extent->least >= limits.lower && extent->greatest <= limits.upper)) {
        return true;
    }
    m_problems.addProblem(std::make_unique<FailedRangeCapability>(makeContext(m_value), capability,
                                                                  failing.lower, failing.upper));
    return false;
}

bool PrivateCapabilityCheck::checkIsSupported(const _CI& capability) {
    bool isSupported = true;
    if (!m_capabilities.getBool(capability, &isSupported)) {
        traceNotPresent(capability);
    }
    if (!isSupported) {
        m_problems.addProblem(std::make_unique<UnsupportedAttribute>(makeContext(m_place)));
    }
    return isSupported;
}

bool PrivateCapabilityCheck::checkEmbeddedSpaces(const _CI& capability) {
    bool areAllowed = true;
    if (!m_capabilities.getBool(capability, &areAllowed)) {
        traceNotPresent(capability);
    }
    if (areAllowed) {
        return true;
    }
    const AttrValue& value = m_value.node.getAttrValue();
    if (!value.isPrimitiveString()) {
        traceNoValue(nameOf(ValueClass::text), capability, u"false");
        return true;
    }
    if (static_cast<const PrimitiveString&>(value).getValue().find(u' ') < 0) {
        return true;
    }
    m_problems.addProblem(
        std::make_unique<FailedEmbeddedSpacesCapability>(makeContext(m_value), capability));
    return false;
}

} // namespace zent
