#pragma once

#include <cstdint>
#include <vector>

#include "ocore/Attributes/NestedAttrID.h"
#include "ocore/FeatureSettings/FeatureEnum.h"
#include "ocore/FeatureSettings/SyntaxList.h"

namespace zent {

/// Whether a feature offers the printer default as a choice.
namespace supportClass {
constexpr std::uint32_t always = 1;
constexpr std::uint32_t never = 2;
constexpr std::uint32_t byModel = 3;
} // namespace supportClass

/// One row of the feature table.
struct FeatureInfo {
    FeatureEnum m_feature;
    NestedAttrID m_nestedID; // where the attribute lives
    CXString m_abbreviation;
    // The features that share this one's value set: a run-time value of one mustn't clash with
    // them.
    std::vector<FeatureEnum> m_related;
    std::uint32_t m_displayStringID;
    std::uint32_t m_supportClass;
    SyntaxList m_syntaxes;
};

} // namespace zent
