// A repair keeps as much of what the user asked for as the limits allow: it moves numbers to the
// nearest limit and cuts texts. Only where that isn't possible is the value removed.

#include "ocore/Checking/FailedRangeCapability.h"

#include <algorithm>

#include "ocore/Attributes/AttrNames.h"
#include "ocore/Attributes/IppList.h"
#include "ocore/Attributes/PrimitiveInteger.h"
#include "ocore/Attributes/PrimitiveString.h"
#include "platform/Surrogates.h"

namespace zent {

// Not std::clamp: the limits come from a document, and may be the wrong way round.
std::int32_t FailedRangeCapability::moveInside(std::int32_t number) const {
    return std::min(std::max(number, m_lower), m_upper);
}

std::unique_ptr<AttrValue> FailedRangeCapability::makeRange(const AttrValue& value) const {
    std::int32_t lower = m_lower;
    std::int32_t upper = m_upper;
    value.getRangeOfIntegerValues(lower, upper);
    auto range = std::make_unique<IppList>(syntax::rangeOfInteger);
    range->getAttrNodeList().addInteger(moveInside(lower), attrNames::lowerBound());
    range->getAttrNodeList().addInteger(moveInside(upper), attrNames::upperBound());
    return range;
}

std::unique_ptr<AttrValue> FailedRangeCapability::makeNumber(const AttrValue& value) const {
    auto copy = value.clone();
    auto& number = static_cast<PrimitiveInteger&>(*copy);
    number.setValue(moveInside(number.getValue()));
    return copy;
}

std::unique_ptr<AttrValue> FailedRangeCapability::makeText(const AttrValue& value) const {
    auto copy = value.clone();
    auto& text = static_cast<PrimitiveString&>(*copy);
    if (text.getValue().length() <= m_upper && text.getValue().length() < m_lower) {
        return nullptr; // nobody knows what to add
    }
    text.setValue(
        platform::cutText(text.getValue(), static_cast<std::size_t>(std::max(m_upper, 0))));
    return copy;
}

SettingsRepair FailedRangeCapability::findRepair(const Settings& /*defaults*/) const {
    const AttrValue& value = getNodeValue();
    std::unique_ptr<AttrValue> replacement;
    if (value.isRangeOfInteger()) {
        replacement = makeRange(value);
    } else if (value.isPrimitiveInteger()) {
        replacement = makeNumber(value);
    } else if (value.isPrimitiveString()) {
        replacement = makeText(value);
    }
    return replacement == nullptr ? makeRemoval() : makeReplacement(std::move(replacement));
}

std::unique_ptr<SettingsProblem> FailedRangeCapability::clone() const {
    return std::make_unique<FailedRangeCapability>(*this);
}

bool FailedRangeCapability::isEqual(const SettingsProblem& other) const {
    const auto* const range = dynamic_cast<const FailedRangeCapability*>(&other);
    return range != nullptr && hasSameCapability(other) && range->m_lower == m_lower &&
           range->m_upper == m_upper;
}

} // namespace zent
