#pragma once

#include <cstdint>
#include <vector>

#include "ocore/Attributes/AVTE.h"
#include "ocore/FeatureSettings/FeatureNumber.h"

namespace zent {

/// One row of the value table.
struct FeatureValueInfo {
    std::int32_t m_value = 0;
    std::vector<FeatureEnum> m_features;
    CXString m_text; // as it goes into an attribute; unique for a feature, not overall
    CXString m_abbreviation;
    std::uint32_t m_displayStringID = 0; // 0 for a run-time value, which is shown by its text
    std::uint32_t m_imageID = 0;         // 0 for none
    CXString m_syntax;
    AVTE m_type = AVTE_NULL;
};

} // namespace zent
