#pragma once

#include "ocore/Checking/FailedCapability.h"

namespace zent {

/// A number or the length of a text out of its limits. Numbers are moved to the nearest limit, a
/// text that is too long is cut, everything else is removed.
class FailedRangeCapability final : public FailedCapability {
public:
    FailedRangeCapability(SettingsContext context, const _CI& capability, std::int32_t lower,
                          std::int32_t upper)
        : FailedCapability(std::move(context), capability), m_lower(lower), m_upper(upper) {}

    SettingsRepair findRepair(const Settings& defaults) const override;
    std::unique_ptr<SettingsProblem> clone() const override;
    bool isEqual(const SettingsProblem& other) const override;

    std::int32_t getLower() const { return m_lower; }
    std::int32_t getUpper() const { return m_upper; }

private:
    std::int32_t moveInside(std::int32_t number) const;
    std::unique_ptr<AttrValue> makeRange(const AttrValue& value) const;
    std::unique_ptr<AttrValue> makeNumber(const AttrValue& value) const;
    std::unique_ptr<AttrValue> makeText(const AttrValue& value) const;

    std::int32_t m_lower;
    std::int32_t m_upper;
};

} // namespace zent
